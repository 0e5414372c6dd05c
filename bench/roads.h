#pragma once

#include "bench/child_process.h"

#include <string>
#include <vector>

namespace bench {

inline constexpr int road_columns = 10;     ///< of a node's file
inline constexpr int road_rows = 1'000'000; ///< about 109 MB of text
inline constexpr double road_series_megabytes = road_columns * 8.0 * road_rows / 1e6;

/// What reads a node's file, draws its rain and its discharges in two plots, and saves them as PNG.
struct road
{
    std::string name;
    std::vector<std::string> command;
    std::string picture; ///< the file that it leaves
};

road viewer_road(const std::string& file);
road kst_road(const std::string& file);
/// Further programs; those of QCustomPlot have been built in the folder `built`.
std::vector<road> other_roads(const std::string& file, const std::string& built);

/// A road counts as failed unless it left a picture. What one run of it keeps, its settings, say,
/// goes where the file is.
ended_process run_road(const road& road);

/// The shortest time and the least peak memory of some runs. Both are zero if one run failed.
class best_run
{
public:
    void add(const ended_process& process);

    double milliseconds() const { return is_valid ? shortest : 0.0; }
    double peak_megabytes() const { return is_valid ? least : 0.0; }

private:
    bool is_valid = true;
    double shortest = 0.0;
    double least = 0.0;
};

} // namespace bench
