#pragma once

#include "examples/network.h"

#include <span>
#include <string_view>

namespace example {

enum class notation : std::uint8_t
{
    fixed,
    exponent
};

struct column
{
    std::string_view heading;
    std::string_view unit;
    notation style;
    int scale; // the value counts multiples of 10^-scale
    std::int64_t (*value)(const network&);
};

struct element
{
    std::string_view kind; // as the command line names it
    std::string_view key;
    std::string_view name;
    std::span<const column> columns; // after the time
};

// One element of each kind, and the node N1, in the direction of flow.
std::span<const element> elements();
const element* element_of_kind(std::string_view kind);

} // namespace example
