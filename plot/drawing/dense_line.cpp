#include "plot/drawing/dense_line.h"

#include <QPainter>
#include <QPen>
#include <QtMath>

#include <qwt_clipper.h>

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace {

constexpr qsizetype edges_of_a_piece = 6;

bool ends_a_piece(qsizetype vertex)
{
    return vertex % edges_of_a_piece == 0;
}

// The piece of the edge that ends at a vertex.
qsizetype piece_before(qsizetype vertex)
{
    return (vertex - 1) / edges_of_a_piece;
}

// The pixels that a rectangle sets when Qt draws its area: those with their centres inside, on its
// right or on its lower edge.
QRect pixels_within(double left, double right, double top, double bottom)
{
    return {QPoint(qFloor(left + 0.5), qFloor(top + 0.5)),
            QPoint(qFloor(right - 0.5), qFloor(bottom - 0.5))};
}

// The row where a line from a point on the left of the clip rectangle to one within its columns
// enters them.
double row_of_entry(const QPointF& outside, const QPointF& inside, const QRectF& clip)
{
    const double share = (clip.left() - outside.x()) / (inside.x() - outside.x());
    return outside.y() + share * (inside.y() - outside.y());
}

} // namespace

dense_line::dense_line(sampled_line& line, const QRectF& clip, double pen_width, qsizetype first,
                       qsizetype end)
    : line(line)
    , clip(clip)
    , pen_width(pen_width)
    , first(first)
    , end(end)
    , rows(line.rows_of(std::max<qsizetype>(first - 1, 0), std::min(end + 1, line.size())))
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
                     line.window().vertices_of_step(rows.row(next - 1), rows.row(next));
        }
        point = next;
    }
}

// The first vertex has the number 0: the point itself, or where the line enters from the left.
qsizetype dense_line::vertex_of_first_point() const
{
    const row_window& window = line.window();
    if (first == 0)
        return window.has(rows.row(first)) - 1;
    const double row = row_of_entry(line.pixel(first - 1), line.pixel(first), clip);
    return window.has(row) + window.vertices_of_step(row, rows.row(first)) - 1;
}

dense_line::bar dense_line::bar_of(qsizetype first_point, qsizetype end_point,
                                   qsizetype first_vertex) const
{
    const auto [range, vertices] = rows.sum_up(first_point, end_point);
    const qsizetype last_vertex = first_vertex + vertices - rows.vertices_at(first_point);
    return {line.column(first_point),
            first_point,
            end_point - 1,
            first_vertex,
            last_vertex,
            range.top,
            range.bottom};
}

