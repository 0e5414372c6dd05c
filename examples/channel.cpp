#include "examples/channel.h"

#include <algorithm>
#include <cmath>

namespace example {

namespace {

constexpr double gravity = 9.81;
constexpr level depth_step = 20;
constexpr level greatest_depth = 3000;

} // namespace

channel_rating::channel_rating(const channel_data& data)
{
    for (level depth = 0; depth <= greatest_depth; depth += depth_step) {
        const double y = static_cast<double>(depth) / one_metre;
        const double section = (data.bottom_width + data.bank_slope * y) * y;
        const double bank = std::sqrt(1.0 + data.bank_slope * data.bank_slope) * y;
        const double radius = section / (data.bottom_width + 2.0 * bank);
        const double velocity = std::sqrt(8.0 * gravity / data.friction * radius * data.bed_slope);
        const double width = data.bottom_width + 2.0 * data.bank_slope * y;
        rows_.push_back({std::llround(velocity * section * one_cumec), depth,
                         std::llround(width * 1000.0), std::llround(section * 1000.0)});
    }
}

channel_state channel_rating::at(flow discharge) const
{
    const auto beyond = [](flow value, const row& r) { return value < r.discharge; };
    const auto to = std::upper_bound(rows_.begin() + 1, rows_.end() - 1, discharge, beyond);
    const row& from = *(to - 1);
    const auto value = [&](auto member) {
        return interpolate(discharge, {from.discharge, from.*member},
                           {to->discharge, (*to).*member});
    };
    const std::int64_t section = value(&row::cross_section);
    const std::int64_t velocity = section == 0 ? 0 : div_round(discharge * 1000, section);
    return {value(&row::depth), value(&row::width), section, velocity};
}

} // namespace example
