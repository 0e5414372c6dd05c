#include "plot/drawing/dense_line.h"

#include <QPainter>
#include <QPen>

#include <qwt_clipper.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>

namespace {

constexpr qsizetype edges_of_a_piece = 6;

bool ends_a_piece(qsizetype vertex)
{
    return vertex % edges_of_a_piece == 0;
}

} // namespace

dense_line::dense_line(const sampled_line& line, const QRect& clip, qsizetype first, qsizetype end)
    : line(line)
    , clip(clip)
    , first(first)
    , end(end)
{
    find_bars();
}

void dense_line::draw(QPainter& painter) const
{
    draw_bars(painter);
    draw_pieces(painter);
}

// Where the line enters from the left, the cut leaves one vertex before the first point.
void dense_line::find_bars()
{
    qsizetype vertex = first > 0 ? 1 : 0;
    for (qsizetype point = first; point < end;) {
        const qsizetype next = line.first_from_column(line.column(point) + 1, point, end);
        bars.append(bar_of(point, next, vertex));
        vertex = bars.last().last_vertex + 1;
        point = next;
    }
}

dense_line::bar dense_line::bar_of(qsizetype first_point, qsizetype end_point,
                                   qsizetype first_vertex) const
{
    const auto [low, high] = line.values().range(first_point, end_point);
    const auto [top, bottom] = std::minmax({line.row_of(low), line.row_of(high)});
    const qsizetype last_point = end_point - 1;
    const qsizetype last_vertex =
        first_vertex + line.row_changes_up_to(last_point) - line.row_changes_up_to(first_point);
    bar found{line.column(first_point),
              first_point,
              last_point,
              first_vertex,
              last_vertex,
              top,
              bottom,
              false,
              false};
    if (top < bottom) {
        found.cap_above = has_cap_in(found, top);
        found.cap_below = has_cap_in(found, bottom);
    }
    return found;
}

void dense_line::draw_bars(QPainter& painter) const
{
    const QPen pen = painter.pen();
    const double cap = pen.widthF() / 2.0;
    QList<QLineF> lines;
    for (const bar& each : bars) {
        if (each.top == each.bottom)
            continue;
        const double from = each.cap_above ? each.top - cap : each.top;
        const double to = each.cap_below ? each.bottom + cap : each.bottom;
        lines.append(QLineF(each.column, from, each.column, to));
    }
    QPen without_caps = pen;
    without_caps.setCapStyle(Qt::FlatCap);
    painter.setPen(without_caps);
    painter.drawLines(lines);
    painter.setPen(pen);
}

// Whether a piece ends in the row, which is the top or the bottom one.
bool dense_line::has_cap_in(const bar& each, int row) const
{
    if (each.last_vertex / edges_of_a_piece * edges_of_a_piece < each.first_vertex)
        return false;
    const qsizetype offset = each.first_vertex - line.row_changes_up_to(each.first);
    for (qsizetype point = each.first; point <= each.last;) {
        const qsizetype block = point / value_blocks::length;
        const qsizetype next = std::min((block + 1) * value_blocks::length, each.last + 1);
        const auto [low, high] = line.values().block(block);
        if ((line.row_of(low) == row || line.row_of(high) == row) &&
            has_cap_among(point, next, offset + line.row_changes_up_to(point), row))
            return true;
        point = next;
    }
    return false;
}

// The same for some points of one block.
bool dense_line::has_cap_among(qsizetype first_point, qsizetype end_point, qsizetype first_vertex,
                               int row) const
{
    if (line.block_lies_in(first_point / value_blocks::length, row))
        return ends_a_piece(first_vertex);
    qsizetype vertex = first_vertex;
    int last_row = line.row(first_point);
    for (qsizetype point = first_point; point < end_point; ++point) {
        const int next_row = line.row(point);
        vertex += next_row != last_row ? 1 : 0;
        last_row = next_row;
        if (next_row == row && ends_a_piece(vertex))
            return true;
    }
    return false;
}

