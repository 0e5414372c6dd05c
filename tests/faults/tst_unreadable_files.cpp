#include "plot/korimo_plot.h"
#include "tests/support/document_dump.h"
#include "tests/support/limits.h"
#include "tests/support/modal_boxes.h"
#include "tests/support/named_curves.h"
#include "tests/support/write_file.h"

#include <qwt_plot.h>

#include <QDir>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <algorithm>
#include <cstring>
#include <functional>

#include <unistd.h>

namespace {

void check(bool succeeded)
{
    if (!succeeded)
        qFatal("cannot make what a test needs");
}

void make_socket(const QString& path)
{
    const int descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
    check(descriptor >= 0);
    sockaddr_un address{AF_UNIX, {}};
    const QByteArray name = path.toUtf8();
    check(static_cast<std::size_t>(name.size()) < sizeof address.sun_path);
    std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
    check(bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0);
    close(descriptor);
}

void forbid(const QString& path)
{
    write_file(path, "0 1 2 3\n");
    check(QFile::setPermissions(path, {}));
}

// What may stand at a path instead of a file that can be read.
struct obstacle
{
    const char* name;
    std::function<void(const QString& path)> make;
};

std::function<void(const QString&)> link_to(const QString& target)
{
    return [target](const QString& path) { check(QFile::link(target, path)); };
}

QList<obstacle> obstacles()
{
    return {
        {"nothing", [](const QString&) {}},
        {"a folder", [](const QString& path) { check(QDir().mkdir(path)); }},
        {"a FIFO without a writer",
         [](const QString& path) { check(mkfifo(qPrintable(path), 0600) == 0); }},
        {"a socket", make_socket},
        {"an endless device", link_to("/dev/zero")},
        {"a full device", link_to("/dev/full")},
        {"an empty device", link_to("/dev/null")},
        {"a dangling link", link_to("/nowhere/x_K.wel")},
        {"a link to itself", [](const QString& path) { check(QFile::link(path, path)); }},
        {"a file that is forbidden", forbid},
    };
}

void make(const QString& what, const QString& path)
{
    const QList<obstacle> all = obstacles();
    std::ranges::find(all, what, &obstacle::name)->make(path);
}

void add_rows(const QStringList& file_names)
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("name");
    const auto all = obstacles();
    for (const obstacle& each : all) {
        for (const QString& name : file_names)
            QTest::addRow("%s, %s", each.name, qPrintable(name)) << QString(each.name) << name;
    }
}

const shown_box& last_box(const modal_boxes& boxes)
{
    return boxes.shown().last();
}

// The window still does what it is for.
bool draws_a_good_file(window_driver& driver)
{
    driver.open("good_K.wel", node_file(9));
    return driver.window.shown_document()->series[12].size() == 2;
}

} // namespace

/// Whatever stands where a result file should be: the viewer says so, and lives.
class tst_unreadable_files : public QObject
{
    Q_OBJECT

private slots:
    void opened_data();
    void opened();
    void read_again_data();
    void read_again();
    void names_no_file_has_data();
    void names_no_file_has();
    void folder_that_is_forbidden();
    void reading_fails();
    void reading_fails_later();
};

void tst_unreadable_files::opened_data()
{
    add_rows({"x_K.wel", "x.bek", "x.dkl"});
}

void tst_unreadable_files::opened()
{
    QFETCH(QString, what);
    QFETCH(QString, name);
    const without_override common_user;
    window_driver driver;
    const QString path = driver.folder.filePath(name);
    make(what, path);
    driver.list->addItem(path);
    driver.select(0);
    const modal_boxes boxes;
    driver.press(driver.button);
    // A file of hydrographs is drawn all the same, and there is nothing to draw.
    QCOMPARE(boxes.shown().size(), name.endsWith("wel") ? 2 : 1);
    QVERIFY(is_read_error(boxes.shown()[0]));
    QCOMPARE(driver.names->count(), 0);
    QCOMPARE(driver.window.shown_document()->plot_mode, -1);
    QVERIFY(has_no_values(*driver.window.shown_document()));
    QVERIFY(draws_a_good_file(driver));
}

