#include "plot/drawing/long_curve.h"

#include <QImage>
#include <QPainter>
#include <QRandomGenerator>
#include <QTest>

#include <qwt_plot.h>
#include <qwt_plot_renderer.h>
#include <qwt_scale_map.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

namespace {

using sample_function = std::function<double(qsizetype)>;

constexpr QSize canvas(681, 381);
// A tenth of the 0.1 % that would pass unnoticed.
constexpr int allowed = canvas.width() * canvas.height() / 10000;

struct series
{
    QList<double> x;
    QList<double> y;
};

struct range
{
    double from;
    double to;
};

// A value that wanders with the steps of a coin.
sample_function walk(quint32 seed)
{
    auto random = std::make_shared<QRandomGenerator>(seed);
    auto place = std::make_shared<double>(0.0);
    return [=](qsizetype) { return *place += random->bounded(2) == 0 ? 1.0 : -1.0; };
}

sample_function noise(quint32 seed, int sum_of)
{
    auto random = std::make_shared<QRandomGenerator>(seed);
    return [=](qsizetype) {
        double sum = 0.0;
        for (int i = 0; i < sum_of; ++i)
            sum += random->generateDouble();
        return sum;
    };
}

// As a file holds it: three decimals, a steep rise and a slow fall now and then.
double flood(qsizetype i)
{
    const double hours = static_cast<double>(i % 8640) / 12.0;
    return std::round(1000.0 * (0.3 + hours * std::exp(-hours / 25.0))) / 1000.0;
}

const QList<std::pair<const char*, sample_function>>& shapes()
{
    static const QList<std::pair<const char*, sample_function>> all{
        {"constant", [](qsizetype) { return 1.0; }},
        {"steps", [](qsizetype i) { return static_cast<double>(i / 700 % 5); }},
        {"short steps", [](qsizetype i) { return static_cast<double>(i / 7 % 3); }},
        {"two levels", [](qsizetype i) { return static_cast<double>(i % 2); }},
        {"spikes", [](qsizetype i) { return i % 997 == 0 ? 5.0 : 0.0; }},
        {"dips", [](qsizetype i) { return i % 1009 == 500 ? -2.0 : 3.0; }},
        {"ramp", [](qsizetype i) { return static_cast<double>(i); }},
        {"slow wave", [](qsizetype i) { return std::sin(static_cast<double>(i) / 3000.0); }},
        {"fast wave", [](qsizetype i) { return std::sin(static_cast<double>(i) / 30.0); }},
        {"flood", flood},
        {"walk", walk(1)},
        {"noise", noise(2, 1)},
        {"rare extremes", noise(3, 12)},
        {"negative and large",
         [](qsizetype i) { return 1e12 * std::cos(double(i) / 50.0) - 3e12; }},
    };
    return all;
}

series made_of(const sample_function& shape, qsizetype size)
{
    series made;
    for (qsizetype i = 0; i < size; ++i) {
        made.x.append(static_cast<double>(i) / 12.0);
        made.y.append(shape(i));
    }
    return made;
}

range range_of(const QList<double>& values)
{
    range found{0.0, 1.0};
    bool first = true;
    for (const double value : values) {
        if (!std::isfinite(value))
            continue;
        found = first ? range{value, value}
                      : range{std::min(found.from, value), std::max(found.to, value)};
        first = false;
    }
    return found.from < found.to ? found : range{found.from - 0.5, found.to + 0.5};
}

// Part of a range: the shares of its length at which the part starts and ends.
range part_of(const range& whole, double from, double to)
{
    const double length = whole.to - whole.from;
    return {whole.from + from * length, whole.from + to * length};
}

QwtScaleMap scale(const range& values, double from_pixel, double to_pixel)
{
    QwtScaleMap map;
    map.setPaintInterval(from_pixel, to_pixel);
    map.setScaleInterval(values.from, values.to);
    return map;
}

struct view
{
    range x;
    range y;
    double pen_width = 2.0;
};

QImage picture_of(const QwtPlotCurve& curve, const view& shown)
{
    QImage image(canvas, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setClipRect(image.rect());
    curve.draw(&painter, scale(shown.x, 0.0, canvas.width() - 1),
               scale(shown.y, canvas.height() - 1, 0.0), QRectF(image.rect()));
    return image;
}

template <class curve_class>
QImage picture_of(const series& shown, const view& seen)
{
    curve_class curve;
    curve.setSamples(shown.x, shown.y);
    curve.setPen(Qt::blue, seen.pen_width, Qt::SolidLine);
    return picture_of(curve, seen);
}

int different_pixels(const QImage& a, const QImage& b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
    }
    return count;
}

// The rows of the first and the last pixel in a column that are not white; -1 where there is none.
std::pair<int, int> ends_of_column(const QImage& image, int x)
{
    std::pair<int, int> ends{-1, -1};
    for (int y = 0; y < image.height(); ++y) {
        if (image.pixelColor(x, y) == Qt::white)
            continue;
        ends = {ends.first < 0 ? y : ends.first, y};
    }
    return ends;
}

// Whether every column reaches as high and as low, but for `cap` rows.
bool same_extremes(const QImage& a, const QImage& b, int cap = 1)
{
    for (int x = 0; x < a.width(); ++x) {
        const auto [top_a, bottom_a] = ends_of_column(a, x);
        const auto [top_b, bottom_b] = ends_of_column(b, x);
        if (std::abs(top_a - top_b) > cap || std::abs(bottom_a - bottom_b) > cap)
            return false;
    }
    return true;
}

// Compares the picture with the one that Qwt draws of all points.
void compare(const series& shown, const view& seen)
{
    const QImage expected = picture_of<QwtPlotCurve>(shown, seen);
    const QImage actual = picture_of<long_curve>(shown, seen);
    const int different = different_pixels(expected, actual);
    const QString what = QString("x %1 to %2, y %3 to %4: %5 pixels differ")
                             .arg(seen.x.from)
                             .arg(seen.x.to)
                             .arg(seen.y.from)
                             .arg(seen.y.to)
                             .arg(different);
    if (different > 20)
        qInfo() << qPrintable(what);
    QVERIFY2(different <= allowed, qPrintable(what));
    QVERIFY2(same_extremes(expected, actual, qCeil(seen.pen_width)), qPrintable(what));
}

} // namespace

