#include "plot/drawing/curve_table.h"

#include "plot/series_store.h"

#include <algorithm>

namespace {

using enum plot_place;
using Qt::blue;
using Qt::green;
using Qt::red;

// Deliberate: the blank behind the unit of time.
constexpr axis_titles discharge{u"Zeit [h] ", u"Q [m3/s]"};

// clang-format off
constexpr plot_mode_rule rules[] = {
    //     curve  x   y  plot   colour title
    {0, {{    0,  0,  8, lower, blue,  u"Qb"},
         {    1,  0, 12, lower, green, u"Qges"},
         {    2,  0,  2, upper, blue,  u"hN"},
         {    3,  0,  4, upper, red,   u"heff"}},
     discharge, {u"Zeit [h] ", u"P [mm]"}},

    // Deliberate: the three blanks behind "V", which mode 9 does not have.
    {1, {{    0,  0, 10, lower, blue,  u"Qein"},
         {    1,  0, 14, lower, red,   u"Qab"},
         {    2,  0, 23, upper, red,   u"V   "},
         {    3,  0, 11, lower, green, u"QG"}},
     discharge, {u"Zeit [h] ", u"V [m3]"}},

    // Deliberate: the names of this mode are not offered for renaming.
    {2, {{    0,  0, 10, lower, blue,  u"Qein"},
         {    1,  0, 14, lower, green, u"Qab"}},
     discharge, {}, false},

    // Deliberate: "Qb" is the series that other modes call "Qein".
    {3, {{    0,  0, 10, lower, blue,  u"Qb"},
         {    1,  0,  5, lower, green, u"Qab1"},
         {    2,  0,  6, lower, red,   u"Qab2"}},
     discharge, {}},

    {5, {{    0,  0, 12, lower, blue,  u"Qges"},
         {    1,  0, 20, lower, green, u"Qpeg"}},
     discharge, {}},

    {6, {{    0,  0, 10, lower, blue,  u"Qein"}},
     discharge, {}},

    {8, {{    0, 11,  1, lower, blue,  nullptr}},
     {u"Qd [m3/s]", u"Wo [müNHN]"}, {}},

    // The spillway runs at the highest levels only: its curve takes the end of the level list.
    {9, {{    0, 11,  1, lower, blue,  u"Qg"},
         {    1, 13,  1, lower, green, u"Qhw", true},
         {    2, 23,  1, upper, red,   u"V", false, true}},
     {u"Q [m3/s]", u"h [müNHN]"}, {u"V [Tsd. m3]", u"h [müNHN]"}},
};
// clang-format on

constexpr bool stays_in_the_store(const plot_mode_rule& rule)
{
    return std::ranges::all_of(rule.curves, is_entry, &curve_rule::x) &&
           std::ranges::all_of(rule.curves, is_entry, &curve_rule::y);
}
static_assert(std::ranges::all_of(rules, stays_in_the_store));

constexpr bool names_curves_of_the_document(const plot_mode_rule& rule)
{
    const auto is_one = [](int curve) { return curve >= 0 && curve < 4; };
    return std::ranges::all_of(rule.curves, is_one, &curve_rule::curve);
}
static_assert(std::ranges::all_of(rules, names_curves_of_the_document));

} // namespace

const plot_mode_rule* plot_mode_rule_of(int plot_mode)
{
    const auto* const found = std::ranges::find(rules, plot_mode, &plot_mode_rule::plot_mode);
    return found == std::end(rules) ? nullptr : found;
}
