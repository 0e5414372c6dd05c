#include "examples/gauge.h"

#include <algorithm>

namespace example {

namespace {

constexpr flow reliable_up_to = 2 * one_cumec;
constexpr std::int64_t shortfall_percent = 9;

} // namespace

void gauge::advance(flow computed)
{
    const flow excess = std::max<flow>(0, computed_ - reliable_up_to);
    const flow read = computed_ - div_round(excess * shortfall_percent, 100);
    measured_ = div_round(read * (1000 + wavering()), 1000);
    computed_ = computed;
}

std::int64_t gauge::wavering()
{
    seed_ = seed_ * 1664525u + 1013904223u;
    const std::int64_t drawn = static_cast<std::int64_t>(seed_ >> 8) % 101 - 50;
    wavering_ = div_round(3 * wavering_ + drawn, 4);
    return wavering_;
}

} // namespace example
