#include "examples/sub_catchment.h"

namespace example {

sub_catchment::sub_catchment(const sub_catchment_data& data, seconds step, flow inflow)
    : data_(data)
    , losses_(data.retention_percent)
    , direct_(data.cascade_length, data.cascade_residence, step, 0)
    , interflow_(data.interflow_residence, step, 0)
    , groundwater_(data.groundwater_residence, step, data.initial_groundwater)
    , inflow_(inflow)
{
}

void sub_catchment::advance(const rainfall& rain, flow inflow)
{
    rain_ = rain.depth();
    losses_.advance(rain_, rain.current());
    direct_.advance(rain_volume(effective(), data_.surface));
    interflow_.advance(share_of_losses(data_.interflow_percent));
    groundwater_.advance(share_of_losses(data_.groundwater_percent));
    inflow_ = inflow;
}

volume sub_catchment::share_of_losses(int percent) const
{
    return div_round(rain_volume(lost(), data_.surface) * percent, 100);
}

} // namespace example
