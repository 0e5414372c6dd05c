#pragma once

#include "plot/drawing/sampled_line.h"

#include <QList>
#include <QPolygon>
#include <QRect>

#include <optional>

class QPainter;

/// Draws a line that has far more points than the canvas has pixel columns, with the same pixels as
/// Qwt sets when it draws all of them, but in a time that hardly grows with their number.
///
/// Qwt leaves out points on the pixel of the point before, cuts the rest off at the edges, and
/// draws the line as pieces of seven vertices, each with square caps (vertices 0 to 6, 6 to 12, …).
/// What lies within one pixel column of such a line is a vertical bar, longer by a cap where a
/// piece ends at its tip. So the bars are drawn, and of the pieces only those that lead to another
/// column and are not hidden by the bars of both. Only a line that leaves the canvas at its top or
/// bottom may have its caps elsewhere, since vertices that the cut adds are not counted.
class dense_line
{
public:
    /// `clip` is the rectangle at which Qwt cuts the line off. The points from `first` to the one
    /// before `end` are those within its columns; there is at least one.
    dense_line(const sampled_line& line, const QRect& clip, qsizetype first, qsizetype end);

    /// Draws with the pen of `painter`, which must be solid and wider than one pixel.
    void draw(QPainter& painter) const;

private:
    // The points in one pixel column.
    struct bar
    {
        int column;
        qsizetype first;        // point
        qsizetype last;         // point
        qsizetype first_vertex; // the number of the first point's vertex in the line
        qsizetype last_vertex;
        int top; // pixel rows of the points
        int bottom;
        bool cap_above; // whether a piece ends there
        bool cap_below;
    };

    void find_bars();
    bar bar_of(qsizetype first_point, qsizetype end_point, qsizetype first_vertex) const;
    void draw_bars(QPainter& painter) const;
    bool has_cap_in(const bar& each, int row) const;
    bool has_cap_among(qsizetype first_point, qsizetype end_point, qsizetype first_vertex,
                       int row) const;
    // A vertex of the line, by one of its points. The points outside belong to bars of their own.
    struct vertex
    {
        qsizetype number;
        qsizetype point;
        qsizetype bar;
    };

    struct stretch
    {
        vertex from;
        vertex to;
    };

    using neighbour = std::optional<vertex> (dense_line::*)(const vertex&) const;

    void draw_pieces(QPainter& painter) const;
    bool hides_step(const bar& left, const bar& right, int reach) const;
    static qsizetype piece_of(const vertex& start_of_step);
    void draw_stretch(const stretch& shown, int pen_width, QPainter& painter) const;
    void add_lead(vertex from, neighbour step, int pen_width, QPolygon& vertices) const;
    std::optional<vertex> next(const vertex& from) const;
    std::optional<vertex> previous(const vertex& from) const;

    const sampled_line& line;
    QRect clip;
    qsizetype first;
    qsizetype end;
    QList<bar> bars;
};
