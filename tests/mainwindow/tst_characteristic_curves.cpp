#include "plot/korimo_plot.h"
#include "tests/support/modal_answer.h"
#include "tests/support/modal_boxes.h"
#include "tests/support/named_curves.h"

#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_scale_div.h>
#include <qwt_text.h>

#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QTest>

namespace {

QStringList titles_of(const QwtPlot* plot)
{
    QStringList titles;
    const auto curves = curves_of(plot);
    for (const QwtPlotCurve* curve : curves)
        titles.append(curve->title().text());
    return titles;
}

QStringList axes_of(const QwtPlot* plot)
{
    return {plot->axisTitle(QwtAxis::XBottom).text(), plot->axisTitle(QwtAxis::YLeft).text()};
}

QList<QPointF> points_of(const QwtPlotCurve* curve)
{
    QList<QPointF> points;
    for (std::size_t i = 0; i < curve->dataSize(); ++i)
        points.append(curve->sample(static_cast<int>(i)));
    return points;
}

double top_of(const QwtPlot* plot)
{
    return plot->axisScaleDiv(QwtAxis::YRight).upperBound();
}

} // namespace

// The command that draws a curve named in the right-hand list.
class tst_characteristic_curves : public QObject
{
    Q_OBJECT

private slots:
    void basin_is_drawn();
    void throttle_is_drawn();
    void another_name_takes_its_place();
    void picked_by_keyboard();
    void nothing_selected_data();
    void nothing_selected();
    void more_than_one_selected();
    void after_a_hydrograph_data();
    void after_a_hydrograph();
    void before_and_after_a_hydrograph();
    void names_that_contain_each_other();
    void basin_in_two_blocks();
    void selected_name_counts();
    void box_shows_ok_only();
    void button_keeps_its_text();
    void kind_is_told_whatever_its_case();
    void file_of_no_kind();
    void basin_file_that_vanished();
    void throttle_file_that_vanished();
    void file_that_was_read_counts();
    void second_file_of_the_same_kind();
    void change_of_file_and_clear();
    void kept_range_does_not_outlive_a_name();
};

void tst_characteristic_curves::basin_is_drawn()
{
    window_driver driver;
    driver.open("x.bek", basin_table());
    driver.pick(1);
    QVERIFY(curves_of(driver.lower).isEmpty());
    driver.press(driver.plot_name);
    QCOMPARE(driver.button->text(), "Clear");
    QCOMPARE(driver.names->count(), 4);
    QCOMPARE(selected_row(driver), 1);
    QCOMPARE(titles_of(driver.lower), (QStringList{"Qg", "Qhw"}));
    QCOMPARE(titles_of(driver.upper), QStringList{"V"});
    QCOMPARE(points_of(curves_of(driver.lower).at(0)), (QList<QPointF>{{2, 101.5}, {9, 102}}));
    QCOMPARE(points_of(curves_of(driver.lower).at(1)), (QList<QPointF>{{0.5, 102}}));
    QCOMPARE(points_of(curves_of(driver.upper).at(0)), (QList<QPointF>{{0, 101.5}, {7.5, 102}}));
    QCOMPARE(axes_of(driver.lower), (QStringList{"Q [m3/s]", "h [m\u00fcNHN]"}));
    QCOMPARE(axes_of(driver.upper), (QStringList{"V [Tsd. m3]", "h [m\u00fcNHN]"}));
    QCOMPARE(driver.lower->title().text(), "");
    QCOMPARE(driver.window.shown_document()->plot_mode, 9);
}

