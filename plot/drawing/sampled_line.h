#pragma once

#include "plot/drawing/pixel_map.h"
#include "plot/drawing/row_window.h"
#include "plot/drawing/value_blocks.h"
#include "plot/drawing/vertex_count.h"

#include <QPoint>

#include <memory>
#include <optional>
#include <span>
#include <vector>

/// A series of points as a plot draws it with its present scales: which pixel each point has, and
/// how the points of a stretch can be told without looking at each of them.
class sampled_line
{
public:
    /// Both must have the same length, one point at least, and outlive this.
    sampled_line(std::span<const double> x, std::span<const double> y);

    /// Whether x never falls and no coordinate is infinite or NaN. If not, only `size` may be
    /// asked.
    bool is_orderly() const { return orderly; }

    qsizetype size() const { return static_cast<qsizetype>(x.size()); }
    double x_of(qsizetype index) const { return x[static_cast<std::size_t>(index)]; }

    /// The range of all values.
    value_blocks::extent extent() const { return blocks.all(); }

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
    const row_window& window() const { return kept; }

    int row(qsizetype index) const { return pixel_of(y_map, y[static_cast<std::size_t>(index)]); }
    QPoint pixel(qsizetype index) const { return {column(index), row(index)}; }

    /// The vertices that the points up to and including `index` make in one pixel column; only
    /// differences mean something.
    qsizetype vertices_up_to(qsizetype index) const { return counted->up_to(index); }

    /// The nearest point behind `index`, `last` at most, that has another row.
    std::optional<qsizetype> next_row(qsizetype index, qsizetype last) const;
    /// The nearest point before `index`, `first` at least, that has another row.
    std::optional<qsizetype> previous_row(qsizetype index, qsizetype first) const;

    /// The rows of the points from `first` to the one before `end`; there must be at least one.
    row_range rows_of(qsizetype first, qsizetype end) const;

    /// The rows of a block of points, as value_blocks has them.
    const row_range& rows_of_block(qsizetype block) const
    {
        return block_rows[static_cast<std::size_t>(block)];
    }

private:
    row_range rows_of(const value_blocks::extent& values) const;
    row_range rows_of_points(qsizetype first, qsizetype end) const;

    std::span<const double> x;
    std::span<const double> y;
    value_blocks blocks;
    bool orderly;
    QwtScaleMap x_map;
    QwtScaleMap y_map;
    row_window asked{0, 0}; // the window that was set
    row_window kept{0, 0};
    std::vector<row_range> block_rows;
    std::unique_ptr<const vertex_count> counted;
};
