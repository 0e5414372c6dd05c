#include "plot/drawing/sampled_line.h"

#include <algorithm>

sampled_line::sampled_line(std::span<const double> x, std::span<const double> y)
    : x(x)
    , y(y)
    , blocks(y)
    , orderly(blocks.all_are_finite() && value_blocks(x).all_are_finite() &&
              std::ranges::is_sorted(x))
{
}

void sampled_line::set_y_scale(const QwtScaleMap& scale, row_window window)
{
    y_map = scale;
    rows = without_idle_edges(window);
    if (!counted || !counted->holds_for(y_map, rows))
        counted = std::make_unique<vertex_count>(y, y_map, rows);
}

// An edge that the line does not reach is moved with the line, so that panning changes nothing.
row_window sampled_line::without_idle_edges(const row_window& window) const
{
    const auto [low, high] = blocks.range(0, size());
    const auto [top, bottom] = std::minmax({row_of(low), row_of(high)});
    return {std::max(window.top, top), std::min(window.bottom, bottom)};
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
        if (i % value_blocks::length == 0 && block_lies_in(i / value_blocks::length, here))
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
        if (i % value_blocks::length == 0 && block_lies_in(i / value_blocks::length - 1, here))
            i -= value_blocks::length;
        else if (row(i - 1) == here)
            --i;
        else
            return i - 1;
    }
    return std::nullopt;
}
