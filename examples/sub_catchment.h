#pragma once

#include "examples/linear_store.h"
#include "examples/losses.h"
#include "examples/rainfall.h"

namespace example {

struct sub_catchment_data
{
    area surface;
    int retention_percent; // of the retention that the storm names
    int cascade_length;
    seconds cascade_residence;
    int interflow_percent; // share of the losses
    seconds interflow_residence;
    int groundwater_percent; // share of the losses
    seconds groundwater_residence;
    flow initial_groundwater;
};

class sub_catchment
{
public:
    sub_catchment(const sub_catchment_data& data, seconds step, flow inflow);

    void advance(const rainfall& rain, flow inflow);

    rain_depth rain() const { return rain_; }
    rain_depth lost() const { return losses_.lost(); }
    rain_depth effective() const { return losses_.effective(); }
    flow direct() const { return direct_.outflow(); }
    flow interflow() const { return interflow_.outflow(); }
    flow groundwater() const { return groundwater_.outflow(); }
    flow base() const { return interflow() + groundwater(); }
    flow inflow() const { return inflow_; }
    flow total() const { return direct() + base() + inflow_; }

private:
    volume share_of_losses(int percent) const;

    sub_catchment_data data_;
    losses losses_;
    store_cascade direct_;
    linear_store interflow_;
    linear_store groundwater_;
    rain_depth rain_ = 0;
    flow inflow_;
};

} // namespace example
