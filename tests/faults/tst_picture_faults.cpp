#include "plot/korimo_plot.h"
#include "tests/support/limits.h"
#include "tests/support/modal_boxes.h"
#include "tests/support/read_file.h"
#include "tests/support/window_driver.h"
#include "tests/support/write_file.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <csignal>
#include <cstdio>

namespace {

// While it lives, no file takes the place of another.
struct no_replacing
{
    no_replacing() { refused = 0; }
    ~no_replacing() { refused = -1; }

    no_replacing(const no_replacing&) = delete;
    no_replacing& operator=(const no_replacing&) = delete;

    static inline int refused = -1; ///< how often, or -1 where none lives
};

// A window with a file drawn, and its picture.
struct drawn_window
{
    drawn_window() { driver.open("x_K.wel", node_file(9)); }

    // Saves, and answers whether the box names the file that was meant and is the only one.
    bool save() const
    {
        const modal_boxes boxes;
        driver.window.findChild<QAction*>("action_speicher")->trigger();
        return boxes.shown().size() == 1 && boxes.shown()[0].text == "File saved to " + picture;
    }

    // Whether a picture can be saved as ever, once what was in the way is gone.
    bool saves_again() const
    {
        QFile::remove(picture);
        return save() && QImage(picture, "PNG").size() == QSize(681, 581);
    }

    QStringList files() const
    {
        return QDir(driver.folder.path()).entryList(QDir::Files | QDir::Hidden);
    }

    window_driver driver;
    QString picture = driver.folder.filePath("x_K.png");
};

} // namespace

// Takes the place of the system's own, which Qt calls.
extern "C" int rename(const char* from, const char* to) noexcept
{
    if (no_replacing::refused < 0)
        return renameat(AT_FDCWD, from, AT_FDCWD, to);
    ++no_replacing::refused;
    errno = EPERM;
    return -1;
}

/// A picture that cannot be written, or not to its end. The box names the file all the same.
class tst_picture_faults : public QObject
{
    Q_OBJECT

private slots:
    void device();
    void link_to_the_data_file();
    void name_that_leads_elsewhere();
    void no_more_room_data();
    void no_more_room();
    void earlier_picture_stays_on_a_full_disk_data();
    void earlier_picture_stays_on_a_full_disk();
    void picture_that_cannot_be_replaced();
    void forbidden_folder();
    void picture_in_a_forbidden_folder();
    void forbidden_picture();
    void folder_that_is_gone();
    void fifo_without_a_reader();
    void dangling_link();
};

// Nothing is written to it, and it is not replaced.
void tst_picture_faults::device()
{
    const drawn_window window;
    QVERIFY(QFile::link("/dev/full", window.picture));
    QVERIFY(window.save());
    QCOMPARE(QFileInfo(window.picture).symLinkTarget(), "/dev/full");
    QVERIFY(window.saves_again());
}

void tst_picture_faults::link_to_the_data_file()
{
    const drawn_window window;
    const QString data_file = window.driver.folder.filePath("x_K.wel");
    QVERIFY(QFile::link(data_file, window.picture));
    QVERIFY(window.save());
    QCOMPARE(read_file(data_file), node_file(9));
    QVERIFY(window.saves_again());
}

// A curve may be called like a file in another folder.
void tst_picture_faults::name_that_leads_elsewhere()
{
    window_driver driver;
    QVERIFY(QDir(driver.folder.path()).mkdir("a"));
    const QString other = driver.folder.filePath("a/b_1_sommer.png");
    write_file(other, "an earlier picture");
    driver.open("x.dkl", " 1 sommer km a/b\n Wo Qd\n 1\n 101.5 1\n");
    driver.pick(0);
    driver.press(driver.plot_name);
    const modal_boxes boxes;
    driver.window.findChild<QAction*>("action_speicher")->trigger();
    QCOMPARE(boxes.shown().size(), 1);
    QCOMPARE(boxes.shown()[0].text, "File saved to " + other);
    QCOMPARE(read_file(other), "an earlier picture");
}

void tst_picture_faults::no_more_room_data()
{
    QTest::addColumn<int>("bytes");
    for (const int bytes : {0, 1, 100, 4096})
        QTest::addRow("%d bytes", bytes) << bytes;
}

