#include "plot/korimo_plot.h"

#include <qwt_scale_div.h>

namespace {

QList<double> bounds(const QwtPlot& plot, QwtAxisId axis)
{
    const QwtScaleDiv& scale = plot.axisScaleDiv(axis);
    return {scale.lowerBound(), scale.upperBound()};
}

// Step 0 leaves the ticks to the plot. Whoever asks for the range redraws.
void fix_range(QwtPlot& plot, QwtAxisId axis, const QList<double>& min_max)
{
    plot.setAxisScale(axis, min_max[0], min_max[1], 0);
}

} // namespace

QList<double> korimo_plot::get_y_axis_scale(QwtPlot* plot)
{
    return bounds(*plot, QwtAxis::YLeft);
}

QList<double> korimo_plot::get_x_axis_scale(QwtPlot* plot, QString axis_name)
{
    if (axis_name == u"bottom")
        return bounds(*plot, QwtAxis::XBottom);
    if (axis_name == u"top")
        return bounds(*plot, QwtAxis::XTop);
    return {0.0, 0.0};
}

// Deliberate: the left axes of both plots set the one flag, and none sets `y_top_status`.
void korimo_plot::set_y_axis_scale(QwtPlot* plot, QList<double> min_max)
{
    if (min_max.size() < 2)
        return;
    fix_range(*plot, QwtAxis::YLeft, min_max);
    y_bottom_status = true;
}

void korimo_plot::set_x_axis_scale(QwtPlot* plot, QList<double> min_max, QString axis_name)
{
    if (min_max.size() < 2)
        return;
    if (axis_name == u"bottom") {
        fix_range(*plot, QwtAxis::XBottom, min_max);
        x_bottom_status = true;
    } else if (axis_name == u"top") {
        fix_range(*plot, QwtAxis::XTop, min_max);
        x_top_status = true;
    }
}

bool korimo_plot::get_x_bottom_status()
{
    return x_bottom_status;
}

bool korimo_plot::get_x_top_status()
{
    return x_top_status;
}

bool korimo_plot::get_y_bottom_status()
{
    return y_bottom_status;
}

bool korimo_plot::get_y_top_status()
{
    return y_top_status;
}
