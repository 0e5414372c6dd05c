#include "examples/branch.h"

#include <algorithm>

namespace example {

void branch::advance(flow inflow)
{
    inflow_ = inflow;
    diverted_ = div_round(std::max<flow>(0, inflow - threshold_) * diverted_percent_, 100);
}

} // namespace example
