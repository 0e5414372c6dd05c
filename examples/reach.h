#pragma once

#include "examples/channel.h"
#include "examples/linear_store.h"

namespace example {

struct reach_data
{
    channel_data channel;
    int stores;
    seconds residence; // of one store
};

// Flood routing after Kalinin and Miljukov; depth and velocity are those of uniform flow at the
// lower end.
class reach
{
public:
    reach(const reach_data& data, seconds step, flow inflow);

    void advance(flow inflow);

    flow inflow() const { return inflow_; }
    flow outflow() const { return cascade_.outflow(); }
    flow in_bed() const;
    flow on_flood_plain() const { return outflow() - in_bed(); }
    volume stock() const { return cascade_.stock(); }
    channel_state state() const { return rating_.at(outflow()); }

private:
    channel_rating rating_;
    flow bankfull_;
    store_cascade cascade_;
    volume half_step_;
    flow inflow_;
};

} // namespace example
