#pragma once

#include "examples/fixed_point.h"

namespace example {

// Side weir: above a threshold a fixed share of the excess leaves the brook.
class branch
{
public:
    branch(flow threshold, int diverted_percent)
        : threshold_(threshold)
        , diverted_percent_(diverted_percent)
    {
    }

    void advance(flow inflow);

    flow inflow() const { return inflow_; }
    flow staying() const { return inflow_ - diverted_; }
    flow diverted() const { return diverted_; }

private:
    flow threshold_;
    int diverted_percent_;
    flow inflow_ = 0;
    flow diverted_ = 0;
};

} // namespace example
