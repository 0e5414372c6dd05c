#pragma once

#include "plot/drawing/pixel_map.h"
#include "plot/drawing/row_window.h"
#include "plot/drawing/value_blocks.h"
#include "plot/drawing/vertex_count.h"

#include <QPoint>

#include <memory>
#include <optional>
#include <span>

/// A series of points as a plot draws it with its present scales: which pixel each point has, and
/// how the points of a stretch can be told without looking at each of them.
class sampled_line
{
public:
    /// Both must have the same length and outlive this.
    sampled_line(std::span<const double> x, std::span<const double> y);

    /// Whether x never falls and no coordinate is infinite or NaN. If not, only `size` may be
    /// asked.
    bool is_orderly() const { return orderly; }

    qsizetype size() const { return static_cast<qsizetype>(x.size()); }
    double x_of(qsizetype index) const { return x[static_cast<std::size_t>(index)]; }

    const value_blocks& values() const { return blocks; }

    /// Sets the scale that columns refer to. It must not be inverted.
    void set_x_scale(const QwtScaleMap& scale) { x_map = scale; }

    int column(qsizetype index) const { return pixel_of(x_map, x_of(index)); }

    /// The first point from `first` on that lies in `column` or behind it, or `end`.
    qsizetype first_from_column(int column, qsizetype first, qsizetype end) const;

    /// Sets the scale that rows, and with them all below, refer to, and the rows between which the
    /// line is kept. The first time, and after that wherever they change the vertices of the line,
    /// every value is looked at once.
    void set_y_scale(const QwtScaleMap& scale, row_window window);

    /// The rows of the line that are kept.
    const row_window& window() const { return rows; }

    int row_of(double value) const { return pixel_of(y_map, value); }
    int row(qsizetype index) const { return row_of(y[static_cast<std::size_t>(index)]); }
    QPoint pixel(qsizetype index) const { return {column(index), row(index)}; }

    /// The vertices that the points up to and including `index` make in one pixel column; only
    /// differences mean something.
    qsizetype vertices_up_to(qsizetype index) const { return counted->up_to(index); }

    /// The nearest point behind `index`, `last` at most, that has another row.
    std::optional<qsizetype> next_row(qsizetype index, qsizetype last) const;
    /// The nearest point before `index`, `first` at least, that has another row.
    std::optional<qsizetype> previous_row(qsizetype index, qsizetype first) const;

    /// Whether all points of a block lie in this row.
    bool block_lies_in(qsizetype block, int row) const
    {
        const auto [low, high] = blocks.block(block);
        return row_of(low) == row && row_of(high) == row;
    }

    /// Whether the points of a block may lie in this row.
    bool block_reaches(qsizetype block, int row) const
    {
        const auto [low, high] = blocks.block(block);
        return y_map.isInverting() ? row_of(high) <= row && row <= row_of(low)
                                   : row_of(low) <= row && row <= row_of(high);
    }

private:
    row_window without_idle_edges(const row_window& window) const;

    std::span<const double> x;
    std::span<const double> y;
    value_blocks blocks;
    bool orderly;
    QwtScaleMap x_map;
    QwtScaleMap y_map;
    row_window rows{0, 0};
    std::unique_ptr<const vertex_count> counted;
};
