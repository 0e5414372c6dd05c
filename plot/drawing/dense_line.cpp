#include "plot/drawing/dense_line.h"

#include <QPainter>
#include <QPen>
#include <QtMath>

#include <qwt_clipper.h>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <numbers>

namespace {

constexpr qsizetype edges_of_a_piece = 6;

bool ends_a_piece(qsizetype vertex)
{
    return vertex % edges_of_a_piece == 0;
}

// The row where a line from a point on the left of the clip rectangle to one within its columns
// enters them.
double row_of_entry(const QPointF& outside, const QPointF& inside, const QRectF& clip)
{
    const double share = (clip.left() - outside.x()) / (inside.x() - outside.x());
    return outside.y() + share * (inside.y() - outside.y());
}

} // namespace

dense_line::dense_line(const sampled_line& line, const QRectF& clip, double pen_width,
                       qsizetype first, qsizetype end)
    : line(line)
    , clip(clip)
    , pen_width(pen_width)
    , first(first)
    , end(end)
{
    find_bars();
    find_caps();
}

void dense_line::draw(QPainter& painter) const
{
    draw_bars(painter);
    draw_steps(painter);
}

void dense_line::find_bars()
{
    qsizetype vertex = vertex_of_first_point();
    for (qsizetype point = first; point < end;) {
        const qsizetype next = line.first_from_column(line.column(point) + 1, point, end);
        bars.append(bar_of(point, next, vertex));
        if (next < end) {
            vertex = bars.last().last_vertex +
                     line.window().vertices_of_step(line.row(next - 1), line.row(next));
        }
        point = next;
    }
}

// The first vertex has the number 0: the point itself, or where the line enters from the left.
qsizetype dense_line::vertex_of_first_point() const
{
    const row_window& window = line.window();
    if (first == 0)
        return window.has(line.row(first)) - 1;
    const double row = row_of_entry(line.pixel(first - 1), line.pixel(first), clip);
    return window.has(row) + window.vertices_of_step(row, line.row(first)) - 1;
}

dense_line::bar dense_line::bar_of(qsizetype first_point, qsizetype end_point,
                                   qsizetype first_vertex) const
{
    const auto [top, bottom] = line.rows_of(first_point, end_point);
    const qsizetype last_point = end_point - 1;
    const qsizetype last_vertex =
        first_vertex + line.vertices_up_to(last_point) - line.vertices_up_to(first_point);
    return {
        line.column(first_point), first_point, last_point, first_vertex, last_vertex, top, bottom};
}

void dense_line::find_caps()
{
    for (qsizetype i = 0; i < bars.size(); ++i) {
        bar& each = bars[i];
        if (each.top == each.bottom)
            continue;
        const row_range hidden = rows_beside(i);
        const double cap = pen_width / 2.0;
        each.cap_above = hidden.top > each.top - cap && has_cap_in(each, each.top);
        each.cap_below = hidden.bottom < each.bottom + cap && has_cap_in(each, each.bottom);
    }
}

// The rows that the bars on both sides have in common: as wide as a bar, they hide its caps there.
row_range dense_line::rows_beside(qsizetype index) const
{
    constexpr row_range none{std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};
    if (index == 0 || index + 1 == bars.size())
        return none;
    const bar& left = bars[index - 1];
    const bar& right = bars[index + 1];
    if (right.column != left.column + 2)
        return none;
    return {std::max(left.top, right.top), std::min(left.bottom, right.bottom)};
}

// Whether a piece ends in the row, which is the top or the bottom one.
bool dense_line::has_cap_in(const bar& each, int row) const
{
    const qsizetype last_end = each.last_vertex / edges_of_a_piece * edges_of_a_piece;
    if (last_end < each.first_vertex || !line.window().has(row))
        return false;
    const qsizetype offset = each.first_vertex - line.vertices_up_to(each.first);
    for (qsizetype point = each.first; point <= each.last;) {
        const qsizetype block = point / value_blocks::length;
        const qsizetype next = std::min((block + 1) * value_blocks::length, each.last + 1);
        if (line.rows_of_block(block).has(row) &&
            has_cap_among(point, next, offset + line.vertices_up_to(point), row))
            return true;
        point = next;
    }
    return false;
}

// The same for some points of one block.
bool dense_line::has_cap_among(qsizetype first_point, qsizetype end_point, qsizetype first_vertex,
                               int row) const
{
    if (line.rows_of_block(first_point / value_blocks::length).is_one(row))
        return ends_a_piece(first_vertex);
    qsizetype vertex = first_vertex;
    int last_row = line.row(first_point);
    for (qsizetype point = first_point; point < end_point; ++point) {
        const int next_row = line.row(point);
        vertex += line.window().vertices_of_change(last_row, next_row);
        last_row = next_row;
        if (next_row == row && ends_a_piece(vertex))
            return true;
    }
    return false;
}

// As rectangles, since these are filled in a fraction of the time that lines take.
void dense_line::draw_bars(QPainter& painter) const
{
    const QPen pen = painter.pen();
    const double cap = pen_width / 2.0;
    QList<QRectF> rectangles;
    for (const bar& each : bars) {
        const double from = std::max<double>(each.top, clip.top()) - (each.cap_above ? cap : 0.0);
        const double to =
            std::min<double>(each.bottom, clip.bottom()) + (each.cap_below ? cap : 0.0);
        if (from < to)
            rectangles.append(QRectF(each.column - cap, from, 2.0 * cap, to - from));
    }
    const QBrush brush = painter.brush();
    painter.setPen(Qt::NoPen);
    painter.setBrush(pen.color());
    painter.drawRects(rectangles);
    painter.setBrush(brush);
    painter.setPen(pen);
}

