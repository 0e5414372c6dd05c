#pragma once

#include "examples/basin_table.h"

namespace example {

// Level-pool routing (Puls) over the basin's table, linear between its rows. The volume is carried
// on with the rounded flows, so that the printed columns balance exactly.
class basin
{
public:
    basin(const basin_data& data, bool bottom_leaks, seconds step, flow inflow);

    void advance(flow inflow);

    flow inflow() const { return inflow_; }
    flow outlet() const { return outlet_; }
    flow overflow() const { return overflow_; }
    flow outflow() const { return outlet_ + overflow_; }
    flow seepage() const { return seepage_; }
    volume filling() const { return filling_; }
    level water() const;
    area surface() const;

private:
    flow seepage_of(area surface) const;
    flow released() const { return outflow() + seepage_; }
    void start_balanced(flow inflow);
    void release_at(volume filling);
    void keep_filling_positive(volume available);
    std::size_t segment_of(volume filling) const;
    template <class Value>
    std::int64_t value_at(volume filling, Value value) const;

    std::vector<basin_row> rows_;
    std::vector<volume> loaded_; // filling and half a step's release, row by row
    bool bottom_leaks_;
    volume half_step_;
    flow inflow_ = 0;
    flow outlet_ = 0;
    flow overflow_ = 0;
    flow seepage_ = 0;
    volume filling_ = 0;
};

} // namespace example
