#pragma once

#include "examples/fixed_point.h"

namespace example {

// A middle-peaked design storm (DVWK): 20 % of the depth fall in the first 30 % of the duration,
// 50 % in the next 20 %, the rest evenly in the second half.
struct storm
{
    minutes start;
    minutes duration;
    rain_depth depth;
    rain_depth retention; // potential retention S of the ground when the storm begins

    minutes end() const { return start + duration; }
    rain_depth fallen_until(minutes time) const;
};

} // namespace example