void tst_characteristic_curves::throttle_is_drawn()
{
    window_driver driver;
    driver.open("x.dkl", throttle_curves());
    QCOMPARE(driver.names->item(2)->text(), "3.5_3_Auslass3");
    driver.pick(2);
    driver.press(driver.plot_name);
    QCOMPARE(driver.button->text(), "Clear");
    QCOMPARE(driver.names->count(), 4);
    QCOMPARE(titles_of(driver.lower), QStringList{"3.5_3_Auslass3"});
    QCOMPARE(points_of(curves_of(driver.lower).at(0)), (QList<QPointF>{{3, 101.5}, {9.5, 102}}));
    QVERIFY(curves_of(driver.upper).isEmpty());
    QCOMPARE(driver.lower->title().text(), "");
    QCOMPARE(axes_of(driver.lower), (QStringList{"Qd [m3/s]", "Wo [m\u00fcNHN]"}));
    QCOMPARE(axes_of(driver.upper), (QStringList{"", ""}));
    QCOMPARE(driver.window.shown_document()->plot_mode, 8);
}

void tst_characteristic_curves::another_name_takes_its_place()
{
    window_driver driver;
    driver.open("x.bek", basin_table());
    for (const int row : {3, 0, 3}) {
        driver.pick(row);
        const QPointer<korimo_plot> before = driver.window.shown_document();
        driver.press(driver.plot_name);
        QVERIFY(!before);
        QCOMPARE(drawn_number(driver), row + 1);
        QCOMPARE(curves_of(driver.lower).size(), 2);
        QCOMPARE(curves_of(driver.upper).size(), 1);
    }
}

void tst_characteristic_curves::picked_by_keyboard()
{
    window_driver driver;
    driver.open("x.dkl", throttle_curves());
    driver.names->setFocus();
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Down})
        QTest::keyClick(driver.names, key);
    driver.plot_name->setFocus();
    QTest::keyClick(driver.plot_name, Qt::Key_Space);
    QCOMPARE(drawn_number(driver), 3);
}

void tst_characteristic_curves::nothing_selected_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("basins") << "x.bek";
    QTest::newRow("throttles") << "x.dkl";
}

void tst_characteristic_curves::nothing_selected()
{
    QFETCH(QString, name);
    window_driver driver;
    driver.open(name, named_curves(name));
    const QPointer<korimo_plot> document = driver.window.shown_document();
    const modal_boxes boxes;
    driver.press(driver.plot_name);
    QCOMPARE(boxes.shown().size(), 1);
    QVERIFY(is_selection_error(boxes.shown()[0]));
    QCOMPARE(driver.window.shown_document(), document.data());
    QVERIFY(document);
    QCOMPARE(driver.names->count(), 4);
    QCOMPARE(driver.button->text(), "Clear");
}

// The list allows one selection only; this is what holds if a form should change that.
void tst_characteristic_curves::more_than_one_selected()
{
    window_driver driver;
    driver.open("x.bek", basin_table());
    driver.pick(0);
    driver.press(driver.plot_name);
    driver.names->setSelectionMode(QAbstractItemView::MultiSelection);
    driver.pick(2);
    QCOMPARE(driver.names->selectedItems().size(), 2);
    const modal_boxes boxes;
    driver.press(driver.plot_name);
    QCOMPARE(boxes.shown().size(), 1);
    QVERIFY(is_selection_error(boxes.shown()[0]));
    QCOMPARE(drawn_number(driver), 1);
}

void tst_characteristic_curves::after_a_hydrograph_data()
{
    nothing_selected_data();
}

void tst_characteristic_curves::after_a_hydrograph()
{
    QFETCH(QString, name);
    window_driver driver;
    driver.open(name, named_curves(name));
    driver.open("x_K.wel", node_file(9));
    QCOMPARE(driver.names->count(), 0);
    const modal_boxes boxes;
    driver.press(driver.plot_name);
    QCOMPARE(boxes.shown().size(), 1);
    QVERIFY(is_selection_error(boxes.shown()[0]));
    QCOMPARE(titles_of(driver.lower), (QStringList{"Qb", "Qges"}));
}

void tst_characteristic_curves::before_and_after_a_hydrograph()
{
    window_driver driver;
    for (const char* name : {"x.dkl", "y.bek", "z.dkl"}) {
        driver.open("x_K.wel", node_file(9));
        QCOMPARE(titles_of(driver.lower), (QStringList{"Qb", "Qges"}));
        driver.open(name, named_curves(name));
        driver.pick(2);
        driver.press(driver.plot_name);
        QCOMPARE(drawn_number(driver), 3);
        QCOMPARE(driver.lower->title().text(), "");
    }
}

