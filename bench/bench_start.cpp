// How long the viewer takes from the start of its process until its window is painted, measured
// against a program that shows two empty plots and nothing else.

#include "bench/child_process.h"
#include "bench/measure.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

constexpr int runs = 100;

// Milliseconds until the program's window was painted; zero if it failed.
double start_time(const std::string& program)
{
    const bench::ended_process process = bench::run_process({program});
    if (!process.succeeded || process.output.empty())
        return 0.0;
    const std::chrono::nanoseconds painted(std::strtoll(process.output.c_str(), nullptr, 10));
    const std::chrono::duration<double, std::milli> time =
        painted - process.started.time_since_epoch();
    return time.count();
}

void describe(const char* what, std::vector<double>& times)
{
    std::ranges::sort(times);
    std::printf("%-28s shortest %.2f ms, median %.2f ms\n", what, times.front(),
                times[times.size() / 2]);
}

} // namespace

int main()
{
    const std::string viewer = bench::built_beside("started_viewer");
    const std::string bare = bench::built_beside("bare_window");
    start_time(viewer); // both from memory, not from the disk
    start_time(bare);
    std::vector<double> viewer_times;
    std::vector<double> bare_times;
    for (int run = 0; run < runs; ++run) {
        viewer_times.push_back(start_time(viewer));
        bare_times.push_back(start_time(bare));
    }
    describe("viewer", viewer_times);
    describe("two empty plots", bare_times);
    // The shortest, as everywhere: other work on the machine only makes a start longer.
    return bench::report({{"start until painted", viewer_times.front(), "two empty plots",
                           bare_times.front(), 1.3, "4 start"}})
               ? 0
               : 1;
}
