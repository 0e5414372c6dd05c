// How long a step of zooming and panning takes with a gauge's file of thirty years, and the first
// picture of it. A step is compared with the same step of a plot that shows the same picture, but
// has 1,000 rows: the file's highest and lowest values in each of 500 parts of what is in sight.
// The step of a plain file of 1,000 rows is told beside it: that one has less ink to lay down.

#include "bench/measure.h"
#include "bench/wel_files.h"
#include "plot/korimo_plot.h"
#include "tests/support/window_driver.h"

#include <QApplication>
#include <QImage>
#include <QPixmap>
#include <QPushButton>

#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_point_data.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr qsizetype few_rows = 1'000;
constexpr qsizetype many_rows = 3'200'000;
constexpr int levels = 7;
constexpr double points_of_last_level = 20.0;
constexpr int runs = 15;

struct times
{
    double zoom;
    double pan;
};

struct time_range
{
    double from;
    double to;

    double length() const { return to - from; }
    time_range moved(double by) const { return {from + by, to + by}; }
    time_range widened(double by) const { return {from - by, to + by}; }
};

struct samples
{
    QList<double> x;
    QList<double> y;
};

// A main window that shows one file.
struct shown_file
{
    explicit shown_file(qsizetype rows)
        : path(driver.add("x_K1.wel", {}))
        , rows(rows)
    {
        bench::write_wel_file(path, rows, "KN");
        driver.select(0);
        driver.button->click();
        QCoreApplication::processEvents();
        end = driver.lower->axisInterval(QwtAxis::XBottom).maxValue();
    }

    void show(const time_range& shown)
    {
        driver.lower->setAxisScale(QwtAxis::XBottom, shown.from, shown.to);
        driver.lower->replot();
        QCoreApplication::processEvents(); // painted
    }

    // From the whole file to twenty points in its middle, by equal factors.
    time_range level(int index) const
    {
        const double last = points_of_last_level / static_cast<double>(rows);
        const double share = std::pow(last, static_cast<double>(index) / (levels - 1));
        return {end / 2.0 * (1.0 - share), end / 2.0 * (1.0 + share)};
    }

    // A step there and back.
    double step(const time_range& here, const time_range& there)
    {
        return bench::shortest(runs,
                               [&] {
                                   show(there);
                                   show(here);
                               }) /
               2.0;
    }

    times steps(const time_range& here)
    {
        const double part = here.length() / 20.0;
        return {step(here, here.widened(-part)), step(here, here.moved(part))};
    }

    window_driver driver;
    QString path;
    qsizetype rows;
    double end = 0.0;
};

// The samples of a curve in a range of time: all, or if these are many, the highest and the lowest
// of each of so many parts that there are `few_rows`.
samples thinned(const QwtPlotCurve& curve, const time_range& range)
{
    const auto& all = dynamic_cast<const QwtPointArrayData<double>&>(*curve.data());
    const QList<double> x = all.xData();
    const QList<double> y = all.yData();
    const auto first = std::ranges::lower_bound(x, range.from) - x.begin();
    const auto end = std::ranges::upper_bound(x, range.to) - x.begin();
    if (end - first <= few_rows)
        return {x.mid(first, end - first), y.mid(first, end - first)};
    samples few;
    for (qsizetype part = 0; part < few_rows / 2; ++part) {
        const auto at = [&](qsizetype index) {
            return first + (end - first) * index / (few_rows / 2);
        };
        const auto [low, high] =
            std::minmax_element(y.begin() + at(part), y.begin() + at(part + 1));
        for (const auto value : {std::min(low, high), std::max(low, high)}) {
            few.x.append(x[value - y.begin()]);
            few.y.append(*value);
        }
    }
    return few;
}

