#include "plot/drawing/row_changes.h"

#include "plot/drawing/pixel_map.h"
#include "plot/drawing/value_blocks.h"

#include <algorithm>
#include <cmath>

row_changes::row_changes(std::span<const double> values, const QwtScaleMap& map)
    : values(values)
    , map(map)
{
    const auto size = static_cast<qsizetype>(values.size());
    qsizetype count = 0;
    for (qsizetype i = 0; i < size; i += value_blocks::length) {
        before_block.push_back(count);
        count += count_within(i, std::min(i + value_blocks::length, size));
    }
}

bool row_changes::hold_for(const QwtScaleMap& other) const
{
    constexpr double negligible = 1e-6; // pixels
    const double shift = other.transform(map.s1()) - map.transform(map.s1());
    const double shift_at_end = other.transform(map.s2()) - map.transform(map.s2());
    return std::abs(shift - shift_at_end) < negligible &&
           std::abs(shift - std::round(shift)) < negligible;
}

qsizetype row_changes::up_to(qsizetype index) const
{
    const qsizetype block = index / value_blocks::length;
    return before_block[static_cast<std::size_t>(block)] +
           count_within(block * value_blocks::length, index + 1);
}

// The changes at the values from `first` to the one before `end`.
qsizetype row_changes::count_within(qsizetype first, qsizetype end) const
{
    qsizetype count = 0;
    int row = pixel_of(map, values[static_cast<std::size_t>(std::max<qsizetype>(first - 1, 0))]);
    for (qsizetype i = first; i < end; ++i) {
        const int next = pixel_of(map, values[static_cast<std::size_t>(i)]);
        count += next != row ? 1 : 0;
        row = next;
    }
    return count;
}
