#include "examples/text_line.h"

#include <algorithm>

namespace example {

namespace {

constexpr int mantissa_digits = 7;

std::size_t characters(std::string_view word)
{
    const auto starts_character = [](char c) { return (c & 0xC0) != 0x80; };
    return static_cast<std::size_t>(std::count_if(word.begin(), word.end(), starts_character));
}

std::size_t padding(std::string_view word, std::size_t width)
{
    const std::size_t used = characters(word);
    return used < width ? width - used : 0;
}

// Digits of a number, with as many leading zeros as it takes to reach the length.
std::string_view digits_of(std::uint64_t value, std::size_t length, char (&buffer)[24])
{
    char* const end = buffer + sizeof buffer;
    char* begin = end;
    while (value != 0 || static_cast<std::size_t>(end - begin) < length) {
        *--begin = static_cast<char>('0' + value % 10);
        value /= 10;
    }
    return {begin, static_cast<std::size_t>(end - begin)};
}

std::uint64_t magnitude(std::int64_t value)
{
    return value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
}

// A number of just mantissa_digits digits and the power of ten that went out of it.
struct scaled
{
    std::uint64_t mantissa;
    int exponent;
};

scaled normalised(std::uint64_t value)
{
    constexpr std::uint64_t limit = 10000000;
    int exponent = 0;
    std::uint64_t divisor = 1;
    while ((value + divisor / 2) / divisor >= limit) {
        divisor *= 10;
        ++exponent;
    }
    std::uint64_t mantissa = (value + divisor / 2) / divisor;
    while (mantissa != 0 && mantissa < limit / 10) {
        mantissa *= 10;
        --exponent;
    }
    return {mantissa, exponent};
}

} // namespace

void append_fixed(std::string& text, std::int64_t value, int scale, std::size_t width)
{
    char buffer[24];
    const auto decimals = static_cast<std::size_t>(scale);
    const std::string_view digits = digits_of(magnitude(value), decimals + 1, buffer);
    const std::size_t used = digits.size() + (value < 0) + (scale > 0);
    text.append(used < width ? width - used : 0, ' ');
    if (value < 0) {
        text += '-';
    }
    text.append(digits.substr(0, digits.size() - decimals));
    if (scale > 0) {
        text += '.';
        text.append(digits.substr(digits.size() - decimals));
    }
}

void append_exponent(std::string& text, std::int64_t value, int scale, std::size_t width)
{
    char buffer[24];
    const auto [mantissa, shift] = normalised(magnitude(value));
    const int exponent = mantissa == 0 ? 0 : shift + mantissa_digits - 1 - scale;
    std::string number = value < 0 ? "-" : "";
    append_fixed(number, static_cast<std::int64_t>(mantissa), mantissa_digits - 1, 0);
    number += exponent < 0 ? "E-" : "E+";
    number += digits_of(magnitude(exponent), 2, buffer);
    append_right(text, number, width);
}

void append_right(std::string& text, std::string_view word, std::size_t width)
{
    text.append(padding(word, width), ' ');
    text.append(word);
}

void append_left(std::string& text, std::string_view word, std::size_t width)
{
    text.append(word);
    text.append(padding(word, width), ' ');
}

} // namespace example
