#include "examples/rainfall.h"

#include <array>

namespace example {

namespace {

constexpr minutes hour = 60;
constexpr minutes day = 24 * hour;
constexpr minutes year = 365 * day;

struct range
{
    std::int64_t from;
    std::int64_t to;
};

struct season
{
    range dry_days;
    range duration_hours;
    range depth; // 0.01 mm
    rain_depth retention;
};

// Quarters of the year from January on: long soft rain on wet ground, short heavy rain on dry
// ground.
constexpr std::array<season, 4> seasons{{
    {{3, 9}, {9, 30}, {700, 3000}, 5200},
    {{3, 12}, {4, 15}, {500, 3400}, 7600},
    {{4, 14}, {1, 8}, {600, 5200}, 11000},
    {{3, 10}, {6, 24}, {600, 3200}, 7000},
}};

} // namespace

storm design_storm()
{
    return {6 * hour, 9 * hour, 6000, 7000};
}

rainfall::rainfall(season_plan plan)
    : plan_(plan)
    , storm_(design_storm())
{
}

void rainfall::advance(minutes time)
{
    if (plan_ == season_plan::continuous && time > storm_.end() && fallen_ == storm_.depth) {
        storm_ = following_storm();
        fallen_ = 0;
    }
    const rain_depth fallen = storm_.fallen_until(time);
    depth_ = fallen - fallen_;
    fallen_ = fallen;
}

storm rainfall::following_storm()
{
    const season& now = seasons[static_cast<std::size_t>(storm_.end() % year * 4 / year)];
    const minutes dry = draw(now.dry_days.from * 24, now.dry_days.to * 24) * hour;
    const minutes duration = draw(now.duration_hours.from, now.duration_hours.to) * hour;
    return {storm_.end() + dry, duration, draw(now.depth.from, now.depth.to), now.retention};
}

// A linear congruential generator of our own: the library's distributions differ by platform.
std::int64_t rainfall::draw(std::int64_t from, std::int64_t to)
{
    seed_ = seed_ * 1664525u + 1013904223u;
    return from + static_cast<std::int64_t>(seed_ >> 8) % (to - from + 1);
}

} // namespace example
