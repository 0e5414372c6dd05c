#include "examples/storm.h"

#include <algorithm>
#include <array>

namespace example {

namespace {

// Thousandths of the duration against thousandths of the depth.
constexpr std::array<point, 4> mass_curve{{{0, 0}, {300, 200}, {500, 700}, {1000, 1000}}};

} // namespace

rain_depth storm::fallen_until(minutes time) const
{
    const minutes elapsed = std::clamp<minutes>(time - start, 0, duration);
    const auto beyond = [&](point p) { return p.x * duration >= elapsed * 1000; };
    const auto to = std::find_if(mass_curve.begin() + 1, mass_curve.end(), beyond);
    const auto scaled = [&](point p) { return point{p.x * duration, p.y * depth}; };
    return div_round(interpolate(elapsed * 1000, scaled(*(to - 1)), scaled(*to)), 1000);
}

} // namespace example