class tst_long_curve : public QObject
{
    Q_OBJECT

private slots:
    void shapes_and_ranges_data();
    void shapes_and_ranges();
    void irregular_data();
    void irregular();
    void random_views();
    void moved_by_rows();
    void pens();
    void new_samples();
    void bounding_rectangle_data();
    void bounding_rectangle();
    void rendered_picture();
    void very_tall_picture();
};

void tst_long_curve::shapes_and_ranges_data()
{
    QTest::addColumn<qsizetype>("shape");
    QTest::addColumn<qsizetype>("size");
    for (qsizetype shape = 0; shape < shapes().size(); ++shape) {
        for (const qsizetype size : {1, 2, 3, 700, 1500, 3000, 10000, 60000, 300000})
            QTest::addRow("%s, %lld", shapes()[shape].first, static_cast<long long>(size))
                << shape << size;
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
    row("far away", [](series& each) { each.x.last() = 1e300; });
    row("one value far away", [](series& each) { each.y[5] = -1e300; });
    row("fewer values than times", [](series& each) { each.y.resize(15000); });
    row("no samples", [](series& each) { each = {}; });
}

void tst_long_curve::irregular()
{
    QFETCH(QList<double>, x);
    QFETCH(QList<double>, y);
    for (const range& shown : {range{0.0, 1700.0}, range{200.0, 900.0}, range{416.0, 418.0}}) {
        compare({x, y}, {shown, {0.0, 1.0}});
        compare({x, y}, {shown, {-0.2, 0.6}});
    }
}

// As a user zooms and pans: one curve is drawn with one range after the other.
void tst_long_curve::random_views()
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
            const QImage expected = picture_of<QwtPlotCurve>(shown, {x, y});
            const QImage actual = picture_of(curve, {x, y});
            QVERIFY2(different_pixels(expected, actual) <= allowed, name);
            QVERIFY2(same_extremes(expected, actual), name);
        }
    }
}

// As a user pans: the value axis moves by whole pixels, sometimes farther than what is kept
// reaches, while different parts of the time are in sight.
void tst_long_curve::moved_by_rows()
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
                const QImage expected = picture_of<QwtPlotCurve>(shown, seen);
                const QImage actual = picture_of(curve, seen);
                const QString what = QString("%1, moved by %2").arg(name).arg(each.rows);
                QVERIFY2(different_pixels(expected, actual) <= allowed, qPrintable(what));
                QVERIFY2(same_extremes(expected, actual), qPrintable(what));
            }
        }
    }
}

void tst_long_curve::pens()
{
    const series shown = made_of(noise(6, 3), 20000);
    const view whole{range_of(shown.x), range_of(shown.y)};
    for (const double width : {0.0, 1.0, 1.5, 2.0, 3.0, 5.0})
        compare(shown, {whole.x, whole.y, width});
}

void tst_long_curve::new_samples()
{
    const series first = made_of(noise(7, 1), 20000);
    const series second = made_of(flood, 30000);
    const view whole{range_of(second.x), range_of(second.y)};
    long_curve curve;
    curve.setPen(Qt::blue, 2.0, Qt::SolidLine);
    curve.setSamples(first.x, first.y);
    picture_of(curve, whole);
    QCOMPARE(curve.boundingRect().width(), first.x.last());
    curve.setSamples(second.x, second.y);
    QVERIFY(different_pixels(picture_of<QwtPlotCurve>(second, whole), picture_of(curve, whole)) <=
            allowed);
    QCOMPARE(curve.boundingRect().width(), second.x.last());
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

// The saved picture is drawn by the same curve.
void tst_long_curve::rendered_picture()
{
    const series shown = made_of(flood, 200000);
    QImage images[2];
    for (const bool as_qwt : {true, false}) {
        QwtPlot plot;
        QwtPlotCurve* const curve = as_qwt ? new QwtPlotCurve : new long_curve;
        curve->setSamples(shown.x, shown.y);
        curve->setPen(Qt::blue, 2.0, Qt::SolidLine);
        curve->attach(&plot);
        plot.resize(canvas);
        plot.replot();
        QImage& image = images[as_qwt ? 0 : 1];
        image = QImage(canvas, QImage::Format_RGB32);
        QPainter painter(&image);
        QwtPlotRenderer().render(&plot, &painter, QRectF(image.rect()));
    }
    QVERIFY(different_pixels(images[0], images[1]) <= allowed);
    QVERIFY(different_pixels(images[0], QImage(canvas, QImage::Format_RGB32)) > 0);
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

QTEST_MAIN(tst_long_curve)
#include "tst_long_curve.moc"
