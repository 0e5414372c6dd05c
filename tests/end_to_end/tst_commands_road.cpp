#include "tests/end_to_end/road.h"

#include <QImage>
#include <QTest>

class tst_commands_road : public road
{
    Q_OBJECT

private slots:
    void axes_by_mouse_and_keyboard();
    void time_axis_of_both_plots();
    void hidden_axis();
    void ranges_outlive_a_change_of_file();
    void new_name_in_the_legend_and_the_picture();
    void picture_of_a_basin();
    void information();
    void about_qt();
    void licence();

private:
    void plot(const QStringList& examples);
    void set_range(const QString& command, const QString& minimum, const QString& maximum);
    void open_info(int entry, const QString& title);
};

namespace {

// In the axis dialog and the rename dialog.
constexpr QPoint minimum_box(100, 101);
constexpr QPoint first_new_name(190, 50);
constexpr QPoint rename_ok(270, 270);

constexpr QRect upper_of_picture(0, 0, 681, 200);
constexpr QRect lower_legend_of_picture(600, 230, 81, 60);

} // namespace

void tst_commands_road::plot(const QStringList& examples)
{
    add_by_typing(examples);
    select_row(0);
    program->click(place::plot_button.center());
    QTRY_VERIFY(program->sees(place::lower_plot, blue) > 100);
}

// Types both bounds and confirms with the Enter key.
void tst_commands_road::set_range(const QString& command, const QString& minimum,
                                  const QString& maximum)
{
    program->click_in_window(plan->tool_button(command).center());
    QVERIFY(viewer::sees_window(window_title::range));
    keep_screenshot("range_" + command);
    viewer::click_in_dialog(window_title::range, minimum_box);
    program->key("ctrl+a");
    program->type(minimum);
    program->key("Tab");
    program->key("ctrl+a");
    program->type(maximum);
    program->key("Return");
    QVERIFY(viewer::sees_no_window(window_title::range));
}

void tst_commands_road::axes_by_mouse_and_keyboard()
{
    plot({"Erlenbach_K1.wel"});
    const QImage lower = program->look(place::lower_plot);
    const QImage upper = program->look(place::upper_plot);
    set_range("y-Achse_unten", "2", "20.5");
    const QImage lower_fixed = program->look(place::lower_plot);
    QVERIFY(lower_fixed != lower);
    QCOMPARE(program->look(place::upper_plot), upper);
    set_range("y-Achse_oben", "0", "40");
    QCOMPARE(program->look(place::lower_plot), lower_fixed);
    const QImage upper_fixed = program->look(place::upper_plot);
    QVERIFY(upper_fixed != upper);
    set_range("x-Achse_oben", "10", "30");
    QCOMPARE(program->look(place::lower_plot), lower_fixed);
    QVERIFY(program->look(place::upper_plot) != upper_fixed);
    keep_screenshot("ranges");
    // The dialog shows what is set: leaving it again changes nothing.
    const QImage before = program->look(place::lower_plot);
    program->click_in_window(plan->tool_button("y-Achse_unten").center());
    QVERIFY(viewer::sees_window(window_title::range));
    program->key("Escape");
    QVERIFY(viewer::sees_no_window(window_title::range));
    QCOMPARE(program->look(place::lower_plot), before);
}

void tst_commands_road::time_axis_of_both_plots()
{
    plot({"Erlenbach_K1.wel"});
    const QImage upper = program->look(place::upper_plot);
    const QImage lower_axis = program->look(place::lower_left_axis);
    set_range("x-Achse_unten", "5", "50");
    QVERIFY(program->look(place::upper_plot) != upper); // follows
    QCOMPARE(program->look(place::lower_left_axis), lower_axis);
}

// The top axis of the lower plot is not shown, so nothing changes on the screen.
void tst_commands_road::hidden_axis()
{
    plot({"Erlenbach_K1.wel"});
    const QImage before = program->look(place::upper_plot | place::lower_plot);
    set_range("2. X-Achse_unten", "5", "50");
    QCOMPARE(program->look(place::upper_plot | place::lower_plot), before);
    // The dialog tells that the axis has been set all the same.
    program->click_in_window(plan->tool_button("2. X-Achse_unten").center());
    QVERIFY(viewer::sees_window(window_title::range));
    QTest::qWait(500); // until it has the focus
    const QImage shown_again = screenshot();
    viewer::click_in_dialog(window_title::range, minimum_box);
    program->key("ctrl+a");
    program->type("5.000");
    program->key("Tab");
    program->key("ctrl+a");
    program->type("50.000");
    program->key("Escape");
    program->click_in_window(plan->tool_button("2. X-Achse_unten").center());
    QVERIFY(viewer::sees_window(window_title::range));
    QTRY_COMPARE(screenshot(), shown_again);
    program->key("Escape");
}

