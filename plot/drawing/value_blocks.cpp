#include "plot/drawing/value_blocks.h"

#include <algorithm>
#include <limits>

namespace {

using extent = value_blocks::extent;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr extent unknown{nan, nan};

// Comparisons in this order are one instruction each.
extent widened(const extent& range, double low, double high)
{
    return {low < range.low ? low : range.low, high > range.high ? high : range.high};
}

// Some ranges that are found side by side, so that no value waits for the one before.
struct lanes
{
    static constexpr std::size_t count = 8;

    explicit lanes(double first) { std::ranges::fill(ranges, extent{first, first}); }

    void look_at(std::size_t lane, double value)
    {
        ranges[lane] = widened(ranges[lane], value, value);
        differences[lane] += value - value;
    }

    extent ranges[count];
    double differences[count]{}; // 0, but NaN once a value is infinite or NaN
};

lanes lanes_of(std::span<const double> values)
{
    lanes all(values.front());
    std::size_t i = 0;
    for (; i + lanes::count <= values.size(); i += lanes::count) {
        for (std::size_t lane = 0; lane < lanes::count; ++lane)
            all.look_at(lane, values[i + lane]);
    }
    for (; i < values.size(); ++i)
        all.look_at(0, values[i]);
    return all;
}

extent joined(std::span<const extent> ranges)
{
    extent all = ranges.front();
    for (const extent& each : ranges)
        all = widened(all, each.low, each.high);
    return all;
}

} // namespace

value_blocks::value_blocks(std::span<const double> values)
{
    constexpr std::size_t step = length;
    blocks.reserve(values.size() / step + 1);
    for (std::size_t i = 0; i < values.size(); i += step) {
        const lanes all = lanes_of(values.subspan(i, std::min(step, values.size() - i)));
        const bool is_finite =
            std::ranges::all_of(all.differences, [](double each) { return each == 0.0; });
        blocks.push_back(is_finite ? joined(all.ranges) : unknown);
        finite = finite && is_finite;
    }
    if (finite && !blocks.empty())
        whole = joined(blocks);
}
