#include "tests/support/docu_driver.h"
#include "tests/support/write_file.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>

#include <sys/stat.h>

#include <algorithm>

namespace {

pdf_file whole_file()
{
    pdf_file file = numbered_pages(4);
    file.title = "Handbuch";
    file.bookmarks = {{"Anfang", 0, 0}, {"Mitte", 1, 1}, {"Ende", 3, 0}};
    return file;
}

// Without bookmarks: where they refer to one another in a circle, as they may in a file that was
// changed at random, the library's model of them never ends.
pdf_file file_to_damage()
{
    pdf_file file = whole_file();
    file.bookmarks.clear();
    return file;
}

// Opens a file and looks at what it shows; answers how many milliseconds that took.
qint64 look_at(const docu_driver& driver, const QByteArray& bytes)
{
    QElapsedTimer clock;
    clock.start();
    driver.dialog->loadDocument(driver.write(bytes), 0);
    driver.action("Next Page")->trigger();
    QCoreApplication::processEvents();
    return clock.elapsed();
}

// Everything that can be seen of a file, and all that the tool bar does.
void look_at_all(const docu_driver& driver)
{
    for (int tab = 0; tab < 3; ++tab) {
        driver.tabs->setCurrentIndex(tab);
        QTest::qWait(20);
    }
    const auto actions = driver.tools->actions();
    for (QAction* each : actions)
        each->trigger();
    QTest::keyClicks(driver.field, "page");
    QTest::qWait(100);
}

// A copy in which a word, which stands there, is another.
QByteArray with(const char* word, const QByteArray& other)
{
    QByteArray bytes = whole_file().bytes();
    if (!bytes.contains(word))
        qFatal("the file of the test has no such word");
    return bytes.replace(word, other);
}

// Objects that nothing refers to; none stands where the table of objects says any more.
QByteArray with_many_objects(int count)
{
    QByteArray bytes = whole_file().bytes();
    QByteArray more;
    for (int i = 0; i < count; ++i)
        more += QByteArray::number(1000 + i) + " 0 obj\n<< /A [1 2 3] >>\nendobj\n";
    return bytes.insert(bytes.indexOf("1 0 obj"), more);
}

// In milliseconds. Under valgrind all takes many times as long.
qint64 long_time()
{
    return qint64(10'000) * std::max(1, qEnvironmentVariableIntValue("KORIMO_SLOWNESS"));
}

// Cut off at a thousand places, and in the end whole.
void look_at_starts_of(const docu_driver& driver, const QByteArray& whole)
{
    constexpr int places = 1000;
    for (int i = 0; i < places; ++i) {
        QVERIFY(look_at(driver, whole.first(whole.size() * i / places)) < long_time());
        QVERIFY(driver.dialog->isVisible());
    }
    look_at(driver, whole);
}

} // namespace

/// Files that are broken, or made to do harm: the viewer shows what it can, or nothing, and lives.
class tst_docu_hostile_files : public QObject
{
    Q_OBJECT

private slots:
    void truncated();
    void truncated_manual();
    void closed_while_pages_are_drawn();
    void flipped_bytes();
    void shuffled_parts();
    void locked();
    void twisted_structure_data();
    void twisted_structure();
    void ten_thousand_pages();
    void twenty_thousand_bookmarks();
    void page_of_five_metres();
    void fifo_without_a_writer();
};

void tst_docu_hostile_files::truncated()
{
    const QByteArray whole = whole_file().bytes();
    const docu_driver driver;
    look_at_starts_of(driver, whole);
    QCOMPARE(driver.dialog->windowTitle(), "Handbuch");
    QCOMPARE(driver.document->pageCount(), 4);
}

// The program's own, with its streams of objects, fonts and pictures.
void tst_docu_hostile_files::truncated_manual()
{
    QFile file(MANUAL);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    const docu_driver driver;
    look_at_starts_of(driver, whole);
    QVERIFY(driver.document->pageCount() > 20);
}

// Pages are drawn beside the event loop, and come in while the window is going.
void tst_docu_hostile_files::closed_while_pages_are_drawn()
{
    const QByteArray bytes = numbered_pages(500).bytes();
    for (int milliseconds = 0; milliseconds < 20; ++milliseconds) {
        const docu_driver driver;
        look_at(driver, bytes);
        driver.action("Continuous")->trigger();
        driver.action("Continuous")->trigger();
        driver.tabs->setCurrentIndex(1);
        QTest::keyClick(driver.view, Qt::Key_End);
        QTest::qWait(milliseconds);
        driver.dialog->close();
        QTRY_VERIFY(!driver.dialog);
    }
}

void tst_docu_hostile_files::flipped_bytes()
{
    const QByteArray whole = file_to_damage().bytes();
    const docu_driver driver;
    QRandomGenerator random(20264);
    for (int i = 0; i < 200; ++i) {
        QByteArray bytes = whole;
        for (int n = random.bounded(1, 6); n > 0; --n) {
            char& byte = bytes.data()[random.bounded(bytes.size())];
            byte = static_cast<char>(byte ^ (1 << random.bounded(8)));
        }
        QVERIFY(look_at(driver, bytes) < long_time());
        QVERIFY(driver.dialog->isVisible());
    }
}

void tst_docu_hostile_files::shuffled_parts()
{
    const QByteArray whole = file_to_damage().bytes();
    const docu_driver driver;
    QRandomGenerator random(20265);
    for (int i = 0; i < 150; ++i) {
        QByteArray bytes = whole;
        const qsizetype from = random.bounded(bytes.size());
        const QByteArray part = bytes.mid(from, random.bounded(200));
        if (random.bounded(2) == 0)
            bytes.remove(from, part.size());
        bytes.insert(random.bounded(bytes.size()), part);
        QVERIFY(look_at(driver, bytes) < long_time());
        QVERIFY(driver.dialog->isVisible());
    }
}

// A password is wanted that nobody can give.
void tst_docu_hostile_files::locked()
{
    pdf_file file = whole_file();
    file.encrypted = true;
    const docu_driver driver;
    QVERIFY(look_at(driver, file.bytes()) < long_time());
    look_at_all(driver);
    QCOMPARE(driver.document->error(), QPdfDocument::Error::IncorrectPassword);
    QCOMPARE(driver.document->pageCount(), 0);
    look_at(driver, whole_file().bytes());
    QCOMPARE(driver.document->pageCount(), 4);
}

void tst_docu_hostile_files::twisted_structure_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zeros") << QByteArray(1'000'000, '\0');
    QTest::newRow("header only") << QByteArray("%PDF-1.7\n");
    QTest::newRow("100,000 objects") << with_many_objects(100'000);
    QTest::newRow("too many pages promised") << with("/Count 4", "/Count 2147483647");
    QTest::newRow("fewer than no pages") << with("/Count 4", "/Count -2147483648");
    QTest::newRow("pages in a circle") << with("/Kids [", "/Kids [2 0 R ");
    QTest::newRow("no pages") << with("/Pages 2 0 R", "/Pages 99 0 R");
    QTest::newRow("no size of pages") << with("/MediaBox [0 0 420 595]", "/MediaBox [0 0 0 0]");
    QTest::newRow("negative size") << with("/MediaBox [0 0 420 595]", "/MediaBox [9 9 -9 -9]");
    QTest::newRow("size no number") << with("/MediaBox [0 0 420 595]", "/MediaBox [0 0 nan 1e99]");
    QTest::newRow("endless stream") << with("/Length ", "/Length 99999999");
    QTest::newRow("nested arrays")
        << with("/Resources <<", "/Deep " + QByteArray(50'000, '[') + " /Resources <<");
    QTest::newRow("font refers to itself") << with("/BaseFont /Helvetica", "/BaseFont 4 0 R");
}

void tst_docu_hostile_files::twisted_structure()
{
    QFETCH(QByteArray, bytes);
    const docu_driver driver;
    QVERIFY(look_at(driver, bytes) < long_time());
    look_at_all(driver);
    QVERIFY(driver.dialog->isVisible());
    look_at(driver, whole_file().bytes());
    QCOMPARE(driver.document->pageCount(), 4);
}

void tst_docu_hostile_files::ten_thousand_pages()
{
    const docu_driver driver;
    const qint64 time = look_at(driver, numbered_pages(10'000).bytes());
    QVERIFY2(time < long_time(), QByteArray::number(time));
    QCOMPARE(driver.label(), " 2 / 10000");
    driver.action("Continuous")->trigger();
    driver.action("Continuous")->trigger();
    QElapsedTimer clock;
    clock.start();
    QTest::keyClick(driver.view, Qt::Key_End);
    QTest::qWait(50);
    QVERIFY2(clock.elapsed() < long_time(), QByteArray::number(clock.elapsed()));
    look_at_all(driver);
    QTRY_VERIFY(driver.found->rowCount({}) > 0);
}

void tst_docu_hostile_files::twenty_thousand_bookmarks()
{
    constexpr int count = 20'000;
    pdf_file file = numbered_pages(2);
    for (int i = 0; i < count; ++i)
        file.bookmarks.append({"Kapitel", i % 2, 0});
    const docu_driver driver;
    const qint64 time = look_at(driver, file.bytes());
    QVERIFY2(time < long_time(), QByteArray::number(time));
    QCOMPARE(driver.bookmarks->model()->rowCount(), count);
}

// The largest page that the format allows. As it opens, at 100 %, its picture takes 1.5 GB.
void tst_docu_hostile_files::page_of_five_metres()
{
    const docu_driver driver;
    look_at(driver, with("/MediaBox [0 0 420 595]", "/MediaBox [0 0 14400 14400]"));
    QCOMPARE(driver.document->pagePointSize(0), QSizeF(14400, 14400));
    QElapsedTimer clock;
    clock.start();
    for (const char* action : {"Next Page", "Previous Page", "Continuous", "Continuous"})
        driver.action(action)->trigger();
    QTest::qWait(200);
    QVERIFY2(clock.elapsed() < long_time(), QByteArray::number(clock.elapsed()));
    QVERIFY(driver.dialog->isVisible());
}

// Opening it would wait for ever. It counts as a file that cannot be read.
void tst_docu_hostile_files::fifo_without_a_writer()
{
    const docu_driver driver;
    const QString path = driver.folder.filePath("manual.pdf");
    QCOMPARE(mkfifo(qPrintable(path), 0600), 0);
    driver.dialog->loadDocument(path, 0);
    QCOMPARE(driver.dialog->windowTitle(), "Documentation");
    QCOMPARE(driver.label(), " 1 / 0");
}

QTEST_MAIN(tst_docu_hostile_files)
#include "tst_docu_hostile_files.moc"
