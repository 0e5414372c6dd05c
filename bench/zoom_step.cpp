// How long one step of the wheel takes with a gauge's file: the viewer's lower plot, and a plain
// Qwt plot with the same two curves. Prints a line with the mean time in milliseconds for each.

#include "bench/driven_window.h"
#include "bench/measure.h"

#include <QApplication>

#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_scale_engine.h>

#include <cstdio>

namespace {

constexpr int runs = 3;
constexpr int steps = 10;

// Each step keeps nine tenths of the time range, about its middle.
void zoom_in(QwtPlot& plot, double end)
{
    double half = end / 2.0;
    for (int step = 0; step < steps; ++step) {
        half *= 0.9;
        plot.setAxisScale(QwtAxis::XBottom, end / 2.0 - half, end / 2.0 + half);
        plot.replot();
        QCoreApplication::processEvents(); // painted
    }
}

double step_time(QwtPlot& plot, double end)
{
    return bench::shortest(runs, [&] { zoom_in(plot, end); }) / steps;
}

QVector<QPointF> samples_of(const QwtPlotCurve& curve)
{
    QVector<QPointF> samples;
    for (std::size_t i = 0; i < curve.dataSize(); ++i)
        samples.append(curve.sample(static_cast<int>(i)));
    return samples;
}

// The plot's items belong to it.
void add_copy(QwtPlot& plot, const QwtPlotCurve& original)
{
    auto* const curve = new QwtPlotCurve(original.title());
    curve->setPen(original.pen());
    curve->setSamples(samples_of(original));
    curve->attach(&plot);
}

void finish(QwtPlot& plot)
{
    plot.setCanvasBackground(Qt::white);
    plot.insertLegend(new QwtLegend, QwtPlot::RightLegend);
    plot.axisScaleEngine(QwtAxis::YLeft)->setAttribute(QwtScaleEngine::Floating, true);
    auto* const grid = new QwtPlotGrid;
    grid->enableXMin(true);
    grid->enableYMin(true);
    grid->setMinorPen(Qt::gray, 0.5, Qt::SolidLine);
    grid->attach(&plot);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    MainWindow window;
    window.show();
    bench::open_first_of(window, {QUrl::fromLocalFile(QCoreApplication::arguments().value(1))});
    auto& lower = *window.findChild<QwtPlot*>("qwtPlot");
    const double end = lower.axisInterval(QwtAxis::XBottom).maxValue();

    QwtPlot plain;
    plain.resize(lower.size());
    const auto items = lower.itemList(QwtPlotItem::Rtti_PlotCurve);
    for (QwtPlotItem* item : items)
        add_copy(plain, *dynamic_cast<QwtPlotCurve*>(item));
    finish(plain);
    plain.show();
    QCoreApplication::processEvents();

    std::printf("%f\n", step_time(lower, end));
    std::printf("%f\n", step_time(plain, end));
    return 0;
}
