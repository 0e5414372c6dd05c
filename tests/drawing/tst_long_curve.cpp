#include "plot/drawing/dense_line.h"
#include "plot/drawing/sampled_line.h"
#include "tests/drawing/curve_pictures.h"

#include <QImage>
#include <QPainter>
#include <QRandomGenerator>
#include <QTest>

#include <qwt_scale_map.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// Less is enough where the test is run over and over.
qsizetype longest_curve()
{
    const int wanted = qEnvironmentVariableIntValue("KORIMO_LONGEST_CURVE");
    return wanted > 0 ? wanted : 300'000;
}

} // namespace

/// One picture of a long curve is the one that Qwt draws of all its points.
class tst_long_curve : public QObject
{
    Q_OBJECT

private slots:
    void shapes_and_ranges_data();
    void shapes_and_ranges();
    void irregular_data();
    void irregular();
    void left_edges();
    void edges_in_a_gap();
    void ends_of_bars_in_another_block();
    void ends_at_an_edge();
    void lone_points_at_the_end();
    void missing_columns();
    void pens();
    void bounding_rectangle_data();
    void bounding_rectangle();
    void very_tall_picture();
    void brush_of_the_painter();
};

void tst_long_curve::shapes_and_ranges_data()
{
    QTest::addColumn<qsizetype>("shape");
    QTest::addColumn<qsizetype>("size");
    for (qsizetype shape = 0; shape < shapes().size(); ++shape) {
        for (const qsizetype size : {1, 2, 3, 700, 1500, 3200, 10000, 60000, 300000}) {
            if (size <= longest_curve())
                QTest::addRow("%s, %lld", shapes()[shape].first, static_cast<long long>(size))
                    << shape << size;
        }
    }
}

void tst_long_curve::shapes_and_ranges()
{
    QFETCH(qsizetype, shape);
    QFETCH(qsizetype, size);
    const series shown = made_of(shapes()[shape].second, size);
    const range x = range_of(shown.x);
    const range y = range_of(shown.y);
    const range x_parts[] = {x, part_of(x, 0.0, 0.5), part_of(x, 0.37, 0.43),
                             part_of(x, 0.5, 0.5 + 20.0 / static_cast<double>(size)),
                             part_of(x, -1.0, 2.0)};
    const range y_parts[] = {
        y, part_of(y, 0.25, 0.75), part_of(y, 0.6, 1.4), part_of(y, -1.0, 2.0), {y.to, y.from}};
    for (const range& x_part : x_parts)
        compare(shown, {x_part, y});
    for (const range& y_part : y_parts)
        compare(shown, {x, y_part});
    compare(shown, {part_of(x, 0.1, 0.8), part_of(y, 0.1, 0.7)});
    compare(shown, {{x.to, x.from}, y});
}

void tst_long_curve::irregular_data()
{
    QTest::addColumn<QList<double>>("x");
    QTest::addColumn<QList<double>>("y");
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const series plain = made_of(noise(4, 1), 20000);
    const auto row = [&](const char* name, const std::function<void(series&)>& change) {
        series changed = plain;
        change(changed);
        QTest::newRow(name) << changed.x << changed.y;
    };
    row("NaN", [](series& each) { each.y[5000] = nan; });
    row("infinite", [](series& each) { each.y[5000] = infinity; });
    row("minus infinite", [](series& each) { each.y[0] = -infinity; });
    row("NaN in time", [](series& each) { each.x[7000] = nan; });
    row("infinite time", [](series& each) { each.x.last() = infinity; });
    row("unsorted", [](series& each) { std::swap(each.x[3000], each.x[9000]); });
    row("falling", [](series& each) { std::ranges::reverse(each.x); });
    row("one time", [](series& each) { each.x.fill(3.0); });
    row("times repeated", [](series& each) {
        for (double& x : each.x)
            x = std::floor(x / 10.0) * 10.0;
    });
    row("a gap", [](series& each) {
        for (double& x : each.x)
            x += x > 800.0 ? 1000.0 : 0.0;
    });
    row("first value long before", [](series& each) { each.x.first() = -1000.0; });
    row("far away", [](series& each) { each.x.last() = 1e300; });
    row("infinite first time", [](series& each) { each.x.first() = -infinity; });
    row("NaN in the last value", [](series& each) { each.y.last() = nan; });
    row("NaN here and there", [](series& each) {
        for (qsizetype i = 0; i < each.y.size(); i += 777)
            each.y[i] = i % 2 == 0 ? nan : infinity;
    });
    row("NaN for a while",
        [](series& each) { std::fill_n(each.y.begin() + 5000, 300, double(nan)); });
    row("one value far away", [](series& each) { each.y[5] = -1e300; });
    row("fewer values than times", [](series& each) { each.y.resize(15000); });
    row("no samples", [](series& each) { each = {}; });
}

