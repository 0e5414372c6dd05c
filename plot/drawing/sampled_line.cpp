#include "plot/drawing/sampled_line.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// Whether no value is lower than the one before, infinite or NaN, with which no comparison is true.
bool rises_orderly(std::span<const double> values)
{
    const auto fall =
        std::ranges::adjacent_find(values, [](double a, double b) { return !(a <= b); });
    return fall == values.end() && std::isfinite(values.front()) && std::isfinite(values.back());
}

bool is_same(const QwtScaleMap& a, const QwtScaleMap& b)
{
    return a.p1() == b.p1() && a.p2() == b.p2() && a.s1() == b.s1() && a.s2() == b.s2();
}

} // namespace

sampled_line::sampled_line(std::span<const double> x, std::span<const double> y)
    : x(x)
    , y(y)
    , blocks(y)
    , orderly(blocks.all_are_finite() && rises_orderly(x))
{
}

// An edge that the line does not reach is moved to the line, so that panning does not change it.
void sampled_line::set_y_scale(const QwtScaleMap& scale, row_window window)
{
    if (counted && is_same(scale, y_map) && window == asked)
        return;
    y_map = scale;
    asked = window;
    block_rows.clear();
    for (qsizetype i = 0; i < blocks.count(); ++i)
        block_rows.push_back(rows_of(blocks.block(i)));
    const row_range all = rows_of(extent());
    kept = {std::max(window.top, all.top), std::min(window.bottom, all.bottom)};
    if (!counted || !counted->holds_for(y_map, kept))
        counted = std::make_unique<vertex_count>(y, y_map, kept);
}

row_range sampled_line::rows_of(const value_blocks::extent& values) const
{
    const auto [top, bottom] =
        std::minmax({pixel_of(y_map, values.low), pixel_of(y_map, values.high)});
    return {top, bottom};
}

row_range sampled_line::rows_of_points(qsizetype first, qsizetype end) const
{
    row_range rows{std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};
    for (qsizetype i = first; i < end; ++i)
        rows = {std::min(rows.top, row(i)), std::max(rows.bottom, row(i))};
    return rows;
}

row_range sampled_line::rows_of(qsizetype first, qsizetype end) const
{
    constexpr qsizetype length = value_blocks::length;
    const qsizetype first_block = (first + length - 1) / length;
    const qsizetype end_block = end / length;
    if (first_block >= end_block)
        return rows_of_points(first, end);
    row_range rows = rows_of_points(first, first_block * length);
    const auto add = [&rows](const row_range& more) {
        rows = {std::min(rows.top, more.top), std::max(rows.bottom, more.bottom)};
    };
    for (qsizetype i = first_block; i < end_block; ++i)
        add(rows_of_block(i));
    add(rows_of_points(end_block * length, end));
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

std::optional<qsizetype> sampled_line::next_row(qsizetype index, qsizetype last) const
{
    const int here = row(index);
    qsizetype i = index + 1;
    while (i <= last) {
        if (i % value_blocks::length == 0 && rows_of_block(i / value_blocks::length).is_one(here))
            i += value_blocks::length;
        else if (row(i) == here)
            ++i;
        else
            return i;
    }
    return std::nullopt;
}

std::optional<qsizetype> sampled_line::previous_row(qsizetype index, qsizetype first) const
{
    const int here = row(index);
    qsizetype i = index;
    while (i > first) {
        if (i % value_blocks::length == 0 &&
            rows_of_block(i / value_blocks::length - 1).is_one(here))
            i -= value_blocks::length;
        else if (row(i - 1) == here)
            --i;
        else
            return i - 1;
    }
    return std::nullopt;
}
