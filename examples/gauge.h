#pragma once

#include "examples/fixed_point.h"

namespace example {

// Gauge at the outlet. The "measured" flow lags one step behind the computed one, its rating falls
// short of high flows, and its readings waver a little.
class gauge
{
public:
    explicit gauge(flow computed)
        : computed_(computed)
        , measured_(computed)
    {
    }

    void advance(flow computed);

    flow computed() const { return computed_; }
    flow measured() const { return measured_; }

private:
    std::int64_t wavering(); // thousandths

    flow computed_;
    flow measured_;
    std::int64_t wavering_ = 0;
    std::uint32_t seed_ = 977;
};

} // namespace example
