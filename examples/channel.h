#pragma once

#include "examples/fixed_point.h"

#include <vector>

namespace example {

// Trapezoidal brook bed; steady uniform flow after Darcy and Weisbach.
struct channel_data
{
    double bottom_width; // m
    double bank_slope;   // m across for each m of height
    double bed_slope;
    double friction; // Darcy-Weisbach coefficient
    flow bankfull;   // what is above runs over the flood plain
};

struct channel_state
{
    level depth;
    std::int64_t width;         // of the water surface, mm
    std::int64_t cross_section; // 0.001 m2
    std::int64_t velocity;      // 0.001 m/s
};

class channel_rating
{
public:
    explicit channel_rating(const channel_data& data);

    channel_state at(flow discharge) const;

private:
    struct row
    {
        flow discharge;
        level depth;
        std::int64_t width;
        std::int64_t cross_section;
    };

    std::vector<row> rows_;
};

} // namespace example
