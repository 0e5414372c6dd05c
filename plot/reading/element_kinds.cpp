#include "plot/reading/element_kinds.h"

#include "plot/series_store.h"

#include <algorithm>

namespace {

// What the entries hold of a WEL file. Drawn: 0 time [h]; 2 hN, 4 heff [mm]; 5 Qab1, 6 Qab2, 8 Qb,
// 10 Qein, 11 QG, 12 Qges, 14 Qab, 20 Qpeg [m3/s]; 23 V [m3]. Stored only: 1 h, 3 hV, 5 QD, 6 QI,
// 7 QGW, 9 Qzu, 13 Qhw, 16 Qver, 24 A, and 16 to 19, 21, 22 of kind T. 15 is free.

// clang-format off
constexpr element_kind kinds[] = {
    // name  markers         mode  token  0   1   2   3   4   5   6   7   8   9

    // A basin row of exactly seven tokens has a layout of its own; that is deliberate. Entries 23
    // and 24 may hold exponents in capitals, which the number conversion reads like small ones.
    {"B",  {u"_B"},          1,         { 0,  1, 10, 11, 13, 14, 16, 23, 24},
                                        { 0, 10, 11, 13, 14, 23, 24}, true},
    // Deliberate: entry 9 comes before entry 8.
    {"KN", {u"_K", u"_N"},   0,         { 0,  2,  3,  4,  5,  6,  7,  9,  8, 12}},
    {"V",  {u"_V"},          3,         { 0, 10,  5,  6}},
    // Deliberate: entry 23 comes before entry 21.
    {"T",  {u"_T"},          2,         { 0, 10, 14, 16, 17, 18, 19, 23, 21, 22}},
    {"E",  {u"_E"},          6,         { 0, 10}},
    {"P",  {u"_P"},          5,         { 0, 12, 20}},
};
// clang-format on

constexpr bool stays_in_the_store(const element_kind& kind)
{
    return std::ranges::all_of(kind.columns, is_entry) &&
           std::ranges::all_of(kind.columns_of_seven, is_entry);
}
static_assert(std::ranges::all_of(kinds, stays_in_the_store));

} // namespace

std::span<const element_kind> element_kinds()
{
    return kinds;
}

const element_kind* element_kind_of(QStringView file_name)
{
    for (const element_kind& kind : kinds) {
        if (std::ranges::any_of(kind.markers, [&](auto mark) { return file_name.contains(mark); }))
            return &kind;
    }
    return nullptr;
}
