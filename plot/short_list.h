#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>

/// A list of at most `most` values that can stand in a constant table.
template <class value, std::size_t most>
class short_list
{
public:
    constexpr short_list(std::initializer_list<value> list)
        : count(list.size())
    {
        std::size_t i = 0;
        for (const value& each : list)
            values.at(i++) = each;
    }

    constexpr std::size_t size() const { return count; }
    constexpr const value& operator[](std::size_t i) const { return values[i]; }
    constexpr const value* begin() const { return values.data(); }
    constexpr const value* end() const { return values.data() + count; }

private:
    std::array<value, most> values{};
    std::size_t count;
};
