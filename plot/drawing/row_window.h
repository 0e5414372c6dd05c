#pragma once

/// The pixel rows of some points, the upper one first.
struct row_range
{
    int top;
    int bottom;

    bool has(int row) const { return row >= top && row <= bottom; }
};

/// The pixel rows between which Qwt keeps a line: what leaves them is cut off, with one more vertex
/// at the edge wherever the line crosses it.
struct row_window
{
    int top;
    int bottom; ///< the last row within

    template <class place>
    bool has(place row) const
    {
        return row >= top && row <= bottom;
    }

    /// How many vertices the line gets by going on to a point in row `to`.
    template <class place>
    int vertices_of_step(place from, int to) const
    {
        return ((from < top) != (to < top)) + ((from > bottom) != (to > bottom)) + has(to);
    }

    /// The same within a pixel column, where a point in the row of the one before is left out.
    int vertices_of_change(int from, int to) const
    {
        return from == to ? 0 : vertices_of_step(from, to);
    }

    bool operator==(const row_window&) const = default;
};
