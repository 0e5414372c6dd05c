#include "plot/drawing/vertex_count.h"

#include "plot/drawing/pixel_map.h"
#include "plot/drawing/value_blocks.h"

#include <algorithm>
#include <cmath>

vertex_count::vertex_count(std::span<const double> values, const QwtScaleMap& map,
                           const row_window& window)
    : values(values)
    , map(map)
    , window(window)
{
    const auto size = static_cast<qsizetype>(values.size());
    qsizetype count = 0;
    for (qsizetype i = 0; i < size; i += value_blocks::length) {
        before_block.push_back(count);
        count += count_within(i, std::min(i + value_blocks::length, size));
    }
}

bool vertex_count::holds_for(const QwtScaleMap& other, const row_window& other_window) const
{
    constexpr double negligible = 1e-6; // pixels
    const double shift = other.transform(map.s1()) - map.transform(map.s1());
    const double shift_at_end = other.transform(map.s2()) - map.transform(map.s2());
    const double rows = std::round(shift);
    return std::abs(shift - shift_at_end) < negligible && std::abs(shift - rows) < negligible &&
           other_window.top == window.top + rows && other_window.bottom == window.bottom + rows;
}

qsizetype vertex_count::up_to(qsizetype index) const
{
    const qsizetype block = index / value_blocks::length;
    return before_block[static_cast<std::size_t>(block)] +
           count_within(block * value_blocks::length, index + 1);
}

// The vertices that the values from `first` to the one before `end` make.
qsizetype vertex_count::count_within(qsizetype first, qsizetype end) const
{
    qsizetype count = 0;
    int row = pixel_of(map, values[static_cast<std::size_t>(std::max<qsizetype>(first - 1, 0))]);
    for (qsizetype i = first; i < end; ++i) {
        const int next = pixel_of(map, values[static_cast<std::size_t>(i)]);
        count += window.vertices_of_change(row, next);
        row = next;
    }
    return count;
}
