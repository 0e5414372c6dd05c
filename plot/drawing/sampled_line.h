#pragma once

#include "plot/drawing/pixel_map.h"
#include "plot/drawing/pixel_rows.h"
#include "plot/drawing/row_window.h"
#include "plot/drawing/value_blocks.h"

#include <QPoint>

#include <span>

/// A series of points as a plot draws it with its present scales.
class sampled_line
{
public:
    /// Both must have the same length, one point at least, and outlive this.
    sampled_line(std::span<const double> x, std::span<const double> y);

    /// Whether x never falls and is nowhere infinite or NaN. If not, only `size` may be asked.
    bool is_orderly() const { return orderly; }

    /// Whether y is nowhere infinite or NaN.
    bool is_finite() const { return blocks.all_are_finite(); }
    /// The same for the points from `first` to the one before `end`, and those nearby.
    bool is_finite(qsizetype first, qsizetype end) const;

    qsizetype size() const { return static_cast<qsizetype>(x.size()); }
    double x_of(qsizetype index) const { return x[static_cast<std::size_t>(index)]; }

    /// The range of all values, if there is one.
    value_blocks::extent range() const { return blocks.all(); }

    /// Sets the scale that columns refer to. It must not be inverted.
    void set_x_scale(const QwtScaleMap& scale) { x_map = scale; }

    /// Sets the scale that rows refer to, and the rows between which the line is kept.
    void set_y_scale(const QwtScaleMap& scale, const row_window& window);

    int column(qsizetype index) const { return pixel_of(x_map, x_of(index)); }
    QPoint pixel(qsizetype index) const
    {
        return {column(index), pixel_of(y_map, y[static_cast<std::size_t>(index)])};
    }

    /// The first point from `first` on that lies in `column` or behind it, or `end`.
    qsizetype first_from_column(int column, qsizetype first, qsizetype end) const;

    /// The rows of the points from `first` to the one before `end`, which must be finite. All of
    /// them are looked at once, and then only if the scale of y changes.
    const pixel_rows& rows_of(qsizetype first, qsizetype end);

    /// The rows of the line that are kept.
    const row_window& window() const { return kept; }

private:
    std::span<const double> x;
    std::span<const double> y;
    value_blocks blocks;
    bool orderly;
    QwtScaleMap x_map;
    QwtScaleMap y_map;
    row_window kept{0, 0};
    pixel_rows rows;
};