// The blanks of a name tell it from a longer one.
void tst_characteristic_curves::names_that_contain_each_other()
{
    window_driver driver;
    driver.open("x.bek", basin_table().replace("B2   ", "B10  "));
    driver.pick(0);
    driver.press(driver.plot_name);
    QCOMPARE(points_of(curves_of(driver.lower).at(0)), (QList<QPointF>{{1, 101.5}, {9, 102}}));
}

// It is listed for each block, and either entry draws all of it.
void tst_characteristic_curves::basin_in_two_blocks()
{
    window_driver driver;
    driver.open("x.bek", basin_table().replace("B4   ", "B1   "));
    QCOMPARE(driver.names->count(), 4);
    QCOMPARE(driver.names->item(3)->text(), "B1   ");
    for (const int row : {0, 3}) {
        driver.pick(row);
        driver.press(driver.plot_name);
        QCOMPARE(points_of(curves_of(driver.lower).at(0)),
                 (QList<QPointF>{{1, 101.5}, {9, 102}, {4, 101.5}, {9, 102}}));
    }
}

void tst_characteristic_curves::selected_name_counts()
{
    window_driver driver;
    driver.open("x.bek", basin_table());
    driver.pick(0);
    driver.names->setCurrentRow(2, QItemSelectionModel::NoUpdate);
    driver.press(driver.plot_name);
    QCOMPARE(drawn_number(driver), 1);
}

void tst_characteristic_curves::box_shows_ok_only()
{
    window_driver driver;
    shared_box()->setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    const modal_boxes boxes;
    driver.press(driver.plot_name);
    QCOMPARE(boxes.shown().size(), 1);
    QVERIFY(is_selection_error(boxes.shown()[0]));
}

void tst_characteristic_curves::button_keeps_its_text()
{
    window_driver driver;
    driver.open("x.bek", basin_table());
    driver.button->setText("as it was");
    driver.pick(0);
    driver.press(driver.plot_name);
    QCOMPARE(driver.button->text(), "as it was");
}

void tst_characteristic_curves::kind_is_told_whatever_its_case()
{
    for (const char* name : {"x.BEK", "xbek", "x.Dkl"}) {
        window_driver driver;
        driver.open(name, named_curves(QString(name).toLower()));
        driver.press(navigation_button(driver, ">|"));
        QCOMPARE(drawn_number(driver), 4);
    }
}

// A name can be in the list without a file of names only if it was put there by other means.
void tst_characteristic_curves::file_of_no_kind()
{
    window_driver driver;
    driver.open("x.txt", basin_table());
    QCOMPARE(driver.names->count(), 0);
    driver.names->addItem("B1   ");
    driver.pick(0);
    const QPointer<korimo_plot> before = driver.window.shown_document();
    const modal_boxes boxes;
    driver.press(driver.plot_name);
    QVERIFY(!before);
    QCOMPARE(boxes.shown().size(), 1);
    QCOMPARE(boxes.shown()[0].title, "Error plotting curve");
    QVERIFY(driver.lower->legend()); // finished, without curves
    QVERIFY(curves_of(driver.lower).isEmpty());
}

void tst_characteristic_curves::basin_file_that_vanished()
{
    window_driver driver;
    const QString path = driver.open("x.bek", basin_table());
    QVERIFY(QFile::remove(path));
    driver.pick(0);
    const modal_boxes boxes;
    driver.press(driver.plot_name);
    QVERIFY(boxes.shown().isEmpty());
    QCOMPARE(titles_of(driver.lower), (QStringList{"Qg", "Qhw"}));
    QCOMPARE(drawn_number(driver), 0);
}

