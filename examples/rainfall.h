#pragma once

#include "examples/storm.h"

namespace example {

enum class season_plan : std::uint8_t
{
    single_event, // one design storm, dry before and after
    continuous    // storm after storm through the seasons, without end
};

class rainfall
{
public:
    explicit rainfall(season_plan plan);

    void advance(minutes time);
    rain_depth depth() const { return depth_; } // fallen in the last step
    const storm& current() const { return storm_; }

private:
    storm following_storm();
    std::int64_t draw(std::int64_t from, std::int64_t to);

    season_plan plan_;
    std::uint32_t seed_ = 20240613;
    storm storm_;
    rain_depth fallen_ = 0;
    rain_depth depth_ = 0;
};

storm design_storm();

} // namespace example
