#pragma once

#include "plot/drawing/sampled_line.h"

#include <QList>
#include <QPolygonF>
#include <QRectF>

#include <optional>

class QPainter;

/// Draws a line that has far more points than the canvas has pixel columns, with the same pixels as
/// Qwt sets when it draws all of them, but in a time that hardly grows with their number.
///
/// Qwt leaves out points on the pixel of the point before, cuts the rest off at the edges, and
/// draws the line as pieces of seven vertices, each with square caps (vertices 0 to 6, 6 to 12, …).
/// What lies within one pixel column of such a line is a vertical bar, longer by a cap where a
/// piece ends at its tip. So the bars are drawn, and of the pieces only the steps from one column
/// to another, and of these only those that the bars of both columns do not hide.
class dense_line
{
public:
    /// `clip` is the rectangle at which Qwt cuts the line off. The points from `first` to the one
    /// before `end` are those within its columns; there is at least one. The pen is wider than one
    /// pixel.
    dense_line(sampled_line& line, const QRectF& clip, double pen_width, qsizetype first,
               qsizetype end);

    /// Draws with the pen of `painter`, which must be solid.
    void draw(QPainter& painter) const;

private:
    // The points in one pixel column. A point's vertex is the last one that the line gets up to it:
    // its own, or that at the edge where the line leaves the canvas before it.
    struct bar
    {
        int column;
        qsizetype first; // point
        qsizetype last;
        qsizetype first_vertex;
        qsizetype last_vertex;
        int top; // row
        int bottom;
        bool cap_above = false; // whether a piece ends at the top and can be seen there
        bool cap_below = false;
    };

    // A point of the line with its vertex, in the bar of this index. The points just outside belong
    // to the bars -1 and one behind the last.
    struct place
    {
        qsizetype vertex;
        qsizetype point;
        qsizetype bar;
    };

    // Steps that are drawn at once, since they belong to one piece.
    struct stretch
    {
        place from;
        place to;
    };

    using neighbour = std::optional<place> (dense_line::*)(const place&) const;

    void find_bars();
    qsizetype vertex_of_first_point() const;
    bar bar_of(qsizetype first_point, qsizetype end_point, qsizetype first_vertex) const;
    void find_caps();
    row_range rows_beside(qsizetype index) const;
    bool has_end_among(qsizetype first_vertex, qsizetype last_vertex) const;
    bool has_cap_in(const bar& each, int row) const;
    bool has_cap_among(qsizetype first_point, qsizetype end_point, qsizetype vertex, int row) const;

    double cap() const { return pen_width / 2.0; } // how far one reaches
    void draw_bars(QPainter& painter) const;
    void draw_steps(QPainter& painter) const;
    QList<stretch> shown_steps() const;
    place start_of(qsizetype bar) const;
    place end_of(qsizetype bar) const;
    bool is_cut_off(qsizetype point, qsizetype next_point) const;
    bool hides_step(const bar& left, const bar& right, int reach) const;
    bool continues(const stretch& shown, const stretch& step) const;
    void draw_stretch(const stretch& shown, QPainter& painter) const;
    void add_lead(place from, neighbour step, QPolygonF& vertices) const;
    std::optional<place> next(const place& from) const;
    std::optional<place> next_in_bar(const place& from) const;
    std::optional<place> previous_in_bar(const place& from) const;
    bool is_in_bar(const place& each) const;

    const sampled_line& line;
    QRectF clip;
    double pen_width;
    qsizetype first;
    qsizetype end;
    const pixel_rows& rows; // of these points and the nearest ones outside
    QList<bar> bars;
};
