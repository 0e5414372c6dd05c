// The viewer beside other programs, on the same input: the whole road from a file to a picture, and
// one step of the zoom. Called with the folder where the programs with QCustomPlot were built.

#include "bench/roads.h"
#include "bench/wel_files.h"

#include <QTemporaryDir>

#include <cstdio>
#include <sstream>

namespace {

constexpr int runs = 3;

void print_ratio(double value, double own)
{
    if (value > 0.0 && own > 0.0)
        std::printf(" %7.2f", value / own);
    else
        std::printf(" %7s", "-");
}

// Answers whether all programs ran.
bool compare_roads(const std::string& file, const std::string& built)
{
    std::vector<bench::road> roads = {bench::viewer_road(file), bench::kst_road(file)};
    const std::vector<bench::road> others = bench::other_roads(file, built);
    roads.insert(roads.end(), others.begin(), others.end());
    std::vector<bench::best_run> best(roads.size());
    for (int run = 0; run < runs; ++run) {
        for (std::size_t i = 0; i < roads.size(); ++i)
            best[i].add(bench::run_road(roads[i]));
    }
    std::printf("%d rows to PNG: time, to ours, peak memory, to ours\n", bench::road_rows);
    bool all_ran = true;
    for (std::size_t i = 0; i < roads.size(); ++i) {
        std::printf("  %-20s %9.0f ms", roads[i].name.c_str(), best[i].milliseconds());
        print_ratio(best[i].milliseconds(), best[0].milliseconds());
        std::printf("  %7.0f MB", best[i].peak_megabytes());
        print_ratio(best[i].peak_megabytes(), best[0].peak_megabytes());
        std::printf("%s\n", best[i].milliseconds() > 0.0 ? "" : "  FAILED");
        all_ran = all_ran && best[i].milliseconds() > 0.0;
    }
    return all_ran;
}

bool compare_zoom(const std::string& file, int points, const std::string& built)
{
    bench::write_wel_file(QString::fromStdString(file), points, "P");
    std::istringstream own(bench::run_process({bench::built_beside("zoom_step"), file}).output);
    std::istringstream other(bench::run_process({built + "/qcustomplot_zoom", file}).output);
    double viewer = 0.0;
    double qwt = 0.0;
    double qcustomplot = 0.0;
    own >> viewer >> qwt;
    other >> qcustomplot;
    std::printf("one step of the zoom, two curves of %d points: time, to ours\n", points);
    const std::pair<const char*, double> times[] = {
        {"plot_korimo", viewer}, {"plain Qwt", qwt}, {"QCustomPlot", qcustomplot}};
    for (const auto& [name, time] : times) {
        std::printf("  %-20s %9.2f ms", name, time);
        print_ratio(time, viewer);
        std::printf("%s\n", time > 0.0 ? "" : "  FAILED");
    }
    return viewer > 0.0 && qwt > 0.0 && qcustomplot > 0.0;
}

} // namespace

int main(int argc, char** argv)
{
    const std::string built = argc > 1 ? argv[1] : ".";
    const QTemporaryDir folder;
    const QString file = folder.filePath("large_K1.wel");
    bench::write_wel_file(file, bench::road_rows, "KN");
    const bool roads_ran = compare_roads(file.toStdString(), built);
    const std::string gauge = folder.filePath("large_P1.wel").toStdString();
    const bool small_ran = compare_zoom(gauge, 1'000'000, built);
    const bool large_ran = compare_zoom(gauge, 3'200'000, built);
    return roads_ran && small_ran && large_ran ? 0 : 1;
}
