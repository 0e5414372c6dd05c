#include "plot/drawing/long_curve.h"
#include "tests/drawing/curve_pictures.h"

#include <QImage>
#include <QPainter>
#include <QPicture>
#include <QTest>

#include <qwt_painter.h>
#include <qwt_plot.h>
#include <qwt_point_data.h>
#include <qwt_scale_map.h>

#include <cmath>
#include <functional>

namespace {

constexpr int points = 10 * canvas.width();

QList<double> times()
{
    QList<double> values;
    for (int i = 0; i < points; ++i)
        values.append(i);
    return values;
}

QList<double> waves()
{
    QList<double> values;
    for (int i = 0; i < points; ++i)
        values.append(std::sin(i / 7.0) * std::cos(i / 500.0));
    return values;
}

QwtScaleMap x_scale()
{
    return scale({0.0, points - 1}, 0.0, canvas.width() - 1);
}

QwtScaleMap y_scale()
{
    return scale({-1.0, 1.0}, canvas.height() - 1, 0.0);
}

using curve_change = std::function<void(QwtPlotCurve&)>;
using drawing = std::function<void(const QwtPlotCurve&, QPainter&)>;

void draw_all(const QwtPlotCurve& curve, QPainter& painter)
{
    curve.draw(&painter, x_scale(), y_scale(), QRectF(QPointF(), canvas));
}

void draw_unclipped(const QwtPlotCurve& curve, QPainter& painter)
{
    painter.setClipping(false);
    draw_all(curve, painter);
}

void draw_antialiased(const QwtPlotCurve& curve, QPainter& painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    draw_all(curve, painter);
}

// As a vector format gets it, which has no pixels.
void draw_recorded(const QwtPlotCurve& curve, QPainter& painter)
{
    QPicture record;
    QPainter recorder(&record);
    draw_all(curve, recorder);
    recorder.end();
    record.play(&painter);
}

void draw_unaligned(const QwtPlotCurve& curve, QPainter& painter)
{
    QwtPainter::setRoundingAlignment(false);
    draw_all(curve, painter);
    QwtPainter::setRoundingAlignment(true);
}

void draw_unsplit(const QwtPlotCurve& curve, QPainter& painter)
{
    QwtPainter::setPolylineSplitting(false);
    draw_all(curve, painter);
    QwtPainter::setPolylineSplitting(true);
}

void draw_clipped(const QwtPlotCurve& curve, QPainter& painter)
{
    painter.setClipRect(QRect(120, 90, 300, 160));
    draw_all(curve, painter);
}

drawing drawn_moved(const QPointF& by)
{
    return [=](const QwtPlotCurve& curve, QPainter& painter) {
        painter.translate(by);
        draw_all(curve, painter);
    };
}

drawing part_drawn(int from, int to)
{
    return [=](const QwtPlotCurve& curve, QPainter& painter) {
        curve.drawSeries(&painter, x_scale(), y_scale(), QRectF(QPointF(), canvas), from, to);
    };
}

// Clip rectangles that reach farther than rows are kept.
drawing drawn_in(const QRectF& rectangle)
{
    return [=](const QwtPlotCurve& curve, QPainter& painter) {
        painter.setClipping(false);
        curve.draw(&painter, x_scale(), y_scale(), rectangle);
    };
}

QImage picture(const QwtPlotCurve& curve, const drawing& draw)
{
    QImage image(canvas, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setClipRect(image.rect());
    draw(curve, painter);
    return image;
}

// Drawn before it is changed, too: nothing of what it was may be left.
template <class curve_class>
QImage picture(const curve_change& change, const drawing& draw)
{
    curve_class curve;
    curve.setSamples(times(), waves());
    curve.setPen(Qt::blue, 2.0, Qt::SolidLine);
    picture(curve, draw_all);
    change(curve);
    return picture(curve, draw);
}

void leave_alone(QwtPlotCurve& /*curve*/) {}

// Counts the samples that are asked for one by one, as Qwt does.
class counted_samples : public QwtPointArrayData<double>
{
public:
    using QwtPointArrayData<double>::QwtPointArrayData;

    QPointF sample(std::size_t index) const override
    {
        ++count;
        return QwtPointArrayData<double>::sample(index);
    }

    mutable int count = 0;
};

// How many samples Qwt is asked to draw.
int left_to_qwt(const QPen& pen, const drawing& draw)
{
    auto* const samples = new counted_samples(times(), waves()); // the curve's own
    long_curve curve;
    curve.setSamples(samples);
    curve.setPen(pen);
    curve.boundingRect();
    samples->count = 0;
    picture(curve, draw);
    return samples->count;
}

// Of the points, which are ten a column.
drawing drawn_between(double first, double last)
{
    return [=](const QwtPlotCurve& curve, QPainter& painter) {
        curve.draw(&painter, scale({first, last}, 0.0, canvas.width() - 1), y_scale(),
                   QRectF(QPointF(), canvas));
    };
}

} // namespace

class tst_other_curves : public QObject
{
    Q_OBJECT

private slots:
    void curve_like_qwt_data();
    void curve_like_qwt();
    void drawing_like_qwt_data();
    void drawing_like_qwt();
    void many_points_are_not_left_to_qwt_data();
    void many_points_are_not_left_to_qwt();
    void few_points_are_left_to_qwt();
    void value_beyond_the_edge_that_is_no_number();
    void bounding_rectangle_of_other_samples();
    void plot_hears_of_other_samples();
};

Q_DECLARE_METATYPE(curve_change)
Q_DECLARE_METATYPE(drawing)

// What is not a mere line of the usual samples is left to Qwt, pixel for pixel.
void tst_other_curves::curve_like_qwt_data()
{
    QTest::addColumn<curve_change>("change");
    const auto row = [](const char* name, const curve_change& change) {
        QTest::newRow(name) << change;
    };
    row("filled", [](QwtPlotCurve& curve) { curve.setBrush(Qt::red); });
    row("fitted", [](QwtPlotCurve& curve) { curve.setCurveAttribute(QwtPlotCurve::Fitted); });
    row("without clipping",
        [](QwtPlotCurve& curve) { curve.setPaintAttribute(QwtPlotCurve::ClipPolygons, false); });
    row("without filter",
        [](QwtPlotCurve& curve) { curve.setPaintAttribute(QwtPlotCurve::FilterPoints, false); });
    row("with the other filter", [](QwtPlotCurve& curve) {
        curve.setPaintAttribute(QwtPlotCurve::FilterPointsAggressive, true);
    });
    row("dashed", [](QwtPlotCurve& curve) { curve.setPen(Qt::blue, 2.0, Qt::DashLine); });
    row("thin", [](QwtPlotCurve& curve) { curve.setPen(Qt::blue, 1.0, Qt::SolidLine); });
    row("translucent",
        [](QwtPlotCurve& curve) { curve.setPen(QColor(0, 0, 255, 254), 2.0, Qt::SolidLine); });
    row("other samples", [](QwtPlotCurve& curve) {
        curve.setSamples(QList<QPointF>{{0.0, 0.0}, {100.0, 0.5}, {2000.0, -0.5}});
    });
    row("no samples", [](QwtPlotCurve& curve) { curve.setSamples(QList<QPointF>()); });
}

void tst_other_curves::curve_like_qwt()
{
    QFETCH(curve_change, change);
    QCOMPARE(picture<long_curve>(change, draw_all), picture<QwtPlotCurve>(change, draw_all));
}

void tst_other_curves::drawing_like_qwt_data()
{
    QTest::addColumn<drawing>("draw");
    const auto row = [](const char* name, const drawing& draw) { QTest::newRow(name) << draw; };
    row("plain", draw_all);
    row("unclipped", draw_unclipped);
    row("clipped to a part", draw_clipped);
    row("moved by a pixel", drawn_moved({1.0, 1.0}));
    row("moved by half a pixel to the right", drawn_moved({0.5, 0.0}));
    row("moved by half a pixel down", drawn_moved({0.0, 0.5}));
    row("antialiased", draw_antialiased);
    row("recorded", draw_recorded);
    row("unaligned", draw_unaligned);
    row("unsplit", draw_unsplit);
    row("without the first", part_drawn(1, points - 1));
    row("without the last", part_drawn(0, points - 2));
    row("some", part_drawn(700, 2000));
    row("far up", drawn_in(QRectF(0, -20'000, canvas.width(), 20'100)));
    row("far down", drawn_in(QRectF(0, 0, canvas.width(), 20'000)));
}

void tst_other_curves::drawing_like_qwt()
{
    QFETCH(drawing, draw);
    QCOMPARE(picture<long_curve>(leave_alone, draw), picture<QwtPlotCurve>(leave_alone, draw));
}

void tst_other_curves::many_points_are_not_left_to_qwt_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<drawing>("draw");
    QTest::newRow("plain") << 2.0 << drawing(draw_all);
    QTest::newRow("thinner") << 1.5 << drawing(draw_all);
    QTest::newRow("the widest") << 2.1 << drawing(draw_all);
    QTest::newRow("moved by whole pixels") << 2.0 << drawn_moved({3.0, 7.0});
    QTest::newRow("five points for two columns") << 2.0 << drawn_between(0, points / 4.0);
}

void tst_other_curves::many_points_are_not_left_to_qwt()
{
    QFETCH(double, width);
    QFETCH(drawing, draw);
    QCOMPARE(left_to_qwt(QPen(Qt::blue, width), draw), 0);
}

// One point a column, and as far as the pen reaches on each side; of those behind, the nearest.
void tst_other_curves::few_points_are_left_to_qwt()
{
    const QPen pen(Qt::blue, 2.0);
    const int asked_for_twice = left_to_qwt(pen, part_drawn(0, 1)) - 2;
    const int in_reach = 2 + canvas.width() + 1 + 2;
    QCOMPARE(left_to_qwt(pen, drawn_between(1000.0, 1000.0 + canvas.width() - 1)),
             1 + in_reach + 1 + asked_for_twice);
}

// The point that the line goes to out of sight starts a block of its own.
void tst_other_curves::value_beyond_the_edge_that_is_no_number()
{
    QList<double> x = times();
    QList<double> y = waves();
    const qsizetype gap = 6'400; // a multiple of 64
    for (qsizetype i = gap; i < points; ++i)
        x[i] += points;
    y[gap] = std::nan("");
    const auto make = [&](QwtPlotCurve& curve) { curve.setSamples(x, y); };
    const drawing draw = drawn_between(0.0, 1.05 * static_cast<double>(gap));
    QCOMPARE(picture<long_curve>(make, draw), picture<QwtPlotCurve>(make, draw));
}

void tst_other_curves::bounding_rectangle_of_other_samples()
{
    QwtPlotCurve expected;
    long_curve curve;
    QCOMPARE(curve.boundingRect(), expected.boundingRect());
    const QList<QPointF> samples{{1.0, 4.0}, {0.0, 2.0}, {5.0, 3.0}};
    expected.setSamples(samples);
    curve.setSamples(samples);
    QCOMPARE(curve.boundingRect(), expected.boundingRect());
}

void tst_other_curves::plot_hears_of_other_samples()
{
    QwtPlot plot;
    plot.setAutoReplot(true);
    auto* const curve = new long_curve; // the plot's own
    curve->attach(&plot);
    curve->setSamples(QList<double>{0.0, 1.0}, QList<double>{0.0, 7000.0});
    QCOMPARE(plot.axisInterval(QwtPlot::yLeft).maxValue(), 7000.0);
}

QTEST_MAIN(tst_other_curves)
#include "tst_other_curves.moc"
