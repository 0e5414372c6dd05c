#include "examples/reach.h"

#include <algorithm>

namespace example {

reach::reach(const reach_data& data, seconds step, flow inflow)
    : rating_(data.channel)
    , bankfull_(data.channel.bankfull)
    , cascade_(data.stores, data.residence, step, inflow)
    , half_step_(volume_per_half_step(step))
    , inflow_(inflow)
{
}

void reach::advance(flow inflow)
{
    cascade_.advance(half_step_ * (inflow_ + inflow));
    inflow_ = inflow;
}

flow reach::in_bed() const
{
    return std::min(outflow(), bankfull_);
}

} // namespace example
