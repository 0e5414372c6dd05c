#include "plot/korimo_plot.h"

#include <qwt_interval.h>
#include <qwt_plot_grid.h>
#include <qwt_scale_engine.h>
#include <qwt_scale_widget.h>

#include <initializer_list>

namespace {

// A floating scale ends at the data instead of at the next tick.
void float_scales(QwtPlot& plot, std::initializer_list<QwtAxisId> axes)
{
    for (const QwtAxisId axis : axes)
        plot.axisScaleEngine(axis)->setAttribute(QwtScaleEngine::Floating, true);
}

void autoscale(QwtPlot& plot, std::initializer_list<QwtAxisId> axes)
{
    for (const QwtAxisId axis : axes)
        plot.setAxisAutoScale(axis, true);
    plot.updateAxes();
    plot.updateLegend();
}

void show_grid(QwtPlotGrid& grid, QwtPlot& plot)
{
    grid.enableX(true);
    grid.enableXMin(true);
    grid.setMinorPen(Qt::gray, 0.5, Qt::SolidLine);
    grid.enableY(true);
    grid.enableYMin(true);
    grid.attach(&plot);
    plot.replot();
}

} // namespace

void korimo_plot::finish()
{
    list_curve_names();
    insert_legends();
    float_scales(*my_plot, {QwtAxis::YLeft, QwtAxis::XBottom, QwtAxis::XTop});
    float_scales(*my_plot_2, {QwtAxis::YLeft, QwtAxis::XBottom});
    autoscale(*my_plot, {QwtAxis::YLeft, QwtAxis::XBottom, QwtAxis::XTop});
    show_grid(*grid_lower, *my_plot);
    autoscale(*my_plot_2, {QwtAxis::XBottom, QwtAxis::YLeft});
    show_grid(*grid_upper, *my_plot_2);
    set_up_zoom();
    couple_x_axes();
    set_up_panning();
}

// Deliberate: the list is not cleared first, so it gathers the names of all passes.
void korimo_plot::list_curve_names()
{
    for (const QString& title : curve_title) {
        if (title != u"Nothing")
            curve_names.append(title);
    }
}

void korimo_plot::insert_legends()
{
    legend_lower->setWindowTitle(QStringLiteral("Lgende")); // deliberately without its first "e"
    legend_upper->setWindowTitle(QStringLiteral("Legende"));
    my_plot->insertLegend(legend_lower, QwtPlot::RightLegend, -1.0);
    my_plot_2->insertLegend(legend_upper, QwtPlot::RightLegend, -1.0);
}

// The plain wheel zooms time only, the wheel with Shift values only.
void korimo_plot::set_up_zoom()
{
    magnifier_a->setAxisEnabled(QwtAxis::YLeft, false);
    magnifier_a->setMouseButton(Qt::RightButton, Qt::AltModifier);
    magnifier_b->setAxisEnabled(QwtAxis::XBottom, false);
    magnifier_b->setAxisEnabled(QwtAxis::XTop, false);
    magnifier_b->setWheelModifiers(Qt::ShiftModifier);
    magnifier_b->setMouseButton(Qt::RightButton, Qt::AltModifier);
}

// Deliberate: each pass connects once more; the slot gives the same result however often it runs.
void korimo_plot::couple_x_axes()
{
    connect(my_plot->axisWidget(QwtAxis::XBottom), SIGNAL(scaleDivChanged()), this,
            SLOT(scaleDivChangedSlot()));
    connect(my_plot->axisWidget(QwtAxis::YLeft), SIGNAL(scaleDivChanged()), this,
            SLOT(scaleDivChangedSlot()));
}

// Only the time axis is coupled, and only from the lower plot to the upper one.
void korimo_plot::scaleDivChangedSlot()
{
    if (!my_plot || !my_plot_2)
        return;
    if (sender() == my_plot->axisWidget(QwtAxis::XBottom)) {
        last_scaled_plot = 1;
        const QwtInterval time = my_plot->axisInterval(QwtAxis::XBottom);
        my_plot_2->setAxisScale(QwtAxis::XBottom, time.minValue(), time.maxValue(), 0);
    } else {
        last_scaled_plot = 2;
    }
    my_plot_2->replot();
}

void korimo_plot::set_up_panning()
{
    panner->setAxisEnabled(QwtAxis::YLeft, true);
    panner->setAxisEnabled(QwtAxis::XBottom, true);
    panner->setMouseButton(Qt::RightButton, Qt::NoModifier);
}
