#pragma once

#include <QtNumeric>

#include <qwt_scale_map.h>

/// The pixel column or row where a plot draws a value: rounded as Qwt rounds the points of a curve.
/// A place far from the canvas is moved to one that still fits an `int`.
inline int pixel_of(const QwtScaleMap& map, double value)
{
    constexpr double far_away = 1e9;
    const double place = map.transform(value);
    return qRound(place < -far_away ? -far_away : place > far_away ? far_away : place);
}
