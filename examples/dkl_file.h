#pragma once

#include <filesystem>

namespace example {

// Characteristic curves, level against discharge, of every outlet and spillway.
void write_dkl(const std::filesystem::path& path);

} // namespace example
