#pragma once

#include "examples/basin.h"
#include "examples/branch.h"
#include "examples/gauge.h"
#include "examples/point_inflow.h"
#include "examples/reach.h"
#include "examples/sub_catchment.h"

namespace example {

// The made-up catchment of the Erlenbach, element after element in the direction of flow.
class network
{
public:
    network(season_plan plan, seconds step);

    void advance();

    std::int64_t hundredths_of_hours() const;
    const point_inflow& e1() const { return e1_; }
    const sub_catchment& k1() const { return k1_; }
    const basin& b1() const { return b1_; }
    const reach& t1() const { return t1_; }
    const branch& v1() const { return v1_; }
    const basin& b2() const { return b2_; }
    const sub_catchment& n1() const { return n1_; }
    const gauge& p1() const { return p1_; }

private:
    flow back_together() const { return v1_.staying() + b2_.outflow(); }

    minutes step_;
    minutes time_ = 0;
    rainfall rain_;
    point_inflow e1_;
    sub_catchment k1_;
    basin b1_;
    reach t1_;
    branch v1_;
    basin b2_;
    sub_catchment n1_;
    gauge p1_;
};

} // namespace example
