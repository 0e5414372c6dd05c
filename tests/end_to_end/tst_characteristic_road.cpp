#include "tests/end_to_end/road.h"

#include <QTest>

class tst_characteristic_road : public road
{
    Q_OBJECT

private slots:
    void read_and_clear();
    void basin_picked_by_mouse();
    void throttle_picked_by_keyboard();
    void all_names_there_and_back_data();
    void all_names_there_and_back();
    void change_of_file();
    void message_without_a_name();

private:
    void read(const QString& name);
    void expect_empty_plots();
    QImage press(const QRect& button);
};

namespace {

const QPoint first_name = place::names.topLeft() + QPoint(30, 9);
constexpr int name_height = 14;

} // namespace

void tst_characteristic_road::read(const QString& name)
{
    add_by_typing({name});
    select_row(0);
    program->click(place::plot_button.center());
    QTRY_VERIFY(program->sees(place::names, Qt::black) > 20);
}

void tst_characteristic_road::expect_empty_plots()
{
    for (const QRect& plot : {place::lower_plot, place::upper_plot}) {
        for (const QColor& colour : {blue, green, red})
            QTRY_COMPARE(program->sees(plot, colour), 0);
    }
}

// Presses a button and answers what both plots show then.
QImage tst_characteristic_road::press(const QRect& button)
{
    program->click(button.center());
    return program->look(place::upper_plot | place::lower_plot);
}

void tst_characteristic_road::read_and_clear()
{
    add_by_typing({"Erlenbach.bek"});
    select_row(0);
    QTRY_COMPARE(program->sees(place::names, Qt::black), 0);
    program->click(place::plot_button.center());
    QTRY_VERIFY(program->sees(place::names, Qt::black) > 20);
    expect_empty_plots();
    program->click(place::plot_button.center());
    QTRY_COMPARE(program->sees(place::names, Qt::black), 0);
}

// The second basin, with blanks in the column of the spillway.
void tst_characteristic_road::basin_picked_by_mouse()
{
    read("Erlenbach.bek");
    program->click(first_name + QPoint(0, name_height));
    expect_empty_plots();
    program->click(place::name_button.center());
    QTRY_VERIFY(program->sees(place::lower_plot, blue) > 100);
    QTRY_VERIFY(program->sees(place::lower_plot, green) > 50);
    QTRY_VERIFY(program->sees(place::upper_plot, red) > 100);
    QTRY_VERIFY(program->sees(place::names, Qt::black) > 20); // the names stay
    keep_screenshot("basin");
    program->click(place::plot_button.center());
    expect_empty_plots();
    QTRY_COMPARE(program->sees(place::names, Qt::black), 0);
}

void tst_characteristic_road::throttle_picked_by_keyboard()
{
    read("Erlenbach.dkl");
    program->click(first_name);
    program->key("Down");
    program->key("Tab"); // to "Plot Kennlinie DKL/BEK"
    program->key("space");
    QTRY_VERIFY(program->sees(place::lower_plot, blue) > 100);
    QTRY_COMPARE(program->sees(place::upper_plot, blue), 0);
    QTRY_COMPARE(program->sees(place::upper_plot, red), 0);
    keep_screenshot("throttle");
    const QImage drawn = program->look(place::lower_plot);
    press(place::to_start_button);
    press(place::forward_button);
    QCOMPARE(program->look(place::lower_plot), drawn);
}

void tst_characteristic_road::all_names_there_and_back_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("count");
    QTest::newRow("basins") << "Erlenbach.bek" << 5;
    QTest::newRow("throttles") << "Erlenbach.dkl" << 7;
}

void tst_characteristic_road::all_names_there_and_back()
{
    QFETCH(QString, name);
    QFETCH(int, count);
    read(name);
    QList<QImage> pictures{press(place::to_start_button)};
    for (int i = 1; i < count; ++i) {
        pictures.append(press(place::forward_button));
        QVERIFY(pictures[i] != pictures[i - 1]);
    }
    QCOMPARE(press(place::forward_button), pictures.last());
    QCOMPARE(press(place::to_end_button), pictures.last());
    for (int i = count - 2; i >= 0; --i)
        QCOMPARE(press(place::back_button), pictures[i]);
    QCOMPARE(press(place::back_button), pictures.first());
    QCOMPARE(press(place::to_end_button), pictures.last());
    QCOMPARE(press(place::to_start_button), pictures.first());
}

void tst_characteristic_road::change_of_file()
{
    add_by_typing({"Erlenbach_K1.wel", "Erlenbach.bek", "Erlenbach.dkl"});
    select_row(0);
    program->click(place::plot_button.center());
    QTRY_VERIFY(program->sees(place::upper_plot, red) > 50);
    for (const int row : {1, 2, 0, 2, 1}) {
        select_row(row);
        expect_empty_plots();
        QTRY_COMPARE(program->sees(place::names, Qt::black), 0);
        program->click(place::plot_button.center());
        if (row == 0)
            continue;
        QTRY_VERIFY(program->sees(place::names, Qt::black) > 20);
        press(place::to_end_button);
        QTRY_VERIFY(program->sees(place::lower_plot, blue) > 100);
        QTRY_COMPARE(program->sees(place::upper_plot, red) > 100, row == 1);
    }
    select_row(0);
    expect_empty_plots();
    QTRY_COMPARE(program->sees(place::names, Qt::black), 0);
    program->click(place::plot_button.center());
    QTRY_VERIFY(program->sees(place::upper_plot, blue) > 50);
}

void tst_characteristic_road::message_without_a_name()
{
    read("Erlenbach.dkl");
    program->click(place::name_button.center());
    QVERIFY(viewer::sees_window("Error"));
    keep_screenshot("message_without_a_name_box");
    program->key("Return");
    QVERIFY(viewer::sees_no_window("Error"));
    QTRY_VERIFY(program->sees(place::names, Qt::black) > 20);
}

QTEST_APPLESS_MAIN(tst_characteristic_road)
#include "tst_characteristic_road.moc"
