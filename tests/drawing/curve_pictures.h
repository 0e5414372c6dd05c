#pragma once

#include "plot/drawing/long_curve.h"

#include <QImage>
#include <QList>
#include <QPen>

#include <functional>
#include <utility>

/// Pictures of curves as Qwt draws them and as the viewer does, and how far these differ.

inline constexpr QSize canvas(681, 381);

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

struct view
{
    range x;
    range y;
    QPen pen{Qt::blue, 2.0};
};

using sample_function = std::function<double(qsizetype)>;

/// A value that wanders with the steps of a coin.
sample_function walk(quint32 seed);
/// The sum of some random numbers.
sample_function noise(quint32 seed, int sum_of);
/// As a file holds it: three decimals, a steep rise and a slow fall now and then.
double flood(qsizetype index);
/// Curves of all kinds by their names.
const QList<std::pair<const char*, sample_function>>& shapes();
/// One value each five minutes.
series made_of(const sample_function& shape, qsizetype size);

/// Of all finite values, and never empty.
range range_of(const QList<double>& values);
/// Part of a range: the shares of its length at which the part starts and ends.
range part_of(const range& whole, double from, double to);
QwtScaleMap scale(const range& values, double from_pixel, double to_pixel);

QImage picture_of(const QwtPlotCurve& curve, const view& shown);

template <class curve_class>
QImage picture_of(const series& shown, const view& seen)
{
    curve_class curve;
    curve.setSamples(shown.x, shown.y);
    curve.setPen(seen.pen);
    return picture_of(curve, seen);
}

/// Of pictures of one size.
int different_pixels(const QImage& a, const QImage& b);
/// Compares a picture with the one that Qwt draws of all points; fails the test that runs if they
/// are not the same.
void compare(const QImage& actual, const series& shown, const view& seen, const QString& what = {});
/// The same for a new curve.
void compare(const series& shown, const view& seen);
