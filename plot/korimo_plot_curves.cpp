#include "plot/korimo_plot.h"

#include "plot/drawing/curve_table.h"
#include "plot/shown_text.h"

#include <qwt_plot_curve.h>

namespace {

constexpr double curve_width = 2.0;

// The list itself where all of it is wanted: a part of a list is a copy.
QList<double> tail(const QList<double>& values, qsizetype length)
{
    return length < values.size() ? values.last(length) : values;
}

void set_samples(QwtPlotCurve& curve, const curve_rule& rule, const series_store& series)
{
    const QList<double>& x = series[static_cast<std::size_t>(rule.x)];
    const QList<double>& y = series[static_cast<std::size_t>(rule.y)];
    curve.setSamples(x, rule.tail_of_y ? tail(y, x.size()) : y);
}

void set_axis_titles(QwtPlot& plot, const axis_titles& titles)
{
    if (titles.x)
        plot.setAxisTitle(QwtAxis::XBottom, QString::fromUtf16(titles.x));
    if (titles.y)
        plot.setAxisTitle(QwtAxis::YLeft, QString::fromUtf16(titles.y));
}

} // namespace

void korimo_plot::plot_the_curves(QwtPlot* my_plot, QwtPlot* my_plot_2)
{
    this->my_plot = my_plot;
    this->my_plot_2 = my_plot_2;
    if (plot_mode == -1) { // deliberate: "occured", and it draws on
        show_error(QStringLiteral("Error plotting curve"),
                   QStringLiteral("An Error occured and an invalid plot mode was triggered. "
                                  "Please check the selected WEL-Files formatting as well as its "
                                  "name!"));
    }
    draw_curves();
    finish();
}

// A curve that the mode does not use keeps what an earlier pass gave it.
void korimo_plot::draw_curves()
{
    const plot_mode_rule* const mode = plot_mode_rule_of(plot_mode);
    if (!mode)
        return;
    for (const curve_rule& rule : mode->curves)
        set_samples(*curve_of(rule), rule, series);
    for (const curve_rule& rule : mode->curves)
        attach(rule);
    for (const curve_rule& rule : mode->curves)
        curve_of(rule)->setPen(rule.colour, curve_width, Qt::SolidLine);
    for (const curve_rule& rule : mode->curves)
        set_title(rule, mode->lists_names);
    set_axis_titles(*my_plot, mode->lower);
    set_axis_titles(*my_plot_2, mode->upper);
}

QwtPlotCurve* korimo_plot::curve_of(const curve_rule& rule) const
{
    return curves[static_cast<std::size_t>(rule.curve)];
}

void korimo_plot::attach(const curve_rule& rule)
{
    QwtPlotCurve& curve = *curve_of(rule);
    if (rule.sets_axes)
        curve.setAxes(QwtAxis::XBottom, QwtAxis::YLeft);
    curve.attach(rule.place == plot_place::lower ? my_plot : my_plot_2);
}

void korimo_plot::set_title(const curve_rule& rule, bool listed)
{
    const QString title = rule.title ? QString::fromUtf16(rule.title) : wel_title;
    if (listed)
        curve_title[static_cast<std::size_t>(rule.curve)] = title;
    curve_of(rule)->setTitle(shown_text(title));
}