// Lets a plot show what another shows of a range, from few samples.
void imitate(QwtPlot& few, const QwtPlot& many, const time_range& range)
{
    const QwtPlotItemList copies = few.itemList(QwtPlotItem::Rtti_PlotCurve);
    const QwtPlotItemList originals = many.itemList(QwtPlotItem::Rtti_PlotCurve);
    for (qsizetype i = 0; i < originals.size(); ++i) {
        const auto [x, y] = thinned(dynamic_cast<const QwtPlotCurve&>(*originals[i]), range);
        dynamic_cast<QwtPlotCurve&>(*copies[i]).setSamples(x, y);
    }
    const QwtInterval values = many.axisInterval(QwtAxis::YLeft);
    few.setAxisScale(QwtAxis::YLeft, values.minValue(), values.maxValue());
}

// Both must show nearly the same: else their times would not be comparable.
void require_same_picture(QwtPlot& few, QwtPlot& many)
{
    constexpr double most = 0.1;
    const QImage one = few.canvas()->grab().toImage();
    const QImage other = many.canvas()->grab().toImage();
    qsizetype different = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            different += one.pixel(x, y) == other.pixel(x, y) ? 0 : 1;
    }
    const double share = static_cast<double>(different) / (one.width() * one.height());
    std::printf("%.2f %% of the pixels differ\n", 100.0 * share);
    if (one.size() != other.size() || share > most)
        std::exit(2);
}

std::vector<times> steps_of_all_levels(shown_file& file)
{
    std::vector<times> all;
    all.reserve(levels);
    for (int level = 0; level < levels; ++level)
        all.push_back(file.steps(file.level(level)));
    return all;
}

std::vector<bench::figure> steps(shown_file& few, shown_file& many)
{
    std::vector<bench::figure> figures;
    const std::vector<times> plain = steps_of_all_levels(few);
    for (int level = 0; level < levels; ++level) {
        const time_range shown = many.level(level);
        const time_range reached = shown.widened(shown.length() / 10.0);
        imitate(*few.driver.lower, *many.driver.lower, reached);
        imitate(*few.driver.upper, *many.driver.upper, reached);
        const times base = few.steps(shown);
        const times actual = many.steps(shown);
        few.show(shown);
        many.show(shown);
        require_same_picture(*few.driver.lower, *many.driver.lower);
        require_same_picture(*few.driver.upper, *many.driver.upper);
        const auto points =
            std::llround(shown.length() / many.end * static_cast<double>(many_rows));
        const std::string what = " with " + std::to_string(points) + " of 3,200,000 rows";
        const std::string against = "the same picture of 1,000 rows";
        figures.push_back({"zoom step" + what, actual.zoom, against, base.zoom, 2.0, "2 drawing"});
        figures.push_back({"pan step" + what, actual.pan, against, base.pan, 2.0, "2 drawing"});
        const times& own = plain[static_cast<std::size_t>(level)];
        const std::string file = "a file of 1,000 rows";
        figures.push_back({"zoom step" + what, actual.zoom, file, own.zoom, {}, "2 drawing"});
        figures.push_back({"pan step" + what, actual.pan, file, own.pan, {}, "2 drawing"});
    }
    return figures;
}

// The time from a document that has read its file to the painted picture, in both plots of a
// window; with the document's own curves, or with plain ones of Qwt in their place.
double first_picture(const shown_file& file, bool with_plain_curves)
{
    korimo_plot document(file.driver.lower, file.driver.upper);
    document.readFile(file.path);
    for (QwtPlotCurve*& curve : document.curves) {
        if (with_plain_curves) {
            delete curve;
            curve = new QwtPlotCurve;
        }
    }
    return bench::shortest(1, [&] {
        document.plot_the_curves(file.driver.lower, file.driver.upper);
        QCoreApplication::processEvents();
    });
}

bench::figure first_pictures(shown_file& file)
{
    file.driver.button->click(); // "Clear"
    const double plain = first_picture(file, true);
    return {"first picture of 3,200,000 rows",
            first_picture(file, false),
            "Qwt as it comes",
            plain,
            0.1,
            "2 drawing"};
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    shown_file few(few_rows);
    shown_file many(many_rows);
    std::vector<bench::figure> figures = steps(few, many);
    figures.push_back(first_pictures(many));
    return bench::report(figures) ? 0 : 1;
}
