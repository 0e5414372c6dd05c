#pragma once

#include <QtNumeric>

#include <qwt_scale_map.h>

/// Where a plot draws a value. A place far from the canvas is moved to one that fits an `int`.
inline double place_of(const QwtScaleMap& map, double value)
{
    constexpr double far_away = 1e9;
    const double place = map.transform(value);
    return place < -far_away ? -far_away : place > far_away ? far_away : place;
}

/// The pixel column or row of a value: rounded as Qwt rounds the points of a curve.
inline int pixel_of(const QwtScaleMap& map, double value)
{
    return qRound(place_of(map, value));
}
