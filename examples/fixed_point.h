#pragma once

#include <cstdint>

// Every quantity of the model is a whole number of its printed unit. Sums of printed values then
// come out exactly, and the files are the same to the byte on every platform and compiler.
namespace example {

using flow = std::int64_t;       // 0.001 m3/s
using volume = std::int64_t;     // 0.01 m3
using rain_depth = std::int64_t; // 0.01 mm
using level = std::int64_t;      // mm
using area = std::int64_t;       // m2
using minutes = std::int64_t;
using seconds = std::int64_t;

inline constexpr flow one_cumec = 1000;
inline constexpr volume one_cubic_metre = 100;
inline constexpr level one_metre = 1000;

// Half away from zero; the divisor is positive.
constexpr std::int64_t div_round(std::int64_t value, std::int64_t divisor)
{
    return value < 0 ? -((-value + divisor / 2) / divisor) : (value + divisor / 2) / divisor;
}

struct point
{
    std::int64_t x;
    std::int64_t y;
};

constexpr std::int64_t interpolate(std::int64_t x, point from, point to)
{
    return from.y + div_round((x - from.x) * (to.y - from.y), to.x - from.x);
}

// Volume that one unit of flow carries in half a time step (trapezoidal rule).
constexpr volume volume_per_half_step(seconds step)
{
    return step / 20;
}

constexpr volume rain_volume(rain_depth depth, area surface)
{
    return div_round(depth * surface, 1000);
}

} // namespace example