void tst_long_curve::irregular()
{
    QFETCH(QList<double>, x);
    QFETCH(QList<double>, y);
    for (const range& shown :
         {range{0.0, 1700.0}, range{200.0, 900.0}, range{416.0, 418.0}, range{900.0, 1600.0},
          range{0.0, 416.6}, range{900.0, 2600.0}, range{-400.0, 1300.0}}) {
        compare({x, y}, {shown, {0.0, 1.0}});
        compare({x, y}, {shown, {-0.2, 0.6}});
    }
}

// Where between two points the edge lies, and whether the line comes in above, within or below what
// is in sight, tells where the pieces of the line end.
void tst_long_curve::left_edges()
{
    const series shown = made_of(noise(4, 1), 20'000);
    for (int i = 0; i < 60; ++i) {
        const double left = 200.0 + 3.0137 * i;
        compare(shown, {{left, left + 700.0}, {0.3, 0.6}});
    }
}

// The line comes in from far outside, or goes there; the point that is the nearest to the edge
// stands at each place of a block.
void tst_long_curve::edges_in_a_gap()
{
    const series plain = made_of(noise(4, 1), 5'000);
    const double length = plain.x.last() - plain.x.first();
    for (qsizetype i = 0; i < 64; ++i) {
        for (const bool on_the_left : {true, false}) {
            const qsizetype gap = on_the_left ? 1 + 37 * i : plain.x.size() - 1 - 37 * i;
            series shown = plain;
            for (qsizetype point = gap; point < shown.x.size(); ++point)
                shown.x[point] += length;
            const double edge = shown.x[gap - 1] + length * (0.1 + 0.005 * static_cast<double>(i));
            const range seen =
                on_the_left ? range{edge, edge + length} : range{edge - length, edge};
            compare(shown, {seen, {0.3, 0.6}});
            compare(shown, {seen, {-0.5, 1.5}});
        }
    }
}

// The last point of each bar is the first one of a block, and the highest or the lowest of the bar.
void tst_long_curve::ends_of_bars_in_another_block()
{
    const qsizetype last_column = canvas.width() - 1;
    series shown = made_of(noise(5, 1), 64 * last_column + 1);
    for (qsizetype i = 0; i < shown.x.size(); ++i) {
        const qsizetype column = (i + 63) / 64;
        shown.x[i] = static_cast<double>(column);
        if (i % 64 == 0)
            shown.y[i] = i % 3 == 0 ? 1.5 + shown.y[i] : -0.5 - shown.y[i];
    }
    const range columns{0.0, static_cast<double>(last_column)};
    compare(shown, {columns, {-2.0, 3.0}});
    shown.y.last() = -0.7;
    compare(shown, {columns, {-2.0, 3.0}});
    shown.y.last() = 1.7;
    compare(shown, {columns, {-2.0, 3.0}});
}

// The line starts, comes in or goes out a few rows beside an upper or lower edge, with low bars:
// how it is joined there with what lies behind the edge shows by the width of the pen.
void tst_long_curve::ends_at_an_edge()
{
    constexpr qsizetype points_of_a_column = 4;
    QRandomGenerator random(13);
    const series shown = made_of(walk(14), 20'000);
    const double length = shown.x[points_of_a_column * (canvas.width() - 1)];
    const double rows = canvas.height() - 1.0;
    for (int i = 0; i < 400; ++i) {
        const qsizetype first = i % 4 == 0 ? i / 4 % 5 : random.bounded(16'000);
        const double from = shown.x[first] - random.bounded(shown.x[1]);
        const qsizetype end = first + points_of_a_column * canvas.width();
        const double beside = shown.y[i % 2 == 0 ? first : end] + random.bounded(7) - 3.0;
        const double low = i % 3 == 0 ? beside : beside - rows;
        compare(shown, {{from, from + length}, {low, low + rows}});
    }
}

// The last point in sight stands alone, at each place of a piece, and the line goes on to the
// right.
void tst_long_curve::lone_points_at_the_end()
{
    constexpr qsizetype columns = 600;
    const sample_function value = noise(15, 1);
    for (qsizetype i = 0; i < 24; ++i) {
        series shown;
        for (qsizetype point = 0; point < 4 * columns + i; ++point) {
            shown.x.append(static_cast<double>(point) / 4.0);
            shown.y.append(value(point));
        }
        shown.x.append({columns + 20.0, columns + 40.0, columns + 85.0});
        shown.y.append({0.3, 0.9, 0.3});
        compare(shown, {{0.0, canvas.width() - 1.0}, {-0.2, 1.2}});
    }
}

// Whether a piece's end shows depends on the bars beside, which may be a column farther away.
void tst_long_curve::missing_columns()
{
    for (const int missing : {2, 3, 5}) { // each so many columns
        series shown = made_of(noise(4, 1), 8'000);
        for (qsizetype i = 0; i < shown.x.size(); ++i) {
            const qsizetype bar = i / 10;
            const qsizetype column = bar + bar / (missing - 1);
            shown.x[i] = static_cast<double>(column);
        }
        const range columns{0.0, static_cast<double>(canvas.width() - 1)};
        compare(shown, {columns, {-0.2, 1.2}});
        compare(shown, {columns, {0.2, 0.9}});
    }
}

void tst_long_curve::pens()
{
    const qsizetype size = std::min<qsizetype>(longest_curve(), 20'000);
    const series shown = made_of(noise(6, 3), size);
    const series steps = made_of(shapes()[1].second, size);
    const sample_function one = noise(6, 1);
    const series rows = made_of([&](qsizetype i) { return std::floor(8.0 * one(i)); }, 7'000);
    for (const double width : {0.0, 1.0, 1.1, 1.5, 2.0, 2.1, 2.2, 2.5, 3.0, 5.0, 20.0}) {
        for (const auto cap : {Qt::SquareCap, Qt::FlatCap, Qt::RoundCap}) {
            for (const auto join : {Qt::BevelJoin, Qt::MiterJoin, Qt::RoundJoin}) {
                const QPen pen(Qt::blue, width, Qt::SolidLine, cap, join);
                compare(shown, {range_of(shown.x), range_of(shown.y), pen});
                compare(steps, {range_of(steps.x), range_of(steps.y), pen});
                compare(rows, {range_of(rows.x), {-100.0, canvas.height() - 101.0}, pen});
            }
        }
    }
    const QPen textured(QBrush(Qt::blue, Qt::Dense4Pattern), 2.0);
    compare(shown, {range_of(shown.x), range_of(shown.y), textured});
}

void tst_long_curve::bounding_rectangle_data()
{
    irregular_data();
    const series plain = made_of(walk(8), 1000);
    QTest::newRow("plain") << plain.x << plain.y;
    QTest::newRow("one point") << QList<double>{2.0} << QList<double>{3.0};
}

void tst_long_curve::bounding_rectangle()
{
    QFETCH(QList<double>, x);
    QFETCH(QList<double>, y);
    QwtPlotCurve expected;
    expected.setSamples(x, y);
    long_curve curve;
    curve.setSamples(x, y);
    const QRectF one = expected.boundingRect();
    const QRectF other = curve.boundingRect();
    for (const auto side : {&QRectF::x, &QRectF::y, &QRectF::right, &QRectF::bottom})
        QVERIFY((one.*side)() == (other.*side)() || std::isnan((one.*side)()));
}

// Taller than the rows reach that are kept.
void tst_long_curve::very_tall_picture()
{
    const series shown = made_of(walk(9), 20000);
    QImage images[2];
    for (const bool as_qwt : {true, false}) {
        QwtPlotCurve curve;
        long_curve other;
        QwtPlotCurve& drawn = as_qwt ? curve : other;
        drawn.setSamples(shown.x, shown.y);
        drawn.setPen(Qt::blue, 2.0, Qt::SolidLine);
        QImage& image = images[as_qwt ? 0 : 1];
        image = QImage(60, 32'000, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        drawn.draw(&painter, scale(range_of(shown.x), 0.0, 59.0),
                   scale(range_of(shown.y), 31'999.0, 0.0), QRectF(image.rect()));
    }
    QCOMPARE(images[1], images[0]);
}

void tst_long_curve::brush_of_the_painter()
{
    const series shown = made_of(walk(9), 2'000);
    sampled_line line(shown.x, shown.y);
    line.set_x_scale(scale(range_of(shown.x), 0.0, 99.0));
    line.set_y_scale(scale(range_of(shown.y), 99.0, 0.0), {0, 99});
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::blue, 2.0));
    painter.setBrush(Qt::red);
    dense_line(line, QRectF(image.rect()), 2.0, 0, line.size()).draw(painter);
    QCOMPARE(painter.brush(), QBrush(Qt::red));
    QCOMPARE(painter.pen(), QPen(Qt::blue, 2.0));
}

QTEST_MAIN(tst_long_curve)
#include "tst_long_curve.moc"
