#pragma once

#include <QtTypes>

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
inline constexpr text_field bek_water_level{37, 7}; ///< müNHN
inline constexpr text_field bek_outlet{44, 6};      ///< m³/s
inline constexpr text_field bek_spillway{50, 6};    ///< m³/s, may be blank
inline constexpr text_field bek_volume{56, 7};      ///< thousands of m³

/// The text of a field of `line`. A field is shortened by the end of the line and empty behind it.
template <class text_view>
text_view field(text_view line, const text_field& where)
{
    return line.mid(where.position, where.length);
}
