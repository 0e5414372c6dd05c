#include "plot/korimo_plot.h"

#include "plot/drawing/long_curve.h"
#include "plot/drawing/owned_item.h"
#include "plot/shown_text.h"

#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>

#include <algorithm>

korimo_plot::korimo_plot(QwtPlot* plot, QwtPlot* /*plot_2*/)
{
    curve_title.fill(QStringLiteral("Nothing"));
    legend_lower = new QwtLegend;
    legend_upper = new QwtLegend;
    for (QwtPlotCurve*& curve : curves)
        new owned_item<long_curve, QwtPlotCurve>(curve);
    new owned_item<QwtPlotGrid>(grid_lower);
    new owned_item<QwtPlotGrid>(grid_upper);
    magnifier_a = new QwtPlotMagnifier(plot->canvas());
    magnifier_b = new QwtPlotMagnifier(plot->canvas());
    panner = new QwtPlotPanner(plot->canvas());
}

korimo_plot::~korimo_plot()
{
    for (QwtPlotCurve* curve : curves)
        delete curve;
    delete legend_upper;
    delete legend_lower;
    delete grid_upper;
    delete grid_lower;
    delete magnifier_a;
    delete magnifier_b;
    delete panner;
}

QString korimo_plot::get_wel_title()
{
    return wel_title;
}

QStringList korimo_plot::get_kennlinien_list()
{
    return kennlinien_list;
}

QStringList korimo_plot::get_curve_names()
{
    return curve_names;
}

void korimo_plot::set_curve_names(QStringList names)
{
    const qsizetype count = std::min(names.size(), static_cast<qsizetype>(curves.size()));
    for (qsizetype i = 0; i < count; ++i) {
        const auto curve = static_cast<std::size_t>(i);
        if (names[i].isEmpty() || !curves[curve])
            continue;
        curves[curve]->setTitle(shown_text(names[i]));
        curve_title[curve] = names[i];
        if (i < curve_names.size())
            curve_names[i] = names[i];
    }
}

void korimo_plot::show_error(const QString& title, const QString& text)
{
    error_box.setWindowTitle(title);
    error_box.setText(text);
    error_box.exec();
}