void dense_line::draw_steps(QPainter& painter) const
{
    std::optional<stretch> shown;
    for (const stretch& step : shown_steps()) {
        if (shown && continues(*shown, step.from)) {
            shown->to = step.to;
            continue;
        }
        if (shown)
            draw_stretch(*shown, painter);
        shown = step;
    }
    if (shown)
        draw_stretch(*shown, painter);
}

// The steps that can be seen: from the point outside on the left to the first bar, from bar to bar,
// and to the point outside on the right.
QList<dense_line::stretch> dense_line::shown_steps() const
{
    // The corners of a cap are farthest away; a pixel is set where its centre is covered.
    const int reach = qCeil(pen_width * std::numbers::sqrt2 / 2.0 - 0.5);
    QList<stretch> steps;
    const auto add = [&](const place& from, const place& to) {
        if (!is_cut_off(from.point, to.point))
            steps.append({from, to});
    };
    if (first > 0)
        add({0, first - 1, -1}, start_of(0));
    for (qsizetype i = 0; i + 1 < bars.size(); ++i) {
        if (!hides_step(bars[i], bars[i + 1], reach))
            add(end_of(i), start_of(i + 1));
    }
    if (end < line.size())
        add(end_of(bars.size() - 1), {bars.last().last_vertex + 1, end, bars.size()});
    return steps;
}

dense_line::place dense_line::start_of(qsizetype bar) const
{
    return {bars[bar].first_vertex, bars[bar].first, bar};
}

dense_line::place dense_line::end_of(qsizetype bar) const
{
    return {bars[bar].last_vertex, bars[bar].last, bar};
}

// Whether both points lie beyond the same edge.
bool dense_line::is_cut_off(qsizetype point, qsizetype next_point) const
{
    const auto [upper, lower] = std::minmax({line.row(point), line.row(next_point)});
    return lower < clip.top() || upper > clip.bottom();
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

// Whether a step belongs to the piece of a stretch and is joined with it within the canvas:
// outside, there may be any number of points between two vertices.
bool dense_line::continues(const stretch& shown, const place& step) const
{
    if (shown.from.vertex / edges_of_a_piece != step.vertex / edges_of_a_piece)
        return false;
    std::optional<place> each = shown.to;
    while (each && each->vertex < step.vertex && line.window().has(line.row(each->point)))
        each = next(*each);
    return each && each->bar == step.bar && line.window().has(line.row(each->point));
}

void dense_line::draw_stretch(const stretch& shown, QPainter& painter) const
{
    QPolygonF vertices;
    add_lead(shown.from, &dense_line::previous, vertices);
    std::ranges::reverse(vertices);
    std::optional<place> each = shown.from;
    while (each && each->bar < shown.to.bar) {
        vertices.append(line.pixel(each->point));
        each = next(*each);
    }
    vertices.append(line.pixel(shown.to.point));
    add_lead(shown.to, &dense_line::next, vertices);
    QwtClipper::clipPolygonF(clip, vertices, false);
    painter.drawPolyline(vertices);
}

// Adds what of the same piece comes next behind or before a stretch, as far as the joint at its end
// shows: what lies deeper in a bar, in a hidden step or outside of the canvas is not needed.
void dense_line::add_lead(place from, neighbour step, QPolygonF& vertices) const
{
    const int stub = qCeil(pen_width);
    while (line.window().has(line.row(from.point)) && !ends_a_piece(from.vertex)) {
        const std::optional<place> other = (this->*step)(from);
        if (!other)
            return;
        const QPoint here = line.pixel(from.point);
        const QPoint there = line.pixel(other->point);
        const int rows = there.y() - here.y();
        const bool leaves_bar = other->bar != from.bar;
        const bool is_long = !leaves_bar && std::abs(rows) >= 2 * stub;
        vertices.append(is_long ? here + QPoint(0, rows > 0 ? stub : -stub) : there);
        if (is_long || leaves_bar)
            return;
        from = *other;
    }
}

std::optional<dense_line::place> dense_line::next(const place& from) const
{
    const row_window& window = line.window();
    if (from.bar >= 0 && from.bar < bars.size()) {
        if (const auto point = line.next_row(from.point, bars[from.bar].last)) {
            const int added = window.vertices_of_change(line.row(from.point), line.row(*point));
            return place{from.vertex + added, *point, from.bar};
        }
    }
    const qsizetype bar = from.bar + 1;
    if (bar < bars.size())
        return start_of(bar);
    if (bar > bars.size() || end == line.size())
        return std::nullopt;
    return place{bars.last().last_vertex + 1, end, bar};
}

std::optional<dense_line::place> dense_line::previous(const place& from) const
{
    const row_window& window = line.window();
    if (from.bar < 0)
        return std::nullopt;
    if (const auto point = line.previous_row(from.point, bars[from.bar].first)) {
        const int added = window.vertices_of_change(line.row(*point), line.row(from.point));
        return place{from.vertex - added, *point, from.bar};
    }
    if (from.bar > 0)
        return end_of(from.bar - 1);
    return first > 0 ? std::optional(place{0, first - 1, -1}) : std::nullopt;
}
