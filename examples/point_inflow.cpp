#include "examples/point_inflow.h"

#include <array>

namespace example {

namespace {

// Minutes of the day against flow; the course closes at midnight.
constexpr std::array<point, 9> daily_course{{{0, 18},
                                             {180, 11},
                                             {300, 10},
                                             {450, 24},
                                             {540, 27},
                                             {780, 23},
                                             {1140, 28},
                                             {1320, 24},
                                             {1440, 18}}};

flow dry_weather_flow(minutes time)
{
    const minutes of_day = time % 1440;
    std::size_t to = 1;
    while (daily_course[to].x < of_day) {
        ++to;
    }
    return interpolate(of_day, daily_course[to - 1], daily_course[to]);
}

} // namespace

point_inflow::point_inflow(area paved, int runoff_percent, seconds residence, seconds step)
    : paved_(paved)
    , runoff_percent_(runoff_percent)
    , sewer_(residence, step, 0)
    , dry_weather_(dry_weather_flow(0))
{
}

void point_inflow::advance(minutes time, const rainfall& rain)
{
    dry_weather_ = dry_weather_flow(time);
    sewer_.advance(div_round(rain_volume(rain.depth(), paved_) * runoff_percent_, 100));
}

} // namespace example
