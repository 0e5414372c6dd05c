#include "plot/drawing/pixel_rows.h"

#include <QtNumeric>

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
    constexpr double far_away = 1e9;
    const double place = scale.transform(value);
    const double bounded = place < -far_away ? -far_away : place > far_away ? far_away : place;
    const int row = qRound(bounded);
    return {row, std::abs(bounded - row) > 0.5 - negligible};
}

qint16 kept_as(int row)
{
    constexpr int farthest = pixel_rows::farthest_row;
    return static_cast<qint16>(row < -farthest ? -farthest : row > farthest ? farthest : row);
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

pixel_rows::pixel_rows(std::span<const double> values)
    : values(values)
    , rows(size() + 1)
    , blocks((size() + block_length - 1) / block_length)
{
}

void pixel_rows::set_scale(const QwtScaleMap& scale, const row_window& window)
{
    if (is_same(present_scale, scale) &&
        window == row_window{kept.top + shift, kept.bottom + shift})
        return;
    const std::optional<int> moved = moved_by(first_scale, scale);
    if (!moved)
        first_scale = scale;
    for (block& each : blocks)
        each.is_found = each.is_found && moved && !each.is_near_half;
    present_scale = scale;
    shift = moved.value_or(0);
    const row_window now{window.top - shift, window.bottom - shift};
    if (now == kept)
        return;
    kept = now;
    for (qsizetype i = 0; i < blocks.size(); ++i) {
        if (blocks[i].is_found)
            add_up_block(i);
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
    const QwtScaleMap scale = present_scale; // so that the loop need not look whether it changes
    const int start = shift;
    const double* const value = values.data();
    qint16* const row = rows.data() + 1;
    const qsizetype first = index * block_length;
    const rounded_row before = row_of(scale, value[std::max<qsizetype>(first - 1, 0)]);
    bool is_near_half = before.is_near_half;
    row[first - 1] = kept_as(before.row - start);
    for (qsizetype i = first; i < end_within(index); ++i) {
        const rounded_row each = row_of(scale, value[i]);
        row[i] = kept_as(each.row - start);
        is_near_half |= each.is_near_half;
    }
    blocks[index].is_found = true;
    blocks[index].is_near_half = is_near_half;
    add_up_block(index);
}

void pixel_rows::add_up_block(qsizetype index)
{
    const auto [range, vertices] = sum_up_points(index * block_length, end_within(index));
    block& sum = blocks[index];
    sum.top = static_cast<qint16>(range.top - shift);
    sum.bottom = static_cast<qint16>(range.bottom - shift);
    sum.vertices = static_cast<quint8>(vertices);
}

summary pixel_rows::sum_up_points(qsizetype first, qsizetype end) const
{
    const qint16* const row = rows.constData() + 1;
    const row_window window = kept;
    int top = row[first];
    int bottom = row[first];
    int vertices = 0;
    for (qsizetype i = first; i < end; ++i) {
        top = std::min<int>(top, row[i]);
        bottom = std::max<int>(bottom, row[i]);
        vertices += window.vertices_of_change(row[i - 1], row[i]);
    }
    return {{top + shift, bottom + shift}, vertices};
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

bool pixel_rows::is_level(qsizetype block, int row) const
{
    return blocks[block].top == row && blocks[block].bottom == row;
}

std::optional<qsizetype> pixel_rows::next_row(qsizetype index, qsizetype last) const
{
    const int here = kept_row(index);
    qsizetype i = index + 1;
    while (i <= last) {
        if (i % block_length == 0 && is_level(i / block_length, here))
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
        if (i % block_length == 0 && is_level(i / block_length - 1, here))
            i -= block_length;
        else if (kept_row(i - 1) == here)
            --i;
        else
            return i - 1;
    }
    return std::nullopt;
}