void tst_unreadable_files::read_again_data()
{
    add_rows({"x.bek", "x.dkl"});
}

// The file was listed; before one of its names is drawn, something else stands there.
void tst_unreadable_files::read_again()
{
    QFETCH(QString, what);
    QFETCH(QString, name);
    const without_override common_user;
    window_driver driver;
    const QString path = driver.open(name, named_curves(name));
    QCOMPARE(driver.names->count(), 4);
    QVERIFY(QFile::remove(path));
    make(what, path);
    driver.pick(1);
    const modal_boxes boxes;
    driver.press(driver.plot_name);
    QCOMPARE(boxes.shown().size(), name.endsWith("dkl") ? 1 : 0);
    QVERIFY(boxes.shown().isEmpty() || is_read_error(last_box(boxes)));
    QCOMPARE(driver.names->count(), 4);
    QVERIFY(has_no_values(*driver.window.shown_document()));
    QVERIFY(draws_a_good_file(driver));
}

void tst_unreadable_files::names_no_file_has_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("256 bytes") << QString(250, 'x') + "_K.wel";
    QTest::newRow("long path") << QString("y/").repeated(3000) + "_K.wel";
    QTest::newRow("below a file") << "good_K.wel/x_K.wel";
    QTest::newRow("with a NUL") << QString::fromLatin1("x\0_K.wel", 8);
    QTest::newRow("half a character") << QString(QChar(0xD800)) + "_K.wel";
}

void tst_unreadable_files::names_no_file_has()
{
    QFETCH(QString, name);
    window_driver driver;
    QVERIFY(draws_a_good_file(driver));
    driver.list->addItem(driver.folder.filePath(name));
    driver.select(1);
    const modal_boxes boxes;
    driver.press(driver.button);
    QVERIFY(!boxes.shown().isEmpty());
    QVERIFY(is_read_error(boxes.shown()[0]));
    QVERIFY(has_no_values(*driver.window.shown_document()));
}

void tst_unreadable_files::folder_that_is_forbidden()
{
    const without_override common_user;
    window_driver driver;
    const QString folder = driver.folder.filePath("folder");
    QVERIFY(QDir().mkdir(folder));
    driver.add("folder/x_K.wel", node_file(9));
    QVERIFY(QFile::setPermissions(folder, {}));
    driver.select(0);
    {
        const modal_boxes boxes;
        driver.press(driver.button);
        QCOMPARE(boxes.shown().size(), 2);
        QVERIFY(is_read_error(boxes.shown()[0]));
    }
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    driver.press(driver.button); // "Clear"
    driver.press(driver.button);
    QCOMPARE(driver.window.shown_document()->series[12].size(), 2);
}

// A file that opens, but gives an error in place of its first byte, is one without any text.
void tst_unreadable_files::reading_fails()
{
    window_driver driver;
    const QString path = driver.folder.filePath("x_K.wel");
    check(QFile::link("/proc/self/mem", path));
    driver.list->addItem(path);
    driver.select(0);
    const modal_boxes boxes;
    driver.press(driver.button);
    QCOMPARE(boxes.shown().size(), 1);
    QCOMPARE(boxes.shown()[0].title, "Error plotting curve");
    QVERIFY(has_no_values(*driver.window.shown_document()));
    QVERIFY(draws_a_good_file(driver));
}

// The same between two readings.
void tst_unreadable_files::reading_fails_later()
{
    for (const QString& name : {QString("x.bek"), QString("x.dkl")}) {
        window_driver driver;
        const QString path = driver.open(name, named_curves(name));
        QVERIFY(QFile::remove(path));
        check(QFile::link("/proc/self/mem", path));
        driver.pick(1);
        const modal_boxes boxes;
        driver.press(driver.plot_name);
        QVERIFY(boxes.shown().isEmpty());
        QVERIFY(has_no_values(*driver.window.shown_document()));
        QVERIFY(draws_a_good_file(driver));
    }
}

QTEST_MAIN(tst_unreadable_files)
#include "tst_unreadable_files.moc"
