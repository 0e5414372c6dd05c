#include "plot/drawing/sampled_line.h"

#include <algorithm>
#include <cmath>

namespace {

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

} // namespace

sampled_line::sampled_line(std::span<const double> x, std::span<const double> y)
    : x(x)
    , y(y)
    , blocks(y)
    , orderly(rises_orderly(x))
    , rows(y, blocks)
{
}

bool sampled_line::is_finite(qsizetype first, qsizetype end) const
{
    if (is_finite())
        return true;
    for (qsizetype i = first / value_blocks::length; i * value_blocks::length < end; ++i) {
        if (!blocks.is_finite(i))
            return false;
    }
    return true;
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
