#pragma once

#include <QtTypes>

#include <cstddef>

/// A field of a fixed-column line: characters `position` to `position + length - 1`, counted from
/// 0.
struct text_field
{
    qsizetype position;
    qsizetype length;
};

inline constexpr text_field bek_identifier{3, 5};
inline constexpr text_field bek_first_letter{3, 1}; ///< "B" or "b" on a line that names a basin
inline constexpr text_field bek_heading_word{4, 3}; ///< "Bez" on the heading line
inline constexpr text_field bek_values{37, 26};     ///< all four values; blank on other lines

/// A column of values: where it stands and which series takes it.
struct bek_column
{
    text_field where;
    std::size_t series;
    bool may_be_blank;
};

inline constexpr bek_column bek_columns[] = {
    {{37, 7}, 1, false},  // water level, müNHN
    {{44, 6}, 11, false}, // discharge of the outlet, m³/s
    {{50, 6}, 13, true},  // discharge of the spillway, m³/s
    {{56, 7}, 23, false}, // volume, thousands of m³
};

/// The text of a field of `line`. A field is shortened by the end of the line and empty behind it.
template <class text_view>
text_view field(text_view line, const text_field& where)
{
    return line.mid(where.position, where.length);
}
