#include "plot/drawing/sampled_line.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

using extent = sampled_line::extent;

// Whether no value is lower than the one before, infinite or NaN, with which no comparison is true.
// Looks at some values at once, since that is quicker than to stop at the first.
bool rises_orderly(std::span<const double> values)
{
    constexpr std::size_t at_once = 1024;
    for (std::size_t i = 1; i < values.size(); i += at_once) {
        const std::size_t end = std::min(i + at_once, values.size());
        bool rises = true;
        for (std::size_t k = i; k < end; ++k)
            rises &= values[k - 1] <= values[k];
        if (!rises)
            return false;
    }
    return std::isfinite(values.front()) && std::isfinite(values.back());
}

// The range of the values; nothing if one is infinite or NaN. Every eighth value belongs together,
// so that none waits for the one before.
std::optional<extent> range_of(std::span<const double> values)
{
    constexpr std::size_t lanes = 8;
    std::array<double, lanes> low;
    std::array<double, lanes> high;
    std::array<double, lanes> difference{}; // 0, but NaN once a value is infinite or NaN
    low.fill(values.front());
    high.fill(values.front());
    const auto look_at = [&](std::size_t lane, double value) {
        low[lane] = value < low[lane] ? value : low[lane];
        high[lane] = value > high[lane] ? value : high[lane];
        difference[lane] += value - value;
    };
    std::size_t i = 0;
    for (; i + lanes <= values.size(); i += lanes) {
        for (std::size_t lane = 0; lane < lanes; ++lane)
            look_at(lane, values[i + lane]);
    }
    for (; i < values.size(); ++i)
        look_at(0, values[i]);
    if (std::ranges::any_of(difference, [](double each) { return std::isnan(each); }))
        return std::nullopt;
    return extent{std::ranges::min(low), std::ranges::max(high)};
}

} // namespace

sampled_line::sampled_line(std::span<const double> x, std::span<const double> y)
    : x(x)
    , y(y)
    , y_extent(rises_orderly(x) ? range_of(y) : std::nullopt)
    , rows(y)
{
}

void sampled_line::set_y_scale(const QwtScaleMap& scale, const row_window& window)
{
    y_map = scale;
    kept = window;
    rows.set_scale(scale, window);
}

const pixel_rows& sampled_line::rows_of(qsizetype first, qsizetype end)
{
    rows.find(first, end);
    return rows;
}

// Searches in steps that grow, since the column is mostly near.
qsizetype sampled_line::first_from_column(int column, qsizetype first, qsizetype end) const
{
    qsizetype step = 1;
    qsizetype before = first; // all points before this one lie before the column
    while (before + step < end && this->column(before + step) < column) {
        before += step;
        step *= 2;
    }
    const auto from = x.begin() + before;
    const auto to = x.begin() + std::min(before + step, end);
    return std::partition_point(from, to,
                                [&](double value) { return pixel_of(x_map, value) < column; }) -
           x.begin();
}
