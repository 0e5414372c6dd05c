#include "plot/drawing/value_blocks.h"

#include <algorithm>
#include <limits>

namespace {

using extent = value_blocks::extent;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr extent nothing{infinity, -infinity};

// Comparisons in this order are one instruction each.
extent widened(const extent& range, double low, double high)
{
    return {low < range.low ? low : range.low, high > range.high ? high : range.high};
}

extent range_of(std::span<const double> values)
{
    extent range = nothing;
    for (const double value : values)
        range = widened(range, value, value);
    return range;
}

// The difference is 0 for every number but NaN for all that is infinite or none.
bool are_finite(std::span<const double> values)
{
    double differences = 0.0;
    for (const double value : values)
        differences += value - value;
    return differences == 0.0;
}

} // namespace

value_blocks::value_blocks(std::span<const double> values)
{
    constexpr std::size_t step = length;
    blocks.reserve(values.size() / step + 1);
    for (std::size_t i = 0; i < values.size(); i += step) {
        const auto block = values.subspan(i, std::min(step, values.size() - i));
        finite = finite && are_finite(block);
        blocks.push_back(range_of(block));
    }
}

value_blocks::extent value_blocks::all() const
{
    extent range = nothing;
    for (const extent& block : blocks)
        range = widened(range, block.low, block.high);
    return range;
}
