#include "tests/drawing/curve_pictures.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QTest>

#include <qwt_scale_map.h>

#include <algorithm>
#include <cmath>
#include <memory>

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

int different_pixels(const QImage& a, const QImage& b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
    }
    return count;
}

void compare(const QImage& actual, const series& shown, const view& seen, const QString& what)
{
    const QImage expected = picture_of<QwtPlotCurve>(shown, seen);
    if (actual == expected)
        return; // at once, as nearly always
    const QString where = QString("%1 x %2 to %3, y %4 to %5: %6 pixels differ")
                              .arg(what)
                              .arg(seen.x.from)
                              .arg(seen.x.to)
                              .arg(seen.y.from)
                              .arg(seen.y.to)
                              .arg(different_pixels(expected, actual));
    QFAIL(qPrintable(where));
}

void compare(const series& shown, const view& seen)
{
    compare(picture_of<long_curve>(shown, seen), shown, seen);
}
