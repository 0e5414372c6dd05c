#include "plot/drawing/long_curve.h"

#include "plot/drawing/dense_line.h"
#include "plot/drawing/sampled_line.h"

#include <QBrush>
#include <QPaintEngine>
#include <QPainter>
#include <QtMath>

#include <qwt_painter.h>
#include <qwt_point_data.h>
#include <qwt_scale_map.h>

#include <algorithm>

namespace {

constexpr double points_per_column = 2.0; // up to so many, Qwt draws them as quickly

std::span<const double> values_of(const QList<double>& list)
{
    return {list.constData(), static_cast<std::size_t>(list.size())};
}

// Where Qwt cuts a line off: outside of the canvas by the width of the pen.
QRectF clip_rectangle(const QPainter& painter, QRectF canvas)
{
    if (painter.hasClipping())
        canvas &= painter.clipBoundingRect();
    const double width = QwtPainter::effectivePenWidth(painter.pen());
    return canvas.adjusted(-width, -width, width, width);
}

// Whether Qwt draws on whole pixels and cuts the line in pieces. Otherwise, as in a PDF, the
// picture has no pixels that could hide points.
bool draws_pieces(QPainter& painter)
{
    const QPaintEngine* const engine = painter.paintEngine();
    const QTransform& moved = painter.transform();
    const bool by_whole_pixels =
        qFloor(moved.dx()) == moved.dx() && qFloor(moved.dy()) == moved.dy();
    return engine && engine->type() == QPaintEngine::Raster && by_whole_pixels &&
           QwtPainter::roundingAlignment(&painter) && QwtPainter::polylineSplitting() &&
           !painter.testRenderHint(QPainter::Antialiasing);
}

// Whether lines of the pen are known to be bars with square ends, in one colour.
bool draws_bars(const QPen& pen)
{
    constexpr double widest = 2.1; // corners of a wider one show two rows away, or beside the bars
    return pen.widthF() > 1.0 && pen.widthF() <= widest && pen.style() == Qt::SolidLine &&
           pen.capStyle() == Qt::SquareCap && pen.joinStyle() == Qt::BevelJoin &&
           pen.brush().style() == Qt::SolidPattern && pen.color().alpha() == 255;
}

// Whether the place of a value is found by a product and a sum, and larger values lie farther
// right.
bool is_even(const QwtScaleMap& x_map, const QwtScaleMap& y_map)
{
    return !x_map.transformation() && !y_map.transformation() && !x_map.isInverting();
}

// Whether rows within the rectangle are kept.
bool is_near(const QRectF& clip)
{
    constexpr double farthest = pixel_rows::farthest_window;
    return clip.top() > -farthest && clip.bottom() < farthest;
}

} // namespace

long_curve::long_curve() = default;
long_curve::~long_curve() = default;

void long_curve::dataChanged()
{
    line.reset();
    QwtPlotCurve::dataChanged();
}

// The samples, if they are such that hidden points can be found; otherwise null.
sampled_line* long_curve::orderly_line() const
{
    const auto* const samples = dynamic_cast<const QwtPointArrayData<double>*>(data());
    if (!samples || samples->size() == 0)
        return nullptr;
    if (!line) {
        const auto x = values_of(samples->xData());
        const auto y = values_of(samples->yData());
        const std::size_t size = samples->size();
        line = std::make_unique<sampled_line>(x.first(size), y.first(size));
    }
    return line->is_orderly() ? line.get() : nullptr;
}

// Whether it is a mere line, with the paint attributes that a new curve has.
bool long_curve::is_plain() const
{
    return brush().style() == Qt::NoBrush && !testCurveAttribute(Fitted) &&
           testPaintAttribute(ClipPolygons) && testPaintAttribute(FilterPoints) &&
           !testPaintAttribute(FilterPointsAggressive);
}

QRectF long_curve::boundingRect() const
{
    const sampled_line* const samples = orderly_line();
    if (!samples || !samples->is_finite())
        return QwtPlotCurve::boundingRect();
    const auto [low, high] = samples->range();
    const double left = samples->x_of(0);
    return {left, low, samples->x_of(samples->size() - 1) - left, high - low};
}

void long_curve::drawLines(QPainter* painter, const QwtScaleMap& x_map, const QwtScaleMap& y_map,
                           const QRectF& canvas, int from, int to) const
{
    sampled_line* const samples = orderly_line();
    const bool draws_all = samples && from == 0 && to == samples->size() - 1;
    const QRectF clip = clip_rectangle(*painter, canvas);
    if (!draws_all || !is_plain() || !draws_pieces(*painter) || !draws_bars(painter->pen()) ||
        !is_even(x_map, y_map) || !is_near(clip)) {
        QwtPlotCurve::drawLines(painter, x_map, y_map, canvas, from, to);
        return;
    }
    samples->set_x_scale(x_map);
    const qsizetype first = samples->first_from_column(qCeil(clip.left()), 0, samples->size());
    const qsizetype end =
        samples->first_from_column(qFloor(clip.right()) + 1, first, samples->size());
    // Of the points outside, only the nearest ones are joined with what can be seen.
    const qsizetype first_drawn = std::max<qsizetype>(first - 1, 0);
    const qsizetype last_drawn = std::min(end, samples->size() - 1);
    const bool is_dense = static_cast<double>(end - first) > points_per_column * clip.width();
    if (is_dense && samples->is_finite(first_drawn, last_drawn + 1)) {
        samples->set_y_scale(y_map, {qCeil(clip.top()), qFloor(clip.bottom())});
        dense_line(*samples, clip, painter->pen().widthF(), first, end).draw(*painter);
    } else {
        QwtPlotCurve::drawLines(painter, x_map, y_map, canvas, static_cast<int>(first_drawn),
                                static_cast<int>(last_drawn));
    }
}
