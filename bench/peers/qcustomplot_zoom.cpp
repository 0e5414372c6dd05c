// How long one step of the wheel takes with a gauge's file, in milliseconds: qcustomplot_zoom FILE

#include "columns.h"
#include "curves.h"

#include <QApplication>

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace {

constexpr int runs = 3;
constexpr int steps = 10;

// Each step keeps nine tenths of the time range, about its middle.
void zoom_in(QCustomPlot& plot, double end)
{
    double half = end / 2.0;
    for (int step = 0; step < steps; ++step) {
        half *= 0.9;
        plot.xAxis->setRange(end / 2.0 - half, end / 2.0 + half);
        plot.replot(QCustomPlot::rpImmediateRefresh); // painted
    }
}

double step_time(QCustomPlot& plot, double end)
{
    const auto start = std::chrono::steady_clock::now();
    zoom_in(plot, end);
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    return time.count() / steps;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    if (argc < 2)
        return 2;
    const std::vector<QVector<double>> columns = read_columns(argv[1], {1, 2, 3});
    QCustomPlot plot;
    plot.resize(681, 381);
    add_curve(plot, "Qges", Qt::blue, columns[0], columns[1]);
    add_curve(plot, "Qpeg", Qt::green, columns[0], columns[2]);
    finish(plot, "Zeit [h]", "Q [m3/s]");
    plot.show();
    QCoreApplication::processEvents();
    double best = step_time(plot, columns[0].last());
    for (int run = 1; run < runs; ++run)
        best = std::min(best, step_time(plot, columns[0].last()));
    std::printf("%f\n", best);
    return 0;
}
