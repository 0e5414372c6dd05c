#pragma once

#include <QtTypes>

#include <qwt_scale_map.h>

#include <span>
#include <vector>

/// Counts how often a series changes its pixel row.
///
/// Qwt draws consecutive points of one pixel as one vertex, so the number of a vertex in the line
/// follows from these changes. Counting looks at every value once; it holds for every section of
/// the time axis, and for all positions of the value axis that are whole pixels apart.
class row_changes
{
public:
    /// `values` must outlive this.
    row_changes(std::span<const double> values, const QwtScaleMap& map);

    /// Whether the rows on `map` change at the same values.
    bool hold_for(const QwtScaleMap& map) const;

    /// How many of the values up to and including `index` have another row than the value before.
    qsizetype up_to(qsizetype index) const;

private:
    qsizetype count_within(qsizetype first, qsizetype end) const;

    std::span<const double> values;
    QwtScaleMap map;
    std::vector<qsizetype> before_block; // changes at the values before each block
};
