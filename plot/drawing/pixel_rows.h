#pragma once

#include "plot/drawing/row_window.h"
#include "plot/drawing/value_blocks.h"

#include <QList>

#include <qwt_scale_map.h>

#include <algorithm>
#include <limits>
#include <optional>
#include <span>
#include <vector>

/// The pixel row of each value of a series, as a plot draws it with the present scale of its value
/// axis, and what the rows of a long stretch have in common.
///
/// A row is found when it is first needed, and then kept as a small number: a zoom or a pan of the
/// time axis reads these, no values. The rows of each block of values are summed up. A row far
/// above or below the window stands for all that are still farther away.
class pixel_rows
{
public:
    static constexpr qsizetype block_length = value_blocks::length;
    static constexpr int farthest_row = 30'000;    ///< that is kept; see above
    static constexpr int farthest_window = 10'000; ///< from 0

    /// What some points have in common.
    struct summary
    {
        row_range rows;
        qsizetype vertices; ///< that the line gets at these points, each seen from the one before
    };

    /// The values and their ranges must outlive this.
    pixel_rows(std::span<const double> values, const value_blocks& ranges);

    /// Sets the scale and the rows between which the line is kept, none of them farther away than
    /// `farthest_window`. Rows that have been found remain if they only move, all by the same whole
    /// number.
    void set_scale(const QwtScaleMap& scale, const row_window& window);

    /// Finds the rows of the points from `first` to the one before `end`, whose blocks must be
    /// finite. All that follows may be asked of such points only.
    void find(qsizetype first, qsizetype end);

    int row(qsizetype index) const { return kept_row(index) + shift; }

    /// How many vertices the line gets at a point, if the one before is in the same pixel column:
    /// consecutive points of one row make one vertex, and so does each crossing of an edge.
    int vertices_at(qsizetype index) const
    {
        const int before =
            index % block_length == 0 ? blocks[index / block_length].before : kept_row(index - 1);
        return kept.vertices_of_change(before, kept_row(index));
    }

    /// There must be at least one point.
    summary sum_up(qsizetype first, qsizetype end) const;

    /// The same for points of one block, at once if these are all of it.
    summary sum_up_in_block(qsizetype first, qsizetype end) const;

    /// The first point of the next block.
    static qsizetype end_of_block(qsizetype index)
    {
        return (index / block_length + 1) * block_length;
    }

    /// The nearest point behind `index`, `last` at most, that has another row.
    std::optional<qsizetype> next_row(qsizetype index, qsizetype last) const;
    /// The nearest point before `index`, `first` at least, that has another row.
    std::optional<qsizetype> previous_row(qsizetype index, qsizetype first) const;

private:
    // What is known of a block. No point makes more than three vertices.
    struct block
    {
        qint16 before; // the row of the point before, or of the first of all
        qint16 top;
        qint16 bottom;
        quint8 vertices;
        bool is_found = false;
        bool is_near_half; // whether the rows may not move without being found anew
        int place = -1;    // of its rows, once it has been more than level

        bool is_level() const { return top == bottom; }
    };
    static_assert(3 * block_length <= std::numeric_limits<quint8>::max());

    qsizetype size() const { return static_cast<qsizetype>(values.size()); }
    qsizetype end_within(qsizetype block) const
    {
        return std::min((block + 1) * block_length, size());
    }
    int kept_row(qsizetype index) const
    {
        const block& all = blocks[index / block_length];
        return all.is_level() ? all.top : rows_of(all)[index % block_length];
    }
    const qint16* rows_of(const block& each) const { return rows.data() + each.place; }
    void find_block(qsizetype index);
    void find_rows(qsizetype index);
    void count_vertices(qsizetype index);
    bool is_level_at(qsizetype block, int row) const;

    std::span<const double> values;
    const value_blocks& ranges;
    QwtScaleMap first_scale; // to which the rows that are kept belong
    QwtScaleMap present_scale;
    int shift = 0;         // from the rows that are kept to the present ones
    row_window kept{0, 0}; // in the same terms as these rows
    // Only of blocks that are not level: memory that is not touched costs no time.
    std::vector<qint16> rows;
    QList<block> blocks;
};
