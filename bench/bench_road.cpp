// How long the viewer takes the whole road, from its start with a large file to the saved picture,
// measured against Kst, and how much memory it needs for it.

#include "bench/measure.h"
#include "bench/roads.h"
#include "bench/wel_files.h"

#include <QTemporaryDir>

namespace {

constexpr int runs = 7;

std::vector<bench::figure> measure(const std::string& file)
{
    const bench::road viewer = bench::viewer_road(file);
    const bench::road kst = bench::kst_road(file);
    bench::run_road(viewer); // both from memory, not from the disk
    bench::run_road(kst);
    bench::best_run with_file;
    bench::best_run of_kst;
    bench::best_run without_file;
    for (int run = 0; run < runs; ++run) {
        with_file.add(bench::run_road(viewer));
        of_kst.add(bench::run_road(kst));
        without_file.add(bench::run_process({bench::built_beside("one_road")}));
    }
    const double own_memory = with_file.peak_megabytes() - without_file.peak_megabytes();
    const bool both_ran = with_file.peak_megabytes() > 0.0 && without_file.peak_megabytes() > 0.0;
    return {
        {"1,000,000 rows to PNG", with_file.milliseconds(), "Kst", of_kst.milliseconds(), 0.5,
         "3 whole road"},
        {"peak memory for the file", both_ran ? own_memory : 0.0, "its series",
         bench::road_series_megabytes, 1.6, "3 whole road", "MB"},
    };
}

} // namespace

int main()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("large_K1.wel");
    bench::write_wel_file(file, bench::road_rows, "KN");
    return bench::report(measure(file.toStdString())) ? 0 : 1;
}
