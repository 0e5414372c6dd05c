// How long "Read" takes for a large file of characteristic curves, and each step to another curve.

#include "bench/curve_files.h"
#include "bench/measure.h"
#include "plot/korimo_plot.h"
#include "tests/support/literal_curve_reader.h"
#include "tests/support/named_curves.h"

#include <QApplication>
#include <QFile>
#include <QListWidget>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr int runs = 5;
constexpr double immediate = 100.0; // ms that pass unnoticed between a click and its effect

// One pass over the file that does nothing but look at every byte.
qsizetype count_lines(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    qsizetype lines = 0;
    while (!file.atEnd())
        lines += file.read(262'144).count('\n');
    return lines;
}

// Presses a button and waits until the window has been painted.
void press(QPushButton* button)
{
    button->click();
    QCoreApplication::processEvents();
}

std::vector<bench::figure> measure(const QString& name, const QByteArray& bytes,
                                   literal_reading (*read_literally_of)(const QString&,
                                                                        const QString&))
{
    window_driver driver;
    const QString path = driver.open(name, bytes);
    const QString kind = name.right(3).toUpper();
    const QString middle = driver.names->item(bench::curve_count / 2)->text();

    const double pass = bench::shortest(runs, [&] { count_lines(path); });
    const double literal_list = bench::shortest(runs, [&] { read_literally(path); });
    const double literal_read = bench::shortest(runs, [&] { read_literally_of(path, middle); });
    const double list = bench::shortest(runs, [&] {
        press(driver.button); // "Clear"
        press(driver.button);
    });
    press(navigation_button(driver, "|<"));
    const double first_steps =
        bench::shortest(4 * runs, [&] { press(navigation_button(driver, ">")); });
    press(navigation_button(driver, ">|"));
    const double last_steps =
        bench::shortest(4 * runs, [&] { press(navigation_button(driver, "<")); });
    const double step = std::max(first_steps, last_steps);
    const std::string label = kind.toStdString();
    const std::string goal = "6 curves";
    return {
        {label + " Clear and Read", list, "the literal reader", literal_list, 0.3, goal},
        {label + " Clear and Read", list, "what seems immediate", immediate, 1.0, goal},
        {label + " step", step, "what seems immediate", immediate, 1.0, goal},
        {label + " step", step, "the literal reader", literal_read, 0.3, goal},
        {label + " step", step, "Clear and Read", list, 1.5, goal},
        {label + " step", step, "looking at every byte", pass, 15.0, goal},
    };
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    std::vector<bench::figure> figures =
        measure("large.bek", bench::large_bek_file(), read_bek_literally);
    const std::vector<bench::figure> more =
        measure("large.dkl", bench::large_dkl_file(), read_dkl_literally);
    figures.insert(figures.end(), more.begin(), more.end());
    return bench::report(figures) ? 0 : 1;
}