void tst_commands_road::ranges_outlive_a_change_of_file()
{
    plot({"Erlenbach_K1.wel", "Erlenbach_N1.wel"});
    const QImage automatic = program->look(place::lower_left_axis);
    set_range("y-Achse_unten", "1", "17");
    const QImage fixed = program->look(place::lower_left_axis);
    QVERIFY(fixed != automatic);
    select_row(1);
    program->click(place::plot_button.center());
    QTRY_VERIFY(program->sees(place::lower_plot, green) > 100);
    QTRY_COMPARE(program->look(place::lower_left_axis), fixed);
    program->click(place::plot_button.center()); // "Clear"
    program->click(place::plot_button.center());
    QTRY_VERIFY(program->sees(place::lower_plot, green) > 100);
    QVERIFY(program->look(place::lower_left_axis) != fixed);
}

void tst_commands_road::new_name_in_the_legend_and_the_picture()
{
    plot({"Erlenbach_B1.wel"});
    const QImage legend = program->look(place::lower_legend);
    const QImage old_picture = save_picture("Erlenbach_B1.png");
    program->click_in_window(plan->tool_button("Zeitreihen umbenennen").center());
    QVERIFY(viewer::sees_window(window_title::names));
    viewer::click_in_dialog(window_title::names, first_new_name, 2);
    program->type("Zufluss");
    keep_screenshot("new_name");
    viewer::click_in_dialog(window_title::names, rename_ok);
    QVERIFY(viewer::sees_no_window(window_title::names));
    QVERIFY(program->look(place::lower_legend) != legend);
    const QImage picture = save_picture("Erlenbach_B1.png");
    QVERIFY(picture.copy(lower_legend_of_picture) != old_picture.copy(lower_legend_of_picture));
    QCOMPARE(picture.copy(upper_of_picture), old_picture.copy(upper_of_picture));
    QCOMPARE(picture.size(), QSize(681, 581));
    const QRect lower(0, 200, 681, 381);
    QVERIFY(pixels_of(picture, upper_of_picture, red) > 100);
    for (const QColor& colour : {blue, red, green})
        QVERIFY(pixels_of(picture, lower, colour) > 100);
    keep_picture(picture, "picture_of_B1");
}

void tst_commands_road::picture_of_a_basin()
{
    add_by_typing({"Erlenbach.bek"});
    select_row(0);
    program->click(place::plot_button.center());
    QTRY_VERIFY(program->sees(place::names, Qt::black) > 20);
    program->click(place::to_start_button.center());
    QTRY_VERIFY(program->sees(place::lower_plot, blue) > 100);
    QCOMPARE(save_picture("B1   .png").size(), QSize(681, 581));
}

void tst_commands_road::open_info(int entry, const QString& title)
{
    program->click_in_window(plan->menu("Info").center());
    for (int i = 0; i <= entry; ++i)
        program->key("Down");
    program->key("Return");
    QVERIFY(viewer::sees_window(title));
}

void tst_commands_road::information()
{
    open_info(0, "Orvan Wasser GmbH");
    keep_screenshot("information_box");
    program->key("Return");
    QVERIFY(viewer::sees_no_window("Orvan Wasser GmbH"));
}

void tst_commands_road::about_qt()
{
    open_info(1, "This product uses LGPLv3 Qt Libraries");
    program->key("Escape");
    QVERIFY(viewer::sees_no_window("This product uses LGPLv3 Qt Libraries"));
}

// "Show Details..." unfolds the text, which makes the box higher.
void tst_commands_road::licence()
{
    open_info(2, "LICENSE.LGPLv3");
    const int folded = viewer::height_of("LICENSE.LGPLv3");
    program->key("Tab");
    program->key("space");
    QTRY_VERIFY(viewer::height_of("LICENSE.LGPLv3") > folded + 100);
    keep_screenshot("licence_unfolded");
    program->key("Escape");
    QVERIFY(viewer::sees_no_window("LICENSE.LGPLv3"));
}

QTEST_APPLESS_MAIN(tst_commands_road)
#include "tst_commands_road.moc"
