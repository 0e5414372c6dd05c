#pragma once

#include "examples/fixed_point.h"

#include <vector>

namespace example {

// Linear reservoir V = K Q, solved by the trapezoidal rule. The stock is carried on with the
// rounded outflow, so that inflow, outflow and stock balance exactly and never drift.
class linear_store
{
public:
    linear_store(seconds residence, seconds step, flow initial);

    void advance(volume supply); // K must not be less than half the step
    flow outflow() const { return outflow_; }
    volume stock() const { return stock_; }

private:
    seconds divisor_;
    volume half_step_;
    flow outflow_;
    volume stock_;
};

// Equal linear reservoirs in series. Fed with effective rain its response to one step is the unit
// hydrograph of a sub-catchment; fed with a flow it is a reach after Kalinin and Miljukov.
class store_cascade
{
public:
    store_cascade(int count, seconds residence, seconds step, flow initial);

    void advance(volume supply);
    flow outflow() const { return stores_.back().outflow(); }
    volume stock() const;

private:
    volume half_step_;
    std::vector<linear_store> stores_;
};

} // namespace example