// The lower plot, and it alone, is redrawn before the file is read.
void tst_characteristic_curves::throttle_file_that_vanished()
{
    window_driver driver;
    const QString path = driver.open("x.dkl", throttle_curves());
    driver.pick(0);
    driver.press(driver.plot_name);
    QVERIFY(QFile::remove(path));
    QCoreApplication::processEvents();
    for (QwtPlot* plot : {driver.lower, driver.upper})
        plot->setAxisScale(QwtAxis::YRight, 100, 200); // takes effect with the next redraw
    QString text;
    bool empty = false;
    QList<double> tops;
    const modal_answer<QMessageBox> user([&](QMessageBox& box) {
        text = box.text();
        empty = curves_of(driver.lower).isEmpty();
        tops = {top_of(driver.lower), top_of(driver.upper)};
        QTest::keyClick(&box, Qt::Key_Return);
    });
    driver.press(driver.plot_name);
    QCOMPARE(user.count(), 1);
    QCOMPARE(text, "Could not open or read file");
    QVERIFY(empty);
    QCOMPARE(tops[0], 200.0);
    QVERIFY(tops[1] != 200.0);
    QCOMPARE(titles_of(driver.lower), QStringList{""});
    QCOMPARE(drawn_number(driver), 0);
}

// The names come from the file at "Read", and so do the curves, whatever row is current later.
void tst_characteristic_curves::file_that_was_read_counts()
{
    window_driver driver;
    driver.open("x.bek", basin_table());
    driver.add("y.dkl", throttle_curves());
    driver.list->setCurrentRow(1, QItemSelectionModel::NoUpdate);
    QCOMPARE(driver.names->count(), 4);
    driver.pick(2);
    driver.press(driver.plot_name);
    QCOMPARE(driver.window.shown_document()->plot_mode, 9);
    QCOMPARE(drawn_number(driver), 3);
}

void tst_characteristic_curves::second_file_of_the_same_kind()
{
    window_driver driver;
    driver.open("x.bek", basin_table());
    driver.open("y.bek", basin_table().replace("2.00  ", "7.00  "));
    driver.pick(1);
    driver.press(driver.plot_name);
    QCOMPARE(drawn_number(driver), 7);
}

void tst_characteristic_curves::change_of_file_and_clear()
{
    window_driver driver;
    driver.open("x.bek", basin_table());
    driver.press(navigation_button(driver, ">|"));
    driver.open("y.dkl", throttle_curves());
    QCOMPARE(driver.names->count(), 4);
    QVERIFY(curves_of(driver.lower).isEmpty());
    QCOMPARE(axes_of(driver.lower), (QStringList{"", ""}));
    QCOMPARE(axes_of(driver.upper), (QStringList{"", ""}));
    driver.press(navigation_button(driver, ">"));
    QCOMPARE(driver.window.shown_document()->plot_mode, 8);
    driver.press(driver.button);
    QCOMPARE(driver.button->text(), "Read");
    QCOMPARE(driver.names->count(), 0);
    QVERIFY(!driver.window.shown_document());
    QVERIFY(driver.lower->itemList().isEmpty() && driver.upper->itemList().isEmpty());
    driver.press(driver.button);
    driver.press(navigation_button(driver, ">|"));
    QCOMPARE(drawn_number(driver), 4);
}

// "Read" applies a kept range, but drawing a name scales all axes to the curve.
void tst_characteristic_curves::kept_range_does_not_outlive_a_name()
{
    window_driver driver;
    driver.open("x_K.wel", node_file(9));
    driver.window.shown_document()->set_y_axis_scale(driver.lower, {5, 50});
    driver.lower->replot();
    driver.open("x.bek", basin_table());
    QCOMPARE(driver.lower->axisInterval(QwtAxis::YLeft), QwtInterval(5, 50));
    driver.press(navigation_button(driver, ">"));
    QCOMPARE(driver.lower->axisInterval(QwtAxis::YLeft), QwtInterval(101.5, 102));
}

QTEST_MAIN(tst_characteristic_curves)
#include "tst_characteristic_curves.moc"
