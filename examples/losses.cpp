#include "examples/losses.h"

#include <algorithm>

namespace example {

void losses::advance(rain_depth rain, const storm& current)
{
    if (current.start != storm_start_) {
        begin(current.start);
    }
    rain_total_ += rain;
    const rain_depth total = effective_total(current.retention * retention_percent_ / 100);
    // The rounded totals may ask for a hundredth more than has just fallen.
    effective_ = std::clamp<rain_depth>(total - effective_so_far_, 0, rain);
    lost_ = rain - effective_;
    effective_so_far_ += effective_;
}

void losses::begin(minutes storm_start)
{
    storm_start_ = storm_start;
    rain_total_ = 0;
    effective_so_far_ = 0;
}

rain_depth losses::effective_total(rain_depth retention) const
{
    const rain_depth excess = std::max<rain_depth>(0, rain_total_ - retention / 20);
    return div_round(excess * excess, excess + retention);
}

} // namespace example
