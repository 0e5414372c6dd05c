#pragma once

#include "examples/basin_table.h"

#include <array>

namespace example {

// The basins of the catchment. The first two are routed, the others lie on side brooks and are in
// the basin table only.
const std::array<basin_data, 4>& basins();

inline const basin_data& main_basin()
{
    return basins()[0];
}

inline const basin_data& side_basin()
{
    return basins()[1];
}

} // namespace example
