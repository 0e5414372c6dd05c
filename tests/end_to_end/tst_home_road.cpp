#include "tests/end_to_end/road.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

/// The program for a user whose home folder cannot be written, does not exist or is not told.
class tst_home_road : public road
{
    Q_OBJECT

private slots:
    void plot_save_and_read_data();
    void plot_save_and_read();
    void folder_of_the_last_time();
};

namespace {

// With nothing else that leads to a folder of the user's.
QProcessEnvironment without_a_home()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME",
                             "XDG_STATE_HOME", "XDG_RUNTIME_DIR", "TMPDIR"})
        environment.remove(name);
    return environment;
}

} // namespace

void tst_home_road::plot_save_and_read_data()
{
    QTest::addColumn<QString>("home");
    QTest::newRow("not told") << "";
    QTest::newRow("does not exist") << "/no/such/home";
    QTest::newRow("cannot be written, not even by root") << "/proc";
}

void tst_home_road::plot_save_and_read()
{
    QFETCH(QString, home);
    QProcessEnvironment environment = without_a_home();
    if (!home.isEmpty())
        environment.insert("HOME", home);
    program.reset(); // the windows of two are not told apart
    program = std::make_unique<viewer>(viewer_start{.environment = environment});
    QVERIFY(program->is_shown());
    add_by_typing({"Erlenbach_K1.wel"});
    select_row(0);
    program->click(place::plot_button.center());
    QTRY_VERIFY(program->sees(place::lower_plot, blue) > 100);
    QCOMPARE(save_picture("Erlenbach_K1.png").size(), QSize(681, 581));
    QVERIFY(program->bring_manual());
    open_manual(window_title::manual);
    keep_screenshot("manual_without_a_home");
    program->close_main_window();
    QCOMPARE(program->exit_code(), 0);
}

// Qt's dialog remembers at home where it was, but the program's own folder comes first.
void tst_home_road::folder_of_the_last_time()
{
    const QTemporaryDir home;
    const QTemporaryDir folders[2];
    QProcessEnvironment environment = without_a_home();
    environment.insert("HOME", home.path());
    for (const QTemporaryDir& folder : folders) {
        program.reset();
        program = std::make_unique<viewer>(
            viewer_start{.environment = environment, .folder = folder.path()});
        QVERIFY(program->is_shown());
        add_by_typing({"Erlenbach_K1.wel"});
        QVERIFY(QFile::remove(program->path_of("Erlenbach_K1.wel")));
        program->close_main_window();
        QCOMPARE(program->exit_code(), 0);
        QVERIFY(QFile::exists(home.filePath(".config/QtProject.conf")));
    }
}

QTEST_APPLESS_MAIN(tst_home_road)
#include "tst_home_road.moc"
