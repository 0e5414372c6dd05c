#pragma once

#include "examples/linear_store.h"
#include "examples/rainfall.h"

namespace example {

// Discharge of a settlement into the brook: the daily course of the sewage works and the storm
// sewer of the paved area.
class point_inflow
{
public:
    point_inflow(area paved, int runoff_percent, seconds residence, seconds step);

    void advance(minutes time, const rainfall& rain);
    flow outflow() const { return dry_weather_ + sewer_.outflow(); }

private:
    area paved_;
    int runoff_percent_;
    linear_store sewer_;
    flow dry_weather_;
};

} // namespace example
