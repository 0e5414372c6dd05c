#include "plot/korimo_plot.h"
#include "tests/support/window_driver.h"

#include <qwt_interval.h>
#include <qwt_plot.h>

#include <QListWidget>
#include <QPushButton>
#include <QTest>

namespace {

QwtInterval range(const QwtPlot* plot, QwtAxisId axis)
{
    return plot->axisInterval(axis);
}

// Fixes axes of the plots shown, the way the axis commands do it.
void fix(const window_driver& driver, const QString& axis)
{
    korimo_plot& document = *driver.window.shown_document();
    if (axis == "lower x")
        document.set_x_axis_scale(driver.lower, {5, 50}, "bottom");
    else if (axis == "lower second x")
        document.set_x_axis_scale(driver.lower, {5, 50}, "top");
    else if (axis == "upper second x")
        document.set_x_axis_scale(driver.upper, {5, 50}, "top");
    else if (axis == "upper x")
        document.set_x_axis_scale(driver.upper, {5, 50}, "bottom");
    else if (axis == "lower y")
        document.set_y_axis_scale(driver.lower, {5, 50});
    else if (axis == "upper y")
        document.set_y_axis_scale(driver.upper, {5, 50});
    else if (axis == "status of the upper y, which no command sets")
        document.y_top_status = true;
    driver.lower->replot();
    driver.upper->replot();
}

QwtInterval fixed()
{
    return {5, 50};
}

QwtInterval time_of_file()
{
    return {0, 72};
}

QwtInterval flow_of_file()
{
    return {1, 90};
}

QwtInterval rain_of_file()
{
    return {0, 5};
}

} // namespace

// What becomes of the ranges that the user fixed, on a change of file and on "Clear".
class tst_fixed_ranges : public QObject
{
    Q_OBJECT

private slots:
    void ranges_that_nobody_fixed_are_forgotten();
    void fixed_range_survives_a_change_of_file_data();
    void fixed_range_survives_a_change_of_file();
    void fixed_range_outlives_two_changes();
    void fixed_range_is_shown_on_the_empty_plot();
    void clear_forgets_fixed_ranges();
};

void tst_fixed_ranges::ranges_that_nobody_fixed_are_forgotten()
{
    window_driver driver;
    driver.add("a_K.wel", node_file(9));
    driver.add("b_K.wel", node_file(90));
    driver.select(0);
    driver.press(driver.button);
    driver.lower->setAxisScale(QwtAxis::XBottom, 10, 20); // as the mouse does it
    driver.lower->replot();
    driver.select(1);
    driver.press(driver.button);
    QCOMPARE(range(driver.lower, QwtAxis::XBottom), QwtInterval(0, 72));
    QCOMPARE(range(driver.lower, QwtAxis::YLeft), QwtInterval(1, 90));
}

void tst_fixed_ranges::fixed_range_survives_a_change_of_file_data()
{
    QTest::addColumn<QwtInterval>("lower_x");
    QTest::addColumn<QwtInterval>("upper_x");
    QTest::addColumn<QwtInterval>("lower_y");
    QTest::addColumn<QwtInterval>("upper_y");
    // The lower time axis takes the upper one along.
    QTest::newRow("lower x") << fixed() << fixed() << flow_of_file() << rain_of_file();
    QTest::newRow("lower y") << time_of_file() << time_of_file() << fixed() << rain_of_file();
    // What is kept is the lower y range, whichever plot's y axis was fixed.
    QTest::newRow("upper y") << time_of_file() << time_of_file() << QwtInterval(1, 9)
                             << rain_of_file();
    // What is kept is the lower y range, and it is given to the upper plot.
    QTest::newRow("status of the upper y, which no command sets")
        << time_of_file() << time_of_file() << flow_of_file() << QwtInterval(1, 9);
    // What is kept is the lower x range, whichever plot's x axis was fixed.
    QTest::newRow("upper x") << time_of_file() << time_of_file() << flow_of_file()
                             << rain_of_file();
    // What is kept is the upper plot's top range, and it is given to its bottom axis.
    QTest::newRow("upper second x")
        << time_of_file() << fixed() << flow_of_file() << rain_of_file();
    QTest::newRow("lower second x")
        << time_of_file() << QwtInterval(0, 1000) << flow_of_file() << rain_of_file();
}

void tst_fixed_ranges::fixed_range_survives_a_change_of_file()
{
    QFETCH(QwtInterval, lower_x);
    QFETCH(QwtInterval, upper_x);
    QFETCH(QwtInterval, lower_y);
    QFETCH(QwtInterval, upper_y);
    window_driver driver;
    driver.add("a_K.wel", node_file(9));
    driver.add("b_K.wel", node_file(90));
    driver.select(0);
    driver.press(driver.button);
    fix(driver, QTest::currentDataTag());
    driver.select(1);
    QVERIFY(!driver.window.shown_document());
    driver.press(driver.button);
    QCOMPARE(range(driver.lower, QwtAxis::XBottom), lower_x);
    QCOMPARE(range(driver.upper, QwtAxis::XBottom), upper_x);
    QCOMPARE(range(driver.lower, QwtAxis::YLeft), lower_y);
    QCOMPARE(range(driver.upper, QwtAxis::YLeft), upper_y);
    for (QwtPlot* const plot : {driver.lower, driver.upper}) {
        for (const QwtAxisId axis : {QwtAxis::XBottom, QwtAxis::YLeft})
            QCOMPARE(plot->axisStepSize(axis), 0.0);
    }
}

// The new document has no fixed axes of its own; the ranges kept from earlier stay kept.
void tst_fixed_ranges::fixed_range_outlives_two_changes()
{
    window_driver driver;
    driver.add("a_K.wel", node_file(9));
    driver.add("b_K.wel", node_file(90));
    driver.select(0);
    driver.press(driver.button);
    fix(driver, "lower x");
    for (const int row : {1, 0, 1}) {
        driver.select(row);
        driver.press(driver.button);
        QCOMPARE(range(driver.lower, QwtAxis::XBottom), fixed());
    }
}

void tst_fixed_ranges::fixed_range_is_shown_on_the_empty_plot()
{
    window_driver driver;
    driver.add("a_K.wel", node_file(9));
    driver.add("b_K.wel", node_file(90));
    driver.select(0);
    driver.press(driver.button);
    fix(driver, "lower y");
    driver.select(1);
    QCOMPARE(range(driver.lower, QwtAxis::YLeft), fixed());
    driver.select(0); // no document: the ranges are forgotten
    driver.press(driver.button);
    QCOMPARE(range(driver.lower, QwtAxis::YLeft), QwtInterval(1, 9));
    fix(driver, "upper second x");
    driver.select(1);
    QCOMPARE(range(driver.upper, QwtAxis::XBottom), fixed());
}

void tst_fixed_ranges::clear_forgets_fixed_ranges()
{
    window_driver driver;
    driver.add("a_K.wel", node_file(9));
    driver.select(0);
    driver.press(driver.button);
    fix(driver, "lower x");
    fix(driver, "lower y");
    driver.press(driver.button);
    driver.press(driver.button);
    QCOMPARE(range(driver.lower, QwtAxis::XBottom), time_of_file());
    QCOMPARE(range(driver.lower, QwtAxis::YLeft), QwtInterval(1, 9));
}

QTEST_MAIN(tst_fixed_ranges)
#include "tst_fixed_ranges.moc"
