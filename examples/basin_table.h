#pragma once

#include "examples/fixed_point.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace example {

// Bottom outlet: a weir while the opening is not yet under water, an orifice above.
struct bottom_outlet
{
    level sill;
    double width;
    double height;

    double discharge(level water) const; // m3/s
};

struct spillway
{
    level crest;
    double width; // 0: the basin has none

    double discharge(level water) const; // m3/s
};

struct surface_at
{
    level water;
    area surface;
};

enum class spillway_column : std::uint8_t
{
    zero_below_crest, // the basin table shows 0.00 up to the crest
    blank_below_crest // the basin table shows nothing below the crest
};

struct basin_data
{
    std::string_view key;
    std::string_view name;
    bottom_outlet outlet;
    spillway overflow;
    spillway_column overflow_column;
    std::vector<surface_at> surfaces; // from the bottom up to the top of the dam

    level bottom() const { return surfaces.front().water; }
    level top() const { return surfaces.back().water; }
};

// One row of the basin's characteristic curves, rounded as the BEK file shows them: discharges to
// 0.01 m3/s, volumes to 1 m3. The routing interpolates in these rows, the file prints them.
struct basin_row
{
    level water;
    area surface;
    volume filling;
    flow outlet;
    flow overflow;
};

std::vector<basin_row> basin_table(const basin_data& basin);

} // namespace example
