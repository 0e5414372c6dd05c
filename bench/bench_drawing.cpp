// How long a step of zooming and panning takes with a gauge's file of thirty years, and the first
// picture of it.

#include "bench/measure.h"
#include "bench/wel_files.h"
#include "plot/korimo_plot.h"
#include "tests/support/window_driver.h"

#include <QApplication>
#include <QPushButton>

#include <qwt_plot.h>
#include <qwt_plot_curve.h>

#include <cmath>

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

    void show(double from, double to)
    {
        driver.lower->setAxisScale(QwtAxis::XBottom, from, to);
        driver.lower->replot();
        QCoreApplication::processEvents(); // painted
    }

    // The share of the file that a level shows: from all of it to twenty points, by equal factors.
    double share(int level) const
    {
        const double last = points_of_last_level / static_cast<double>(rows);
        return std::pow(last, static_cast<double>(level) / (levels - 1));
    }

    // A step back and forth at each level, about the middle of the file.
    times step(int level)
    {
        const double half = share(level) * end / 2.0;
        const double middle = end / 2.0;
        const auto both_ways = [&](double shift, double factor) {
            return bench::shortest(runs,
                                   [&] {
                                       show(middle + shift - half * factor,
                                            middle + shift + half * factor);
                                       show(middle - half, middle + half);
                                   }) /
                   2.0;
        };
        return {both_ways(0.0, 0.9), both_ways(half / 10.0, 1.0)};
    }

    window_driver driver;
    QString path;
    qsizetype rows;
    double end = 0.0;
};

std::vector<bench::figure> steps(shown_file& few, shown_file& many)
{
    std::vector<bench::figure> figures;
    for (int level = 0; level < levels; ++level) {
        const times base = few.step(level);
        const times actual = many.step(level);
        const auto points = std::llround(many.share(level) * static_cast<double>(many_rows));
        const std::string what = " with " + std::to_string(points) + " of 3,200,000 rows";
        const std::string against = "the same of 1,000 rows";
        figures.push_back({"zoom step" + what, actual.zoom, against, base.zoom, 2.0, "2 drawing"});
        figures.push_back({"pan step" + what, actual.pan, against, base.pan, 2.0, "2 drawing"});
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
