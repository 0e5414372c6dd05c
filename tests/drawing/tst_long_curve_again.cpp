#include "tests/drawing/curve_pictures.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QTest>

#include <qwt_plot.h>
#include <qwt_plot_renderer.h>
#include <qwt_point_data.h>
#include <qwt_scale_map.h>

#include <limits>

namespace {

// Counts how often a point is asked for, as Qwt does for each that it draws.
class counted_samples : public QwtPointArrayData<double>
{
public:
    counted_samples(const series& shown, int& count)
        : QwtPointArrayData<double>(shown.x, shown.y)
        , count(count)
    {
    }

    QPointF sample(std::size_t index) const override
    {
        ++count;
        return QwtPointArrayData<double>::sample(index);
    }

private:
    int& count;
};

} // namespace

/// One curve that is drawn again and again, while what is known of its points is kept.
class tst_long_curve_again : public QObject
{
    Q_OBJECT

private slots:
    void random_views();
    void moved_by_rows();
    void other_clips();
    void new_samples();
    void few_points_are_looked_at_data();
    void few_points_are_looked_at();
    void saved_picture();
};

// As a user zooms and pans: one curve is drawn with one range after the other.
void tst_long_curve_again::random_views()
{
    QRandomGenerator random(5);
    for (const auto& [name, shape] : shapes()) {
        const series shown = made_of(shape, 40000);
        long_curve curve;
        curve.setSamples(shown.x, shown.y);
        curve.setPen(Qt::blue, 2.0, Qt::SolidLine);
        for (int i = 0; i < 25; ++i) {
            const double from = random.generateDouble();
            const range x = part_of(range_of(shown.x), from, from + random.generateDouble());
            const double low = random.generateDouble() - 0.5;
            const range y = part_of(range_of(shown.y), i % 2 == 0 ? 0.0 : low, low + 1.2);
            const view seen{x, y};
            compare(picture_of(curve, seen), shown, seen, name);
        }
    }
}

