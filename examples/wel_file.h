#pragma once

#include "examples/wel_columns.h"

#include <filesystem>

namespace example {

struct run
{
    season_plan plan;
    seconds step;
    std::int64_t rows;
    std::string_view label; // what the title line says of the run
};

// Result file of one element: title, heading and unit line, then one row a time step.
void write_wel(const std::filesystem::path& path, const element& shown, const run& wanted);

} // namespace example