// As on a disk that is full.
void tst_picture_faults::no_more_room()
{
    QFETCH(int, bytes);
    const drawn_window window;
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    {
        const lower_limit full(RLIMIT_FSIZE, static_cast<rlim_t>(bytes));
        QVERIFY(window.save());
    }
    std::signal(SIGXFSZ, before);
    QCOMPARE(window.files(), QStringList("x_K.wel")); // no half of a picture, and nothing else
    QVERIFY(window.saves_again());
}

void tst_picture_faults::earlier_picture_stays_on_a_full_disk_data()
{
    QTest::addColumn<bool>("last_byte_is_missing");
    QTest::newRow("after 1000 bytes") << false;
    QTest::newRow("only the last byte is missing") << true;
}

void tst_picture_faults::earlier_picture_stays_on_a_full_disk()
{
    QFETCH(bool, last_byte_is_missing);
    const drawn_window window;
    QVERIFY(window.save());
    const auto whole = static_cast<rlim_t>(QFileInfo(window.picture).size());
    write_file(window.picture, "an earlier picture");
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    {
        const lower_limit full(RLIMIT_FSIZE, last_byte_is_missing ? whole - 1 : 1000);
        QVERIFY(window.save());
    }
    std::signal(SIGXFSZ, before);
    QCOMPARE(read_file(window.picture), "an earlier picture");
    QCOMPARE(window.files().size(), 2);
    QVERIFY(window.saves_again());
}

// As where it belongs to somebody else, in a folder for all.
void tst_picture_faults::picture_that_cannot_be_replaced()
{
    const drawn_window window;
    write_file(window.picture, "an earlier picture");
    {
        const no_replacing everything_stays;
        QVERIFY(window.save());
        QVERIFY(no_replacing::refused > 0);
    }
    QCOMPARE(QImage(window.picture, "PNG").size(), QSize(681, 581));
    QCOMPARE(window.files().size(), 2);
}

void tst_picture_faults::forbidden_folder()
{
    const drawn_window window;
    const QString folder = window.driver.folder.path();
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    {
        const without_override common_user;
        QVERIFY(window.save());
    }
    QVERIFY(!QFile::exists(window.picture));
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QVERIFY(window.saves_again());
}

// No file can come into it, but one that is there may be written.
void tst_picture_faults::picture_in_a_forbidden_folder()
{
    const drawn_window window;
    const QString folder = window.driver.folder.path();
    write_file(window.picture, "an earlier picture");
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    {
        const without_override common_user;
        QVERIFY(window.save());
    }
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QCOMPARE(QImage(window.picture, "PNG").size(), QSize(681, 581));
}

void tst_picture_faults::forbidden_picture()
{
    const drawn_window window;
    write_file(window.picture, "something else");
    QVERIFY(QFile::setPermissions(window.picture, QFile::ReadOwner));
    {
        const without_override common_user;
        QVERIFY(window.save());
    }
    QCOMPARE(QFileInfo(window.picture).size(), 14);
    QVERIFY(window.saves_again());
}

void tst_picture_faults::folder_that_is_gone()
{
    const drawn_window window;
    const QString folder = window.driver.folder.path();
    QVERIFY(QDir(folder).removeRecursively());
    QVERIFY(window.save());
    QVERIFY(!QFile::exists(folder));
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(window.saves_again());
}

// Writing there would wait for ever.
void tst_picture_faults::fifo_without_a_reader()
{
    const drawn_window window;
    QCOMPARE(mkfifo(qPrintable(window.picture), 0600), 0);
    QVERIFY(window.save());
    QVERIFY(QFile::exists(window.picture));
    QVERIFY(window.saves_again());
}

// The picture goes where the link leads.
void tst_picture_faults::dangling_link()
{
    const drawn_window window;
    const QString target = window.driver.folder.filePath("elsewhere.png");
    QVERIFY(QFile::link(target, window.picture));
    QVERIFY(window.save());
    QCOMPARE(QImage(target).size(), QSize(681, 581));
}

QTEST_MAIN(tst_picture_faults)
#include "tst_picture_faults.moc"