// As a user pans: the value axis moves by whole pixels, sometimes farther than what is kept
// reaches, while different parts of the time are in sight.
void tst_long_curve_again::moved_by_rows()
{
    struct move
    {
        int rows;
        double from; // the share of the time that is in sight
        double to;
    };
    constexpr move moves[] = {{0, 0.2, 0.4},    {-40, 0.0, 1.0},    {1, 0.0, 1.0},
                              {-300, 0.1, 0.9}, {200, 0.1, 0.5},    {9'000, 0.3, 1.0},
                              {100, 0.0, 1.0},  {15'000, 0.0, 0.7}, {-15'000, 0.0, 1.0},
                              {0, 0.0, 1.0}};
    for (const auto& [name, shape] : shapes()) {
        // Steep enough for some to be far away, even when the axis moves far.
        const series shown = made_of(shape, 40000);
        const range all = range_of(shown.y);
        for (const range& y : {part_of(all, 0.1, 0.9), part_of(all, 0.49, 0.52)}) {
            long_curve curve;
            curve.setSamples(shown.x, shown.y);
            curve.setPen(Qt::blue, 2.0, Qt::SolidLine);
            for (const move& each : moves) {
                const double shift = each.rows * (y.to - y.from) / (canvas.height() - 1);
                const view seen{part_of(range_of(shown.x), each.from, each.to),
                                {y.from + shift, y.to + shift}};
                compare(picture_of(curve, seen), shown, seen,
                        QString("%1, moved by %2").arg(name).arg(each.rows));
            }
        }
    }
}

// As when only a part of the canvas is drawn anew.
void tst_long_curve_again::other_clips()
{
    QRandomGenerator random(10);
    const series shown = made_of(walk(11), 40000);
    const view whole{range_of(shown.x), part_of(range_of(shown.y), 0.2, 0.8)};
    long_curve curve;
    QwtPlotCurve expected;
    for (QwtPlotCurve* const each : {&expected, static_cast<QwtPlotCurve*>(&curve)}) {
        each->setSamples(shown.x, shown.y);
        each->setPen(whole.pen);
    }
    for (int i = 0; i < 60; ++i) {
        const QRect clip(random.bounded(300), random.bounded(200), 20 + random.bounded(300),
                         5 + random.bounded(150));
        const auto clipped = [&](const QwtPlotCurve& each) {
            QImage image(canvas, QImage::Format_RGB32);
            image.fill(Qt::white);
            QPainter painter(&image);
            painter.setClipRect(clip);
            each.draw(&painter, scale(whole.x, 0.0, canvas.width() - 1),
                      scale(whole.y, canvas.height() - 1, 0.0), QRectF(image.rect()));
            return image;
        };
        QCOMPARE(clipped(curve), clipped(expected));
    }
}

void tst_long_curve_again::new_samples()
{
    const series first = made_of(noise(7, 1), 20000);
    const series second = made_of(flood, 30000);
    const view whole{range_of(second.x), range_of(second.y)};
    long_curve curve;
    curve.setPen(whole.pen);
    curve.setSamples(first.x, first.y);
    picture_of(curve, whole);
    QCOMPARE(curve.boundingRect().width(), first.x.last());
    curve.setSamples(second.x, second.y);
    QCOMPARE(picture_of(curve, whole), picture_of<QwtPlotCurve>(second, whole));
    QCOMPARE(curve.boundingRect().width(), second.x.last());
}

void tst_long_curve_again::few_points_are_looked_at_data()
{
    QTest::addColumn<QPen>("pen");
    QTest::addColumn<QTransform>("place");
    QTest::addColumn<bool>("few");
    const QPen usual(Qt::blue, 2.0);
    const auto row = [&](const char* name, bool few, const QPen& pen,
                         const QTransform& place = {}) {
        QTest::newRow(name) << pen << place << few;
    };
    row("usual", true, usual);
    row("widest", true, QPen(Qt::red, 2.1));
    row("moved by pixels", true, usual, QTransform::fromTranslate(5, -3));
    row("moved by half a pixel", false, usual, QTransform::fromTranslate(0.5, 0));
    row("moved down by half a pixel", false, usual, QTransform::fromTranslate(0, 0.5));
    row("larger", false, usual, QTransform::fromScale(2, 2));
    row("thin", false, QPen(Qt::blue, 1.0));
    row("wide", false, QPen(Qt::blue, 2.3));
    row("dashes", false, QPen(Qt::blue, 2.0, Qt::DashLine));
    row("flat ends", false, QPen(Qt::blue, 2.0, Qt::SolidLine, Qt::FlatCap));
    row("round corners", false, QPen(Qt::blue, 2.0, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
    row("pattern", false, QPen(QBrush(Qt::blue, Qt::Dense4Pattern), 2.0));
    row("half transparent", false, QPen(QColor(0, 0, 255, 128), 2.0));
}

// Where each drawing looks at every point it takes as long as the curve; nothing else shows it.
void tst_long_curve_again::few_points_are_looked_at()
{
    QFETCH(QPen, pen);
    QFETCH(QTransform, place);
    QFETCH(bool, few);
    series shown = made_of(noise(12, 1), 100000);
    int asked = 0;
    long_curve curve;
    curve.setSamples(new counted_samples(shown, asked));
    curve.setPen(pen);
    QImage image(canvas, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setTransform(place);
    const auto asked_for = [&](const range& x) {
        asked = 0;
        curve.draw(&painter, scale(x, 0.0, canvas.width() - 1),
                   scale(range_of(shown.y), canvas.height() - 1, 0.0), QRectF(image.rect()));
        return asked;
    };
    const range whole = range_of(shown.x);
    const int all = asked_for(whole);
    QVERIFY2(few ? all == 0 : all >= 100000, QByteArray::number(all));
    if (!few)
        return;
    QCOMPARE(asked_for(part_of(whole, 0.2, 0.9)), 0);
    shown.y[50000] = std::numeric_limits<double>::quiet_NaN();
    curve.setSamples(new counted_samples(shown, asked));
    QCOMPARE(asked_for(part_of(whole, 0.52, 0.9)), 0);
    const int with_nan = asked_for(part_of(whole, 0.4, 0.6));
    QVERIFY2(with_nan > 19000 && with_nan < 21000, QByteArray::number(with_nan));
    const int twenty = asked_for(part_of(whole, 0.3, 0.3002));
    QVERIFY2(twenty >= 20 && twenty < 100, QByteArray::number(twenty));
    QVERIFY(asked_for({whole.to, whole.from}) >= 100000); // an inverted time axis
}

// The picture that is saved is drawn by the same curve in the same way.
void tst_long_curve_again::saved_picture()
{
    const series shown = made_of(flood, 200000);
    int asked[2] = {0, 0};
    QImage images[2];
    for (const bool as_qwt : {true, false}) {
        const int which = as_qwt ? 0 : 1;
        QwtPlot plot;
        QwtPlotCurve* const curve = as_qwt ? new QwtPlotCurve : new long_curve;
        curve->setSamples(new counted_samples(shown, asked[which]));
        curve->setPen(Qt::blue, 2.0, Qt::SolidLine);
        curve->attach(&plot);
        plot.resize(canvas);
        plot.replot();
        asked[which] = 0;
        QImage& image = images[which];
        image = QImage(canvas, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QwtPlotRenderer().render(&plot, &painter, QRectF(image.rect()));
    }
    QCOMPARE(images[1], images[0]);
    QImage blank(canvas, QImage::Format_RGB32);
    blank.fill(Qt::white);
    QVERIFY(different_pixels(images[0], blank) > 1000);
    QVERIFY(asked[0] >= 200000);
    QCOMPARE(asked[1], 0);
}

QTEST_MAIN(tst_long_curve_again)
#include "tst_long_curve_again.moc"
