#include "plot/drawing/pixel_rows.h"

#include "plot/drawing/pixel_map.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double negligible = 1e-6; // pixels

struct rounded_row
{
    int row;
    bool is_near_half; // whether it might have been rounded otherwise, if all moved a little
};

rounded_row row_of(const QwtScaleMap& scale, double value)
{
    const double place = place_of(scale, value);
    const int row = qRound(place);
    return {row, std::abs(place - row) > 0.5 - negligible};
}

qint16 kept_as(int row)
{
    constexpr int farthest = pixel_rows::farthest_row;
    return static_cast<qint16>(row < -farthest ? -farthest : row > farthest ? farthest : row);
}

// The next two work on small numbers only, so that the compiler takes several at once.

std::pair<qint16, qint16> range_of(std::span<const qint16> rows)
{
    qint16 top = rows.front();
    qint16 bottom = rows.front();
    for (const qint16 row : rows) {
        top = std::min(top, row);
        bottom = std::max(bottom, row);
    }
    return {top, bottom};
}

// The vertices at all points but the first.
int vertices_between(std::span<const qint16> rows, const row_window& window)
{
    int vertices = 0;
    for (std::size_t i = 1; i < rows.size(); ++i)
        vertices += window.vertices_of_change(rows[i - 1], rows[i]);
    return vertices;
}

bool is_same(const QwtScaleMap& a, const QwtScaleMap& b)
{
    return a.p1() == b.p1() && a.p2() == b.p2() && a.s1() == b.s1() && a.s2() == b.s2();
}

// By how many rows all values move when the scale changes; nothing if that is no whole number, or
// if some might come into sight that were too far away to tell.
std::optional<int> moved_by(const QwtScaleMap& from, const QwtScaleMap& to)
{
    constexpr double most = pixel_rows::farthest_window;
    const double shift = to.transform(from.s1()) - from.transform(from.s1());
    const double shift_at_end = to.transform(from.s2()) - from.transform(from.s2());
    const double rows = std::round(shift);
    const bool moves = std::abs(shift - shift_at_end) < negligible &&
                       std::abs(shift - rows) < negligible && std::abs(rows) < most;
    return moves ? std::optional(static_cast<int>(rows)) : std::nullopt;
}

using summary = pixel_rows::summary;

} // namespace

pixel_rows::pixel_rows(std::span<const double> values, const value_blocks& ranges)
    : values(values)
    , ranges(ranges)
    , blocks(ranges.count())
{
}

void pixel_rows::set_scale(const QwtScaleMap& scale, const row_window& window)
{
    if (is_same(present_scale, scale) &&
        window == row_window{kept.top + shift, kept.bottom + shift})
        return;
    const std::optional<int> moved = moved_by(first_scale, scale);
    if (moved) {
        for (block& each : blocks)
            each.is_found = each.is_found && !each.is_near_half;
    } else {
        first_scale = scale;
        blocks.fill({});
        rows.clear();
    }
    present_scale = scale;
    shift = moved.value_or(0);
    const row_window now{window.top - shift, window.bottom - shift};
    if (now == kept)
        return;
    kept = now;
    for (qsizetype i = 0; i < blocks.size(); ++i) {
        if (blocks[i].is_found)
            count_vertices(i);
    }
}

void pixel_rows::find(qsizetype first, qsizetype end)
{
    for (qsizetype i = first / block_length; i * block_length < end; ++i) {
        if (!blocks[i].is_found)
            find_block(i);
    }
}

// With the row of the point before, whose block may not be found.
void pixel_rows::find_block(qsizetype index)
{
    const qsizetype first = index * block_length;
    const auto [low, high] = ranges.block(index);
    const rounded_row one = row_of(present_scale, low);
    const rounded_row other = row_of(present_scale, high);
    const rounded_row before =
        row_of(present_scale, values[static_cast<std::size_t>(std::max<qsizetype>(first - 1, 0))]);
    block& found = blocks[index];
    found.is_found = true;
    found.before = kept_as(before.row - shift);
    found.is_near_half = before.is_near_half || one.is_near_half || other.is_near_half;
    if (one.row == other.row)
        found.top = found.bottom = kept_as(one.row - shift);
    else
        find_rows(index);
    count_vertices(index);
}

void pixel_rows::find_rows(qsizetype index)
{
    block& found = blocks[index];
    if (found.place < 0) {
        found.place = static_cast<int>(rows.size());
        rows.resize(rows.size() + block_length);
    }
    const QwtScaleMap scale = present_scale; // so that the loop need not look whether it changes
    const int start = shift;
    const qsizetype first = index * block_length;
    const qsizetype count = end_within(index) - first;
    const double* const value = values.data() + first;
    qint16* const row = rows.data() + found.place;
    bool is_near_half = false;
    for (qsizetype i = 0; i < count; ++i) {
        const rounded_row each = row_of(scale, value[i]);
        row[i] = kept_as(each.row - start);
        is_near_half |= each.is_near_half;
    }
    found.is_near_half |= is_near_half;
    const auto [top, bottom] = range_of({row, row + count});
    found.top = top;
    found.bottom = bottom;
}

void pixel_rows::count_vertices(qsizetype index)
{
    block& each = blocks[index];
    int vertices = vertices_at(index * block_length);
    if (!each.is_level()) {
        const qsizetype count = end_within(index) - index * block_length;
        vertices += vertices_between({rows_of(each), static_cast<std::size_t>(count)}, kept);
    }
    each.vertices = static_cast<quint8>(vertices);
}

summary pixel_rows::sum_up_in_block(qsizetype first, qsizetype end) const
{
    const qsizetype index = first / block_length;
    const block& all = blocks[index];
    const bool from_start = first == index * block_length;
    if (all.is_level() || (from_start && end == end_within(index)))
        return {{all.top + shift, all.bottom + shift}, from_start ? all.vertices : 0};
    const std::span<const qint16> some(rows_of(all) + first % block_length,
                                       static_cast<std::size_t>(end - first));
    const auto [top, bottom] = range_of(some);
    return {{top + shift, bottom + shift}, vertices_at(first) + vertices_between(some, kept)};
}

summary pixel_rows::sum_up(qsizetype first, qsizetype end) const
{
    summary sum = sum_up_in_block(first, std::min(end_of_block(first), end));
    for (qsizetype i = end_of_block(first); i < end; i += block_length) {
        const auto [range, vertices] = sum_up_in_block(i, std::min(i + block_length, end));
        sum.rows = {std::min(sum.rows.top, range.top), std::max(sum.rows.bottom, range.bottom)};
        sum.vertices += vertices;
    }
    return sum;
}

bool pixel_rows::is_level_at(qsizetype block, int row) const
{
    return blocks[block].top == row && blocks[block].bottom == row;
}

std::optional<qsizetype> pixel_rows::next_row(qsizetype index, qsizetype last) const
{
    const int here = kept_row(index);
    qsizetype i = index + 1;
    while (i <= last) {
        if (i % block_length == 0 && is_level_at(i / block_length, here))
            i += block_length;
        else if (kept_row(i) == here)
            ++i;
        else
            return i;
    }
    return std::nullopt;
}

std::optional<qsizetype> pixel_rows::previous_row(qsizetype index, qsizetype first) const
{
    const int here = kept_row(index);
    qsizetype i = index;
    while (i > first) {
        if (i % block_length == 0 && is_level_at(i / block_length - 1, here))
            i -= block_length;
        else if (kept_row(i - 1) == here)
            --i;
        else
            return i - 1;
    }
    return std::nullopt;
}
