#include "tests/support/modal_boxes.h"
#include "tests/support/plot_pair.h"

#include <qwt_interval.h>
#include <qwt_plot_grid.h>
#include <qwt_scale_engine.h>
#include <qwt_scale_widget.h>

#include <QPen>
#include <QTest>
#include <QWheelEvent>

#include <algorithm>

namespace {

QwtInterval range(const QwtPlot& plot, QwtAxisId axis)
{
    return plot.axisInterval(axis);
}

QList<double> hour_marks(const QwtPlot& plot)
{
    return plot.axisScaleDiv(QwtAxis::XBottom).ticks(QwtScaleDiv::MajorTick);
}

bool floats(const QwtPlot& plot, QwtAxisId axis)
{
    return plot.axisScaleEngine(axis)->testAttribute(QwtScaleEngine::Floating);
}

// A pair of shown plots with the hydrograph of a gauge, from 0 to 72 h.
struct drawn_gauge : plot_pair
{
    drawn_gauge()
    {
        for (int hour = 0; hour <= 72; ++hour) {
            document->series[0].append(hour);
            document->series[8].append(1.3 + (hour % 10));
            document->series[12].append(2.5 + (hour % 7));
            document->series[2].append(hour % 3);
            document->series[4].append(hour % 2);
        }
        document->plot_mode = 0;
        lower->resize(681, 381);
        upper->resize(681, 200);
        plot();
        lower->show();
        upper->show();
    }
};

void turn_wheel(QWidget& widget, Qt::KeyboardModifiers modifiers)
{
    const QPointF middle = widget.rect().center();
    QWheelEvent event(middle, widget.mapToGlobal(middle), QPoint(), QPoint(0, 120), Qt::NoButton,
                      modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

void drag_right(QWidget& widget, const QPoint& by, Qt::KeyboardModifiers modifiers)
{
    const QPoint from = widget.rect().center();
    QTest::mousePress(&widget, Qt::RightButton, modifiers, from);
    QMouseEvent move(QEvent::MouseMove, from + by, widget.mapToGlobal(from + by), Qt::NoButton,
                     Qt::RightButton, modifiers);
    QApplication::sendEvent(&widget, &move);
    QTest::mouseRelease(&widget, Qt::RightButton, modifiers, from + by);
}

} // namespace

class tst_plot_pair : public QObject
{
    Q_OBJECT

private slots:
    void every_mode_is_finished_data();
    void every_mode_is_finished();
    void wheel_zooms_time_only();
    void wheel_with_shift_zooms_values_only();
    void right_button_pans();
    void right_button_with_alt_zooms();
    void upper_plot_has_no_mouse_tools();
    void coupling_of_the_time_axes();
    void upper_plot_is_redrawn_with_the_lower_values();
    void second_pass_of_the_same_document();
    void each_pass_draws_both_plots_anew();

private:
    void check_legends_and_scales(const plot_pair& plots);
    void check_grids(const plot_pair& plots);
    void check_mouse_tools(const korimo_plot& document);
};

void tst_plot_pair::every_mode_is_finished_data()
{
    QTest::addColumn<int>("mode");
    for (int mode = -1; mode <= 20; ++mode)
        QTest::addRow("%d", mode) << mode;
}

void tst_plot_pair::every_mode_is_finished()
{
    QFETCH(int, mode);
    const plot_pair plots;
    const modal_boxes boxes;
    plots.document->plot_mode = mode;
    for (const QwtAxisId axis : {QwtAxis::YLeft, QwtAxis::XBottom, QwtAxis::XTop}) {
        plots.lower->setAxisAutoScale(axis, false);
        plots.upper->setAxisAutoScale(axis, false);
    }
    plots.plot();
    QCOMPARE(boxes.shown().size(), mode == -1 ? 1 : 0);
    check_legends_and_scales(plots);
    check_grids(plots);
    check_mouse_tools(*plots.document);
    plots.lower->setAxisScale(QwtAxis::XBottom, 10, 20);
    plots.lower->replot();
    QCOMPARE(range(*plots.upper, QwtAxis::XBottom), QwtInterval(10, 20));
}

void tst_plot_pair::check_legends_and_scales(const plot_pair& plots)
{
    const korimo_plot& document = *plots.document;
    QCOMPARE(document.legend_lower->windowTitle(), "Lgende");
    QCOMPARE(document.legend_upper->windowTitle(), "Legende");
    QCOMPARE(plots.lower->legend(), document.legend_lower);
    QCOMPARE(plots.upper->legend(), document.legend_upper);

    for (const QwtAxisId axis : {QwtAxis::YLeft, QwtAxis::XBottom, QwtAxis::XTop}) {
        QVERIFY(plots.lower->axisAutoScale(axis));
        QVERIFY(floats(*plots.lower, axis));
    }
    QVERIFY(!floats(*plots.lower, QwtAxis::YRight));
    for (const QwtAxisId axis : {QwtAxis::YLeft, QwtAxis::XBottom}) {
        QVERIFY(plots.upper->axisAutoScale(axis));
        QVERIFY(floats(*plots.upper, axis));
    }
    QVERIFY(!plots.upper->axisAutoScale(QwtAxis::XTop));
    QVERIFY(!floats(*plots.upper, QwtAxis::XTop));
}

void tst_plot_pair::check_grids(const plot_pair& plots)
{
    const korimo_plot& document = *plots.document;
    const QPen default_major = QwtPlotGrid().majorPen();
    const std::pair<QwtPlotGrid*, QwtPlot*> grids[] = {{document.grid_lower, plots.lower.get()},
                                                       {document.grid_upper, plots.upper.get()}};
    for (const auto& [grid, plot] : grids) {
        QCOMPARE(grid->plot(), plot);
        QVERIFY(grid->xEnabled() && grid->xMinEnabled() && grid->yEnabled() && grid->yMinEnabled());
        QCOMPARE(grid->minorPen(), QPen(QColor(Qt::gray), 0.5, Qt::SolidLine));
        QCOMPARE(grid->majorPen(), default_major);
    }
}

void tst_plot_pair::check_mouse_tools(const korimo_plot& document)
{
    QVERIFY(!document.magnifier_a->isAxisEnabled(QwtAxis::YLeft));
    for (const QwtAxisId axis : {QwtAxis::YRight, QwtAxis::XBottom, QwtAxis::XTop})
        QVERIFY(document.magnifier_a->isAxisEnabled(axis));
    for (const QwtAxisId axis : {QwtAxis::XBottom, QwtAxis::XTop})
        QVERIFY(!document.magnifier_b->isAxisEnabled(axis));
    for (const QwtAxisId axis : {QwtAxis::YLeft, QwtAxis::YRight})
        QVERIFY(document.magnifier_b->isAxisEnabled(axis));
    QCOMPARE(document.magnifier_a->wheelModifiers(), Qt::NoModifier);
    QCOMPARE(document.magnifier_b->wheelModifiers(), Qt::ShiftModifier);
    for (const QwtPlotMagnifier* magnifier :
         {document.magnifier_a.get(), document.magnifier_b.get()}) {
        Qt::MouseButton button = Qt::NoButton;
        Qt::KeyboardModifiers modifiers;
        magnifier->getMouseButton(button, modifiers);
        QCOMPARE(button, Qt::RightButton);
        QCOMPARE(modifiers, Qt::AltModifier);
    }
    Qt::MouseButton button = Qt::NoButton;
    Qt::KeyboardModifiers modifiers = Qt::AltModifier;
    document.panner->getMouseButton(button, modifiers);
    QCOMPARE(button, Qt::RightButton);
    QCOMPARE(modifiers, Qt::NoModifier);
    for (const QwtAxisId axis : {QwtAxis::YLeft, QwtAxis::YRight, QwtAxis::XBottom, QwtAxis::XTop})
        QVERIFY(document.panner->isAxisEnabled(axis));
}

void tst_plot_pair::wheel_zooms_time_only()
{
    const drawn_gauge plots;
    const QwtInterval y = range(*plots.lower, QwtAxis::YLeft);
    QCOMPARE(range(*plots.lower, QwtAxis::XBottom), QwtInterval(0, 72));
    turn_wheel(*plots.lower->canvas(), Qt::NoModifier);
    QVERIFY(range(*plots.lower, QwtAxis::XBottom).width() != 72);
    QCOMPARE(range(*plots.lower, QwtAxis::YLeft), y);
    QCOMPARE(range(*plots.upper, QwtAxis::XBottom), range(*plots.lower, QwtAxis::XBottom));
}

void tst_plot_pair::wheel_with_shift_zooms_values_only()
{
    const drawn_gauge plots;
    const QwtInterval lower_y = range(*plots.lower, QwtAxis::YLeft);
    const QwtInterval upper_y = range(*plots.upper, QwtAxis::YLeft);
    turn_wheel(*plots.lower->canvas(), Qt::ShiftModifier);
    QVERIFY(range(*plots.lower, QwtAxis::YLeft) != lower_y);
    QCOMPARE(range(*plots.lower, QwtAxis::XBottom), QwtInterval(0, 72));
    QCOMPARE(range(*plots.upper, QwtAxis::YLeft), upper_y);
    QCOMPARE(plots.document->last_scaled_plot, 2);
}

void tst_plot_pair::right_button_pans()
{
    const drawn_gauge plots;
    const QwtInterval y = range(*plots.lower, QwtAxis::YLeft);
    drag_right(*plots.lower->canvas(), {100, 40}, Qt::NoModifier);
    const QwtInterval panned = range(*plots.lower, QwtAxis::XBottom);
    QVERIFY(panned.minValue() < -1);
    QVERIFY(qAbs(panned.width() - 72) < 1e-6);
    QVERIFY(range(*plots.lower, QwtAxis::YLeft).minValue() > y.minValue());
    QCOMPARE(range(*plots.upper, QwtAxis::XBottom), panned);
}

void tst_plot_pair::right_button_with_alt_zooms()
{
    const drawn_gauge plots;
    const QwtInterval y = range(*plots.lower, QwtAxis::YLeft);
    drag_right(*plots.lower->canvas(), {0, 30}, Qt::AltModifier);
    QVERIFY(range(*plots.lower, QwtAxis::XBottom).width() != 72);
    QVERIFY(range(*plots.lower, QwtAxis::YLeft).width() != y.width());
}

void tst_plot_pair::upper_plot_has_no_mouse_tools()
{
    const drawn_gauge plots;
    const QwtInterval x = range(*plots.upper, QwtAxis::XBottom);
    const QwtInterval y = range(*plots.upper, QwtAxis::YLeft);
    turn_wheel(*plots.upper->canvas(), Qt::NoModifier);
    turn_wheel(*plots.upper->canvas(), Qt::ShiftModifier);
    drag_right(*plots.upper->canvas(), {100, 40}, Qt::NoModifier);
    QCOMPARE(range(*plots.upper, QwtAxis::XBottom), x);
    QCOMPARE(range(*plots.upper, QwtAxis::YLeft), y);
}

void tst_plot_pair::coupling_of_the_time_axes()
{
    const drawn_gauge plots;
    plots.lower->setAxisScale(QwtAxis::YLeft, -3, 4);
    plots.lower->replot();
    QCOMPARE(plots.document->last_scaled_plot, 2);
    plots.lower->setAxisScale(QwtAxis::XBottom, 10, 20);
    plots.lower->replot();
    QCOMPARE(plots.document->last_scaled_plot, 1);
    QCOMPARE(range(*plots.upper, QwtAxis::XBottom), QwtInterval(10, 20));
    QVERIFY(!plots.upper->axisAutoScale(QwtAxis::XBottom));
    QCOMPARE(hour_marks(*plots.upper), hour_marks(*plots.lower));
    plots.upper->setAxisScale(QwtAxis::XBottom, 30, 40);
    plots.upper->replot();
    QCOMPARE(range(*plots.lower, QwtAxis::XBottom), QwtInterval(10, 20));
}

void tst_plot_pair::upper_plot_is_redrawn_with_the_lower_values()
{
    const drawn_gauge plots;
    plots.upper->setAxisScale(QwtAxis::YLeft, 1, 2);
    plots.lower->setAxisScale(QwtAxis::YLeft, -3, 4);
    plots.lower->replot();
    QCOMPARE(range(*plots.upper, QwtAxis::YLeft), QwtInterval(1, 2));
}

void tst_plot_pair::second_pass_of_the_same_document()
{
    const drawn_gauge plots;
    const qsizetype items = plots.lower->itemList().size();
    plots.plot();
    QCOMPARE(plots.lower->itemList().size(), items);
    QCOMPARE(plots.document->get_curve_names().size(), 8);
    plots.lower->setAxisScale(QwtAxis::XBottom, 10, 20);
    plots.lower->replot();
    QCOMPARE(range(*plots.upper, QwtAxis::XBottom), QwtInterval(10, 20));
}

// Other values between the same highest and lowest ones, so that no axis changes.
void tst_plot_pair::each_pass_draws_both_plots_anew()
{
    const drawn_gauge plots;
    const QImage lower = plots.lower->grab().toImage();
    const QImage upper = plots.upper->grab().toImage();
    for (const int column : {2, 12})
        std::ranges::reverse(plots.document->series[static_cast<std::size_t>(column)]);
    plots.plot();
    QVERIFY(plots.lower->grab().toImage() != lower);
    QVERIFY(plots.upper->grab().toImage() != upper);
}

QTEST_MAIN(tst_plot_pair)
#include "tst_plot_pair.moc"