// The steps from the point outside on the left to the first bar, from bar to bar, and to the point
// outside on the right. Steps of one piece are drawn at once.
void dense_line::draw_pieces(QPainter& painter) const
{
    const double width = painter.pen().widthF();
    const int pen_width = static_cast<int>(std::ceil(width));
    // The corners of a cap are farthest away; a pixel is set where its centre is covered.
    const int reach = static_cast<int>(std::ceil(width * std::numbers::sqrt2 / 2.0 - 0.5));
    std::optional<stretch> shown;
    const auto add = [&](const vertex& from) {
        if (shown && piece_of(shown->from) == piece_of(from)) {
            shown->to = *next(from);
            return;
        }
        if (shown)
            draw_stretch(*shown, pen_width, painter);
        shown = stretch{from, *next(from)};
    };
    if (first > 0)
        add({0, first - 1, -1});
    for (qsizetype i = 0; i + 1 < bars.size(); ++i) {
        if (!hides_step(bars[i], bars[i + 1], reach))
            add({bars[i].last_vertex, bars[i].last, i});
    }
    if (end < line.size())
        add({bars.last().last_vertex, bars.last().last, bars.size() - 1});
    if (shown)
        draw_stretch(*shown, pen_width, painter);
}

// Whether the bars of two neighbouring columns cover all that the step between them may set.
// `reach` is how many rows it may reach beyond its ends.
bool dense_line::hides_step(const bar& left, const bar& right, int reach) const
{
    if (right.column != left.column + 1)
        return false;
    const auto [upper, lower] = std::minmax({line.row(left.last), line.row(right.first)});
    return upper - reach >= std::max(left.top - left.cap_above, right.top - right.cap_above) &&
           lower + reach <= std::min(left.bottom + left.cap_below, right.bottom + right.cap_below);
}

qsizetype dense_line::piece_of(const vertex& start_of_step)
{
    return start_of_step.number / edges_of_a_piece;
}

void dense_line::draw_stretch(const stretch& shown, int pen_width, QPainter& painter) const
{
    QPolygon vertices;
    add_lead(shown.from, &dense_line::previous, pen_width, vertices);
    std::ranges::reverse(vertices);
    for (vertex each = shown.from; each.number < shown.to.number; each = *next(each))
        vertices.append(line.pixel(each.point));
    vertices.append(line.pixel(shown.to.point));
    add_lead(shown.to, &dense_line::next, pen_width, vertices);
    QwtClipper::clipPolygon(clip, vertices, false);
    painter.drawPolyline(vertices);
}

// Adds what of the same piece comes next behind or before a stretch, as far as the joint at its end
// shows: what lies deeper in a bar, or in a hidden step, is drawn already.
void dense_line::add_lead(vertex from, neighbour step, int pen_width, QPolygon& vertices) const
{
    while (!ends_a_piece(from.number)) {
        const std::optional<vertex> other = (this->*step)(from);
        if (!other)
            return;
        const QPoint here = line.pixel(from.point);
        const QPoint there = line.pixel(other->point);
        const int rows = there.y() - here.y();
        const bool leaves_bar = other->bar != from.bar;
        const bool is_long = !leaves_bar && std::abs(rows) >= 2 * pen_width;
        vertices.append(is_long ? here + QPoint(0, rows > 0 ? pen_width : -pen_width) : there);
        if (is_long || leaves_bar)
            return;
        from = *other;
    }
}

std::optional<dense_line::vertex> dense_line::next(const vertex& from) const
{
    if (from.bar >= 0 && from.bar < bars.size()) {
        if (const auto point = line.next_row(from.point, bars[from.bar].last))
            return vertex{from.number + 1, *point, from.bar};
    }
    const qsizetype point = from.bar < 0 ? first : bars[from.bar].last + 1;
    if (from.bar == bars.size() || point == line.size())
        return std::nullopt;
    return vertex{from.number + 1, point, from.bar + 1};
}

std::optional<dense_line::vertex> dense_line::previous(const vertex& from) const
{
    if (const auto point = line.previous_row(from.point, bars[from.bar].first))
        return vertex{from.number - 1, *point, from.bar};
    const qsizetype point = bars[from.bar].first - 1;
    return vertex{from.number - 1, point, from.bar - 1};
}
