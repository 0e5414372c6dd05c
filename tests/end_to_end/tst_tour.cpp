#include "tests/end_to_end/road.h"
#include "tests/end_to_end/tour_pictures.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTest>

#include <algorithm>

/// Goes through every command of the program with the examples and leaves numbered pictures of it,
/// twice as large as on a usual screen so that they can be printed. Manual and README show many.
class tst_tour : public road
{
    Q_OBJECT

public:
    tst_tour();

private slots:
    void init();
    void cleanup();

    void choosing_files();
    void hydrographs_data();
    void hydrographs();
    void zoom_and_pan();
    void clear_and_remove();
    void axes_data();
    void axes();
    void names();
    void saved_picture();
    void basins();
    void throttles();
    void steps_through_the_names();
    void message_without_selection();
    void information_data();
    void information();
    void manual();
    void close_command();

private:
    void plot(const QString& name);
    void read(const QString& name);
    void show_window(const QString& name);
    void show_plots(const QString& name);
    void show_dialog(const QString& name, const QString& title, const QRect& changing = {});
};

namespace {

constexpr QLatin1StringView main_title("plot_korimo");

// Both plots with what stands around them.
constexpr QRect both_plots(25, 45, 691, 600);

// Bookmarks or small pages: a new section of the manual is no reason for new pictures.
constexpr QRect side_panel(56, 84, 440, 1752);

// Its name is seen in the pictures. What an earlier tour has left is taken away.
QString fresh_folder()
{
    QDir folder(QDir::tempPath() + "/Erlenbach");
    const QStringList all = folder.entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    const bool is_ours = std::ranges::all_of(all, [](const QString& name) {
        return name.startsWith("Erlenbach") || name == "log" || name == "01_Handbuch_KORIMO9.pdf";
    });
    if (is_ours)
        folder.removeRecursively();
    return QDir().mkdir(folder.path()) ? folder.path() : QString();
}

// The file dialog shows the time of a file; pictures of today and tomorrow shall be the same.
bool make_old(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite) &&
           file.setFileTime(QDateTime(QDate(2026, 3, 2), QTime(9, 30)),
                            QFileDevice::FileModificationTime);
}

} // namespace

tst_tour::tst_tour()
    : road(QSize(2560, 2048))
{
    qputenv("QT_SCALE_FACTOR", "2");
}

void tst_tour::init()
{
    const QString folder = fresh_folder();
    QVERIFY2(!folder.isEmpty(), "there is a folder Erlenbach of somebody else");
    viewer_start start{.folder = folder};
    start.environment.insert("HOME", folder); // the file dialog shows whose it is
    program = std::make_unique<viewer>(start);
    QVERIFY(program->is_shown());
}

void tst_tour::cleanup()
{
    const QString folder = program->path_of("");
    road::cleanup();
    QDir(folder).removeRecursively();
}

void tst_tour::show_window(const QString& name)
{
    show_picture(name, program->picture_of(main_title));
}

void tst_tour::show_plots(const QString& name)
{
    show_picture(name, program->look(both_plots));
}

void tst_tour::show_dialog(const QString& name, const QString& title, const QRect& changing)
{
    QVERIFY(viewer::sees_window(title));
    show_picture(name, program->picture_of(title), changing);
}

void tst_tour::plot(const QString& name)
{
    add_by_typing({name});
    select_row(0);
    program->click(place::plot_button.center());
    QTRY_VERIFY(program->sees(place::lower_plot, blue) > 100);
}

void tst_tour::read(const QString& name)
{
    add_by_typing({name});
    select_row(0);
    program->click(place::plot_button.center());
    QTRY_VERIFY(program->sees(place::names, Qt::black) > 20);
}

void tst_tour::choosing_files()
{
    show_window("01_fenster_leer");
    program->click_in_window(plan->menu("Datei").center());
    show_window("02_menue_datei");
    program->key("Escape");
    const QStringList names{"Erlenbach_B1.wel", "Erlenbach.bek", "Erlenbach_K1.wel"};
    for (const QString& name : names)
        QVERIFY(program->bring(name) && make_old(program->path_of(name)));
    program->choose_file_entry(0);
    show_dialog("03_daten_auswaehlen", window_title::files);
    program->key("Escape");
    QVERIFY(viewer::sees_no_window(window_title::files));
    for (const QString& name : names)
        QVERIFY(QFile::remove(program->path_of(name)));
    add_by_typing(names);
    select_row(2);
    show_window("04_fenster_dateien");
    program->click(place::plot_button.center());
    QTRY_VERIFY(program->sees(place::lower_plot, blue) > 100);
    show_window("05_fenster_ganglinie");
}

void tst_tour::hydrographs_data()
{
    QTest::addColumn<QString>("element");
    QTest::addColumn<QString>("name");
    QTest::newRow("sub-catchment") << "K1" << "06_ganglinie_K1";
    QTest::newRow("basin with a spillway") << "B1" << "07_ganglinie_B1";
    QTest::newRow("basin") << "B2" << "08_ganglinie_B2";
    QTest::newRow("channel") << "T1" << "09_ganglinie_T1";
    QTest::newRow("branch") << "V1" << "10_ganglinie_V1";
    QTest::newRow("gauge") << "P1" << "11_ganglinie_P1";
    QTest::newRow("point inflow") << "E1" << "12_ganglinie_E1";
}

void tst_tour::hydrographs()
{
    QFETCH(QString, element);
    QFETCH(QString, name);
    plot("Erlenbach_" + element + ".wel");
    show_plots(name);
}

