#pragma once

#include <algorithm>
#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace bench {

/// One figure: what was done, how long it took or how much it needed, what it is measured against,
/// how many times that it may be at most, and the goal that it belongs to. A base that could not be
/// measured is zero.
struct figure
{
    std::string what;
    double amount = 0.0;
    std::string against;
    double base = 0.0;
    std::optional<double> limit; ///< none if the figure is only told
    std::string goal = "";
    std::string unit = "ms";
    bool is_deviation = false; ///< whether it may not be that much smaller than its base either

    double ratio() const
    {
        const double times = amount / base;
        return is_deviation ? std::max(times, 1.0 / times) : times;
    }
    bool is_measured() const { return amount > 0.0 && base > 0.0; }
    bool keeps_limit() const { return is_measured() && (!limit || ratio() <= *limit); }
};

/// The shortest time in milliseconds of `runs` runs: what disturbs a run only makes it longer.
template <class function>
double shortest(int runs, const function& run)
{
    double best = 0.0;
    for (int i = 0; i < runs; ++i) {
        const auto start = std::chrono::steady_clock::now();
        run();
        const std::chrono::duration<double, std::milli> time =
            std::chrono::steady_clock::now() - start;
        if (i == 0 || time.count() < best)
            best = time.count();
    }
    return best;
}

/// Prints a line for each figure and answers whether all of them keep their limits. Appends them to
/// the file that the environment variable KORIMO_BENCH_RESULTS names, one a line, with tabs between
/// goal, what, amount, base, ratio, limit ("-" if there is none) and verdict.
bool report(const std::vector<figure>& figures);

} // namespace bench
