#include "examples/basin.h"

#include <algorithm>

namespace example {

namespace {

// Index of the lower of the two neighbours between which the value is interpolated; values beyond
// the last neighbour are extrapolated from the last two.
std::size_t lower_neighbour(const std::vector<volume>& sorted, volume value)
{
    const auto above = std::upper_bound(sorted.begin() + 1, sorted.end() - 1, value);
    return static_cast<std::size_t>(above - sorted.begin()) - 1;
}

} // namespace

basin::basin(const basin_data& data, bool bottom_leaks, seconds step, flow inflow)
    : rows_(basin_table(data))
    , bottom_leaks_(bottom_leaks)
    , half_step_(volume_per_half_step(step))
{
    for (const basin_row& row : rows_) {
        const flow release = row.outlet + row.overflow + seepage_of(row.surface);
        loaded_.push_back(row.filling + half_step_ * release);
    }
    start_balanced(inflow);
}

void basin::advance(flow inflow)
{
    const volume available = filling_ + half_step_ * (inflow_ + inflow - released());
    const std::size_t i = lower_neighbour(loaded_, available);
    release_at(interpolate(available, {loaded_[i], rows_[i].filling},
                           {loaded_[i + 1], rows_[i + 1].filling}));
    keep_filling_positive(available);
    filling_ = available - half_step_ * released();
    inflow_ = inflow;
}

level basin::water() const
{
    return value_at(filling_, [](const basin_row& row) { return row.water; });
}

area basin::surface() const
{
    return value_at(filling_, [](const basin_row& row) { return row.surface; });
}

// A silty bottom lets 1e-6 m/s through.
flow basin::seepage_of(area surface) const
{
    return bottom_leaks_ ? div_round(surface, 1000) : 0;
}

// The filling at which the outlet passes on just what flows in.
void basin::start_balanced(flow inflow)
{
    std::size_t i = 0;
    while (i + 2 < rows_.size() && rows_[i + 1].outlet < inflow) {
        ++i;
    }
    filling_ = interpolate(inflow, {rows_[i].outlet, rows_[i].filling},
                           {rows_[i + 1].outlet, rows_[i + 1].filling});
    inflow_ = inflow;
    release_at(filling_);
}

void basin::release_at(volume filling)
{
    outlet_ = value_at(filling, [](const basin_row& row) { return row.outlet; });
    overflow_ = value_at(filling, [](const basin_row& row) { return row.overflow; });
    seepage_ = seepage_of(value_at(filling, [](const basin_row& row) { return row.surface; }));
}

// The rounded release of an almost empty basin may be more than is there.
void basin::keep_filling_positive(volume available)
{
    const volume missing = half_step_ * released() - available;
    if (missing > 0) {
        outlet_ = std::max<flow>(0, outlet_ - (missing + half_step_ - 1) / half_step_);
    }
}

std::size_t basin::segment_of(volume filling) const
{
    const auto fuller = [](volume value, const basin_row& row) { return value < row.filling; };
    const auto above = std::upper_bound(rows_.begin() + 1, rows_.end() - 1, filling, fuller);
    return static_cast<std::size_t>(above - rows_.begin()) - 1;
}

template <class Value>
std::int64_t basin::value_at(volume filling, Value value) const
{
    const std::size_t i = segment_of(filling);
    const basin_row& from = rows_[i];
    const basin_row& to = rows_[i + 1];
    return interpolate(filling, {from.filling, value(from)}, {to.filling, value(to)});
}

} // namespace example
