#pragma once

#include <filesystem>

namespace example {

// Basin table: level, outlet, spillway and volume of every basin, in fixed columns.
void write_bek(const std::filesystem::path& path);

} // namespace example
