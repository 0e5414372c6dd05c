#include "examples/network.h"

#include "examples/basin_data.h"

namespace example {

namespace {

constexpr seconds hour = 3600;
constexpr area settlement_paved = 420000;
constexpr int settlement_runoff_percent = 75;
constexpr seconds settlement_residence = 2700;

constexpr sub_catchment_data upper_catchment{.surface = 6200000,
                                             .retention_percent = 100,
                                             .cascade_length = 3,
                                             .cascade_residence = 3000,
                                             .interflow_percent = 15,
                                             .interflow_residence = 14 * hour,
                                             .groundwater_percent = 25,
                                             .groundwater_residence = 400 * hour,
                                             .initial_groundwater = 110};

constexpr sub_catchment_data lower_catchment{.surface = 2100000,
                                             .retention_percent = 125,
                                             .cascade_length = 3,
                                             .cascade_residence = 2100,
                                             .interflow_percent = 15,
                                             .interflow_residence = 10 * hour,
                                             .groundwater_percent = 25,
                                             .groundwater_residence = 350 * hour,
                                             .initial_groundwater = 35};

constexpr reach_data middle_reach{.channel = {.bottom_width = 2.2,
                                              .bank_slope = 1.5,
                                              .bed_slope = 0.0035,
                                              .friction = 0.11,
                                              .bankfull = 4500},
                                  .stores = 4,
                                  .residence = 840};

constexpr flow diversion_threshold = 2500;
constexpr int diverted_percent = 65;

} // namespace

network::network(season_plan plan, seconds step)
    : step_(step / 60)
    , rain_(plan)
    , e1_(settlement_paved, settlement_runoff_percent, settlement_residence, step)
    , k1_(upper_catchment, step, e1_.outflow())
    , b1_(main_basin(), true, step, k1_.total())
    , t1_(middle_reach, step, b1_.outflow())
    , v1_(diversion_threshold, diverted_percent)
    , b2_(side_basin(), false, step, 0)
    , n1_(lower_catchment, step, t1_.outflow())
    , p1_(n1_.total())
{
    v1_.advance(t1_.outflow());
}

void network::advance()
{
    time_ += step_;
    rain_.advance(time_);
    e1_.advance(time_, rain_);
    k1_.advance(rain_, e1_.outflow());
    b1_.advance(k1_.total());
    t1_.advance(b1_.outflow());
    v1_.advance(t1_.outflow());
    b2_.advance(v1_.diverted());
    n1_.advance(rain_, back_together());
    p1_.advance(n1_.total());
}

std::int64_t network::hundredths_of_hours() const
{
    return div_round(time_ * 100, 60);
}

} // namespace example
