#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace example {

// Right-aligned fields appended to a text. Numbers are whole multiples of 10^-scale; they are
// written without floating point, hence fast and the same everywhere.
void append_fixed(std::string& text, std::int64_t value, int scale, std::size_t width);
void append_exponent(std::string& text, std::int64_t value, int scale, std::size_t width);

// Widths count characters, not UTF-8 bytes.
void append_right(std::string& text, std::string_view word, std::size_t width);
void append_left(std::string& text, std::string_view word, std::size_t width);

} // namespace example
