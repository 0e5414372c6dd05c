// How long it takes to list the names of files of characteristic curves of 100 MB, and to read one
// of their curves, against the plain readers of the tests. No window takes part.

#include "bench/curve_files.h"
#include "bench/measure.h"
#include "plot/reading/bek_reader.h"
#include "plot/reading/dkl_reader.h"
#include "plot/reading/name_listing.h"
#include "plot/reading/text_lines.h"
#include "tests/support/literal_curve_reader.h"
#include "tests/support/write_file.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>
#include <functional>

namespace {

constexpr int runs = 3;
constexpr int basins_of_100_mb = 3200;
constexpr int curves_of_100_mb = 7800;

// What is to be done with one kind of file, and how it is done plainly.
struct kind
{
    std::string name;
    QByteArray bytes;
    QStringList (*list)(text_lines& lines);
    std::function<void(text_lines& lines, const QString& item, series_store& series)> read;
    literal_reading (*read_literally)(const QString& path, const QString& item);
};

// The time from opening a file to the end of `use` with its lines.
double time_of(const QString& path, const std::function<void(text_lines&)>& use)
{
    return bench::shortest(runs, [&] {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            std::exit(2);
        text_lines lines(file);
        use(lines);
    });
}

std::vector<bench::figure> measure(const kind& each)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QString::fromStdString("large." + each.name));
    write_file(path, each.bytes);
    QStringList names;
    const double list = time_of(path, [&](text_lines& lines) { names = each.list(lines); });
    const QString item = names.at(names.size() / 2);
    const double read = time_of(path, [&](text_lines& lines) {
        series_store series;
        each.read(lines, item, series);
        if (series[1].size() != bench::point_count)
            std::exit(2);
    });
    const double literal_list = bench::shortest(runs, [&] { read_literally(path); });
    const double literal_read = bench::shortest(runs, [&] { each.read_literally(path, item); });
    const std::string size = ", " + std::to_string(each.bytes.size() / 1'000'000) + " MB";
    return {
        {each.name + " listing" + size, list, "the literal reader", literal_list, 0.2, "6 curves"},
        {each.name + " reading" + size, read, "the literal reader", literal_read, 0.2, "6 curves"}};
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const auto dkl = [](text_lines& lines, const QString& item, series_store& series) {
        QString title;
        read_dkl(lines, item, title, series);
    };
    std::vector<bench::figure> figures = measure({"BEK", bench::large_bek_file(basins_of_100_mb),
                                                  list_bek_names, read_bek, read_bek_literally});
    const std::vector<bench::figure> more = measure(
        {"DKL", bench::large_dkl_file(curves_of_100_mb), list_dkl_names, dkl, read_dkl_literally});
    figures.insert(figures.end(), more.begin(), more.end());
    return bench::report(figures) ? 0 : 1;
}
