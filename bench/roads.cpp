#include "bench/roads.h"

#include <algorithm>
#include <filesystem>

namespace bench {

namespace {

std::string picture_of(const std::string& file, const std::string& name)
{
    return std::filesystem::path(file).replace_filename(name + ".png").string();
}

std::string script_of(const std::string& name)
{
    return std::string(KORIMO_PEERS_DIR) + "/" + name;
}

// As on a first call, whatever the user has set for the program.
std::vector<std::string> without_settings(const std::string& file,
                                          const std::vector<std::string>& command)
{
    const std::string folder = std::filesystem::path(file).parent_path().string();
    std::vector<std::string> all = {"env", "XDG_CONFIG_HOME=" + folder, "MPLCONFIGDIR=" + folder};
    all.insert(all.end(), command.begin(), command.end());
    return all;
}

} // namespace

road viewer_road(const std::string& file)
{
    return {"plot_korimo",
            {built_beside("one_road"), file},
            std::filesystem::path(file).replace_extension("png").string()};
}

// Columns count from one; rows from zero, and three lines of heading.
road kst_road(const std::string& file)
{
    const std::string picture = picture_of(file, "kst");
    return {"Kst", without_settings(file, {"kst2",  file, "-f", "3",  "-x",    "1",    "-P",
                                           "upper", "-y", "2",  "-y", "4",     "-P",   "lower",
                                           "-y",    "9",  "-y", "10", "--png", picture}),
            picture};
}

std::vector<road> other_roads(const std::string& file, const std::string& built)
{
    const std::string gnuplot = picture_of(file, "gnuplot");
    const std::string pandas = picture_of(file, "pandas");
    const std::string qcustomplot = picture_of(file, "qcustomplot");
    return {
        {"gnuplot", {"gnuplot", "-c", script_of("road.gp"), file, gnuplot}, gnuplot},
        {"pandas, matplotlib",
         without_settings(file, {"python3", script_of("road.py"), file, pandas}), pandas},
        {"QCustomPlot", {built + "/qcustomplot_road", file, qcustomplot}, qcustomplot},
    };
}

ended_process run_road(const road& road)
{
    std::filesystem::remove(road.picture);
    ended_process process = run_process(road.command);
    if (!std::filesystem::exists(road.picture))
        process.succeeded = false;
    return process;
}

void best_run::add(const ended_process& process)
{
    is_valid = is_valid && process.succeeded;
    const bool is_first = shortest == 0.0;
    shortest = is_first ? process.milliseconds : std::min(shortest, process.milliseconds);
    least = is_first ? process.peak_megabytes : std::min(least, process.peak_megabytes);
}

} // namespace bench
