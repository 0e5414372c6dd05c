#include "examples/basin_table.h"

#include <algorithm>
#include <cmath>

namespace example {

namespace {

constexpr double gravity = 9.81;
constexpr double orifice_coefficient = 0.62;
constexpr double weir_coefficient = 0.65;

double head(level water, level above)
{
    return static_cast<double>(std::max<level>(0, water - above)) / one_metre;
}

double weir_flow(double width, double height)
{
    return 2.0 / 3.0 * weir_coefficient * width * height * std::sqrt(2.0 * gravity * height);
}

flow rounded_to_hundredths(double discharge)
{
    return std::llround(discharge * 100.0) * (one_cumec / 100);
}

// Mean of the two surfaces times the height between them, to 1 m3.
volume slice(surface_at lower, surface_at upper)
{
    const std::int64_t doubled = (lower.surface + upper.surface) * (upper.water - lower.water);
    return div_round(doubled, 2 * one_metre) * one_cubic_metre;
}

} // namespace

double bottom_outlet::discharge(level water) const
{
    const double depth = head(water, sill);
    const double axis_depth = std::max(0.0, depth - height / 2.0);
    const double orifice =
        orifice_coefficient * width * height * std::sqrt(2.0 * gravity * axis_depth);
    return depth < height ? weir_flow(width, depth) : std::min(weir_flow(width, depth), orifice);
}

double spillway::discharge(level water) const
{
    return weir_flow(width, head(water, crest));
}

std::vector<basin_row> basin_table(const basin_data& basin)
{
    std::vector<basin_row> rows;
    volume filling = 0;
    surface_at below = basin.surfaces.front();
    for (const surface_at& here : basin.surfaces) {
        filling += slice(below, here);
        below = here;
        rows.push_back({here.water, here.surface, filling,
                        rounded_to_hundredths(basin.outlet.discharge(here.water)),
                        rounded_to_hundredths(basin.overflow.discharge(here.water))});
    }
    return rows;
}

} // namespace example