void tst_tour::zoom_and_pan()
{
    plot("Erlenbach_K1.wel");
    program->wheel(place::lower_plot.center(), -5); // nearer
    show_plots("13_gezoomt");
    program->drag_right(place::lower_plot.center(), place::lower_plot.center() + QPoint(120, 0));
    show_plots("14_verschoben");
}

void tst_tour::clear_and_remove()
{
    plot("Erlenbach_K1.wel");
    program->click(place::plot_button.center()); // it says "Clear" now
    QTRY_COMPARE(program->sees(place::lower_plot, blue), 0);
    program->click(place::remove_button.center());
    show_window("15_entfernt");
}

void tst_tour::axes_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("dialog");
    QTest::addColumn<QString>("plots");
    QTest::newRow("height below") << "y-Achse_unten" << "0" << "20" << "16_achse_y_unten"
                                  << "17_achse_y_unten_fest";
    QTest::newRow("time below") << "x-Achse_unten" << "5" << "50" << "18_achse_x_unten"
                                << "19_achse_x_unten_fest";
    QTest::newRow("second time below") << "2. X-Achse_unten" << "5" << "50" << "20_achse_x2_unten"
                                       << "21_achse_x2_unten_fest";
    QTest::newRow("height above") << "y-Achse_oben" << "0" << "40000" << "22_achse_y_oben"
                                  << "23_achse_y_oben_fest";
    QTest::newRow("time above") << "x-Achse_oben" << "10" << "30" << "24_achse_x_oben"
                                << "25_achse_x_oben_fest";
}

void tst_tour::axes()
{
    QFETCH(QString, command);
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(QString, dialog);
    QFETCH(QString, plots);
    plot("Erlenbach_B1.wel");
    program->click_in_window(plan->tool_button(command).center());
    QVERIFY(viewer::sees_window(window_title::range));
    viewer::click_in_dialog(window_title::range, QPoint(100, 101)); // the box of the minimum
    program->key("ctrl+a");
    program->type(from);
    program->key("Tab");
    program->key("ctrl+a");
    program->type(to);
    show_dialog(dialog, window_title::range);
    program->key("Return");
    QVERIFY(viewer::sees_no_window(window_title::range));
    show_plots(plots);
}

void tst_tour::names()
{
    plot("Erlenbach_B1.wel");
    program->click_in_window(plan->tool_button("Zeitreihen umbenennen").center());
    QVERIFY(viewer::sees_window(window_title::names));
    viewer::click_in_dialog(window_title::names, QPoint(190, 50), 2); // the first new name
    program->type("Zufluss");
    show_dialog("26_umbenennen", window_title::names);
    viewer::click_in_dialog(window_title::names, QPoint(270, 270)); // "OK"
    QVERIFY(viewer::sees_no_window(window_title::names));
    show_plots("27_umbenannt");
}

void tst_tour::saved_picture()
{
    plot("Erlenbach_B1.wel");
    program->choose_file_entry(1);
    QTRY_VERIFY(QFile::exists(program->path_of("Erlenbach_B1.png")));
    show_window("28_gespeichert");
    program->key("Return");
    show_picture("29_gespeichertes_bild", QImage(program->path_of("Erlenbach_B1.png")));
}

void tst_tour::basins()
{
    read("Erlenbach.bek");
    program->click(place::names.topLeft() + QPoint(30, 23)); // the second name
    show_window("30_fenster_gelesen");
    program->click(place::name_button.center());
    QTRY_VERIFY(program->sees(place::upper_plot, red) > 100);
    show_plots("31_kennlinie_becken");
}

void tst_tour::throttles()
{
    read("Erlenbach.dkl");
    program->click(place::names.topLeft() + QPoint(30, 23)); // the second name
    program->click(place::name_button.center());
    QTRY_VERIFY(program->sees(place::lower_plot, blue) > 100);
    show_plots("32_kennlinie_drossel");
}

void tst_tour::steps_through_the_names()
{
    read("Erlenbach.bek");
    const QRect both = place::upper_plot | place::lower_plot;
    QImage before = program->look(both);
    for (const QRect& button : {place::to_end_button, place::back_button, place::to_start_button,
                                place::forward_button}) {
        program->click(button.center());
        QTRY_VERIFY(program->look(both) != before);
        before = program->look(both);
    }
    show_window("33_naechster_name");
}

void tst_tour::message_without_selection()
{
    program->click(place::plot_button.center());
    show_dialog("34_box_auswahl", "Error");
}

void tst_tour::information_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("name");
    QTest::newRow("of the company") << 0 << "Orvan Wasser GmbH" << "35_box_information";
    QTest::newRow("of Qt") << 1 << "This product uses LGPLv3 Qt Libraries" << "36_box_qt";
    QTest::newRow("of the licence") << 2 << "LICENSE.LGPLv3" << "37_box_lizenz";
}

void tst_tour::information()
{
    QFETCH(int, entry);
    QFETCH(QString, title);
    QFETCH(QString, name);
    program->click_in_window(plan->menu("Info").center());
    for (int i = 0; i <= entry; ++i)
        program->key("Down");
    program->key("Return");
    show_dialog(name, title);
}

// Its pages show the pictures of the tour before this one.
void tst_tour::manual()
{
    QVERIFY(program->bring_manual());
    open_manual(window_title::manual);
    show_dialog("38_handbuch", window_title::manual, side_panel);
    viewer::click_in_dialog(window_title::manual, QPoint(13, 160)); // "Pages"
    QTest::qWait(2000); // until the small pages have been drawn
    show_dialog("39_handbuch_seiten", window_title::manual, side_panel);
}

void tst_tour::close_command()
{
    program->choose_file_entry(2);
    QCOMPARE(program->exit_code(), 0);
}

QTEST_APPLESS_MAIN(tst_tour)
#include "tst_tour.moc"
