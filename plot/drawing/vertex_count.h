#pragma once

#include "plot/drawing/row_window.h"

#include <QtTypes>

#include <qwt_scale_map.h>

#include <span>
#include <vector>

/// Counts the vertices of the line that Qwt draws through a series, as long as the line stays in
/// one pixel column: consecutive points of one row make one vertex, and so does each crossing of an
/// edge.
///
/// Counting looks at every value once. It holds for every section of the time axis, and for all
/// positions of the value axis and the edges that are the same whole number of pixels away.
class vertex_count
{
public:
    /// `values` must outlive this.
    vertex_count(std::span<const double> values, const QwtScaleMap& map, const row_window& window);

    /// Whether the vertices on another scale are the same.
    bool holds_for(const QwtScaleMap& map, const row_window& window) const;

    /// The vertices that the values up to and including `index` have made. Only differences mean
    /// something.
    qsizetype up_to(qsizetype index) const;

private:
    qsizetype count_within(qsizetype first, qsizetype end) const;

    std::span<const double> values;
    QwtScaleMap map;
    row_window window;
    std::vector<qsizetype> before_block; // vertices that the values before each block have made
};
