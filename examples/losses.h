#pragma once

#include "examples/storm.h"

namespace example {

// Losses of a storm by the curve number method: after an initial loss of 5 % of the retention S
// the runoff share grows with the rain fallen so far.
class losses
{
public:
    explicit losses(int retention_percent)
        : retention_percent_(retention_percent)
    {
    }

    void advance(rain_depth rain, const storm& current);
    rain_depth effective() const { return effective_; } // of the last step
    rain_depth lost() const { return lost_; }           // of the last step

private:
    void begin(minutes storm_start);
    rain_depth effective_total(rain_depth retention) const;

    int retention_percent_;
    minutes storm_start_ = -1;
    rain_depth rain_total_ = 0;
    rain_depth effective_so_far_ = 0;
    rain_depth effective_ = 0;
    rain_depth lost_ = 0;
};

} // namespace example