void dense_line::find_caps()
{
    for (qsizetype i = 0; i < bars.size(); ++i) {
        bar& each = bars[i];
        if (each.top == each.bottom)
            continue;
        const row_range hidden = rows_beside(i);
        each.cap_above = hidden.top > each.top - cap() && has_cap_in(each, each.top);
        each.cap_below = hidden.bottom < each.bottom + cap() && has_cap_in(each, each.bottom);
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

// Whether a piece ends at one of these vertices, both included: at each sixth, and the last one
// where the whole line ends.
bool dense_line::has_end_among(qsizetype first_vertex, qsizetype last_vertex) const
{
    const bool has_sixth = last_vertex / edges_of_a_piece * edges_of_a_piece >= first_vertex;
    const qsizetype end_of_line = bars.last().last_vertex;
    return has_sixth ||
           (end == line.size() && end_of_line >= first_vertex && end_of_line <= last_vertex);
}

// Whether a piece ends in the row, which is the top or the bottom one.
bool dense_line::has_cap_in(const bar& each, int row) const
{
    if (!has_end_among(each.first_vertex, each.last_vertex) || !line.window().has(row))
        return false;
    qsizetype vertex = each.first_vertex - rows.vertices_at(each.first);
    for (qsizetype point = each.first; point <= each.last;) {
        const qsizetype next = std::min(pixel_rows::end_of_block(point), each.last + 1);
        const auto [range, vertices] = rows.sum_up_in_block(point, next);
        if (range.has(row) && has_end_among(vertex, vertex + vertices) &&
            has_cap_among(point, next, vertex, row))
            return true;
        vertex += vertices;
        point = next;
    }
    return false;
}

// The same for some points, of which `vertex` is the one before the first.
bool dense_line::has_cap_among(qsizetype first_point, qsizetype end_point, qsizetype vertex,
                               int row) const
{
    for (qsizetype point = first_point; point < end_point; ++point) {
        vertex += rows.vertices_at(point);
        if (has_end_among(vertex, vertex) && rows.row(point) == row)
            return true;
    }
    return false;
}

// As whole pixels, since these are filled in a fraction of the time that lines take.
void dense_line::draw_bars(QPainter& painter) const
{
    const QPen pen = painter.pen();
    QList<QRect> rectangles;
    for (const bar& each : bars) {
        const double from = std::max<double>(each.top, clip.top()) - (each.cap_above ? cap() : 0.0);
        const double to =
            std::min<double>(each.bottom, clip.bottom()) + (each.cap_below ? cap() : 0.0);
        if (from < to)
            rectangles.append(pixels_within(each.column - cap(), each.column + cap(), from, to));
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
    const QList<stretch> steps = shown_steps();
    for (const stretch& step : steps) {
        if (shown && continues(*shown, step)) {
            shown->to = step.to;
        } else {
            if (shown)
                draw_stretch(*shown, painter);
            shown = step;
        }
    }
    if (shown)
        draw_stretch(*shown, painter);
}

// The steps that can be seen: from the point outside on the left to the first bar, from bar to bar,
// and to the point outside on the right.
QList<dense_line::stretch> dense_line::shown_steps() const
{
    // The corners of a cap are farthest away, by half the diagonal of the pen: 1.49 for the widest
    // one that a long curve draws with, 2.1. A pixel is set where its centre is covered.
    constexpr int reach = 1;
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
    const auto [upper, lower] = std::minmax({rows.row(point), rows.row(next_point)});
    return lower < clip.top() || upper > clip.bottom();
}

// Whether the bars of two neighbouring columns cover all that the step between them may set.
// `reach` is how many rows it may reach beyond its ends.
bool dense_line::hides_step(const bar& left, const bar& right, int reach) const
{
    if (right.column != left.column + 1)
        return false;
    const auto [upper, lower] = std::minmax({rows.row(left.last), rows.row(right.first)});
    return upper - reach >= std::max(left.top - left.cap_above, right.top - right.cap_above) &&
           lower + reach <= std::min(left.bottom + left.cap_below, right.bottom + right.cap_below);
}

// Whether a step belongs to the piece of a stretch and is joined with it within the canvas:
// outside, there may be any number of points between two vertices. A step that comes in from there
// may begin in the piece before; what can be seen of it is its last edge.
bool dense_line::continues(const stretch& shown, const stretch& step) const
{
    if (piece_before(shown.to.vertex) != piece_before(step.to.vertex))
        return false;
    std::optional<place> each = shown.to;
    while (each && each->vertex < step.from.vertex && line.window().has(rows.row(each->point)))
        each = next(*each);
    return each && each->bar == step.from.bar && line.window().has(rows.row(each->point));
}

void dense_line::draw_stretch(const stretch& shown, QPainter& painter) const
{
    QPolygonF vertices;
    add_lead(shown.from, &dense_line::previous_in_bar, vertices);
    std::ranges::reverse(vertices);
    std::optional<place> corner = shown.from;
    while (corner && corner->bar < shown.to.bar) {
        vertices.append(line.pixel(corner->point));
        corner = next(*corner);
    }
    vertices.append(line.pixel(shown.to.point));
    add_lead(shown.to, &dense_line::next_in_bar, vertices);
    QwtClipper::clipPolygonF(clip, vertices, false);
    painter.drawPolyline(vertices);
}

// Adds what of the same piece comes next behind or before a stretch, as far as the joint at its end
// shows: what lies deeper in the bar or outside of the canvas is not needed. Nor is what comes
// beyond the bar: a step to another one is hidden there, or the stretch would hold it, and its end
// lies so deep in the bars that no cap shows.
void dense_line::add_lead(place from, neighbour step, QPolygonF& vertices) const
{
    const int stub = qCeil(pen_width);
    while (line.window().has(rows.row(from.point)) && !ends_a_piece(from.vertex)) {
        const std::optional<place> other = (this->*step)(from);
        if (!other)
            return;
        const QPoint here = line.pixel(from.point);
        const QPoint there = line.pixel(other->point);
        const int rows = there.y() - here.y();
        const bool is_long = std::abs(rows) >= 2 * stub;
        vertices.append(is_long ? here + QPoint(0, rows > 0 ? stub : -stub) : there);
        if (is_long)
            return;
        from = *other;
    }
}

std::optional<dense_line::place> dense_line::next(const place& from) const
{
    if (const auto other = next_in_bar(from))
        return other;
    const qsizetype bar = from.bar + 1;
    return bar < bars.size() ? std::optional(start_of(bar)) : std::nullopt;
}

std::optional<dense_line::place> dense_line::next_in_bar(const place& from) const
{
    if (!is_in_bar(from))
        return std::nullopt;
    const auto point = rows.next_row(from.point, bars[from.bar].last);
    if (!point)
        return std::nullopt;
    const int added = line.window().vertices_of_change(rows.row(from.point), rows.row(*point));
    return place{from.vertex + added, *point, from.bar};
}

std::optional<dense_line::place> dense_line::previous_in_bar(const place& from) const
{
    if (!is_in_bar(from))
        return std::nullopt;
    const auto point = rows.previous_row(from.point, bars[from.bar].first);
    if (!point)
        return std::nullopt;
    const int added = line.window().vertices_of_change(rows.row(*point), rows.row(from.point));
    return place{from.vertex - added, *point, from.bar};
}

// The points just outside are in none.
bool dense_line::is_in_bar(const place& each) const
{
    return each.bar >= 0 && each.bar < bars.size();
}
