#include "examples/wel_columns.h"

#include <algorithm>
#include <array>

namespace example {

namespace {

using net = const network&;

constexpr auto fixed = notation::fixed;
constexpr auto exponent = notation::exponent;

constexpr std::array point_columns{
    column{"Qein", "[m3/s]", fixed, 3, [](net n) { return n.e1().outflow(); }},
};

template <const sub_catchment& (network::*area_of)() const>
constexpr std::array catchment_columns{
    column{"hN", "[mm]", fixed, 2, [](net n) { return (n.*area_of)().rain(); }},
    column{"hV", "[mm]", fixed, 2, [](net n) { return (n.*area_of)().lost(); }},
    column{"heff", "[mm]", fixed, 2, [](net n) { return (n.*area_of)().effective(); }},
    column{"QD", "[m3/s]", fixed, 3, [](net n) { return (n.*area_of)().direct(); }},
    column{"QI", "[m3/s]", fixed, 3, [](net n) { return (n.*area_of)().interflow(); }},
    column{"QGW", "[m3/s]", fixed, 3, [](net n) { return (n.*area_of)().groundwater(); }},
    column{"Qzu", "[m3/s]", fixed, 3, [](net n) { return (n.*area_of)().inflow(); }},
    column{"Qb", "[m3/s]", fixed, 3, [](net n) { return (n.*area_of)().base(); }},
    column{"Qges", "[m3/s]", fixed, 3, [](net n) { return (n.*area_of)().total(); }},
};

constexpr std::array main_basin_columns{
    column{"h", "[müNHN]", fixed, 3, [](net n) { return n.b1().water(); }},
    column{"Qein", "[m3/s]", fixed, 3, [](net n) { return n.b1().inflow(); }},
    column{"QG", "[m3/s]", fixed, 3, [](net n) { return n.b1().outlet(); }},
    column{"Qhw", "[m3/s]", fixed, 3, [](net n) { return n.b1().overflow(); }},
    column{"Qab", "[m3/s]", fixed, 3, [](net n) { return n.b1().outflow(); }},
    column{"Qver", "[m3/s]", fixed, 3, [](net n) { return n.b1().seepage(); }},
    column{"V", "[m3]", exponent, 2, [](net n) { return n.b1().filling(); }},
    column{"A", "[m2]", exponent, 0, [](net n) { return n.b1().surface(); }},
};

constexpr std::array reach_columns{
    column{"Qein", "[m3/s]", fixed, 3, [](net n) { return n.t1().inflow(); }},
    column{"Qab", "[m3/s]", fixed, 3, [](net n) { return n.t1().outflow(); }},
    column{"h", "[m]", fixed, 3, [](net n) { return n.t1().state().depth; }},
    column{"A", "[m2]", fixed, 3, [](net n) { return n.t1().state().cross_section; }},
    column{"v", "[m/s]", fixed, 3, [](net n) { return n.t1().state().velocity; }},
    column{"b", "[m]", fixed, 3, [](net n) { return n.t1().state().width; }},
    column{"V", "[m3]", fixed, 2, [](net n) { return n.t1().stock(); }},
    column{"QFl", "[m3/s]", fixed, 3, [](net n) { return n.t1().in_bed(); }},
    column{"QVor", "[m3/s]", fixed, 3, [](net n) { return n.t1().on_flood_plain(); }},
};

constexpr std::array branch_columns{
    column{"Qb", "[m3/s]", fixed, 3, [](net n) { return n.v1().inflow(); }},
    column{"Qab1", "[m3/s]", fixed, 3, [](net n) { return n.v1().staying(); }},
    column{"Qab2", "[m3/s]", fixed, 3, [](net n) { return n.v1().diverted(); }},
};

constexpr std::array side_basin_columns{
    column{"Qein", "[m3/s]", fixed, 3, [](net n) { return n.b2().inflow(); }},
    column{"QG", "[m3/s]", fixed, 3, [](net n) { return n.b2().outlet(); }},
    column{"Qhw", "[m3/s]", fixed, 3, [](net n) { return n.b2().overflow(); }},
    column{"Qab", "[m3/s]", fixed, 3, [](net n) { return n.b2().outflow(); }},
    column{"V", "[m3]", exponent, 2, [](net n) { return n.b2().filling(); }},
    column{"A", "[m2]", exponent, 0, [](net n) { return n.b2().surface(); }},
};

constexpr std::array gauge_columns{
    column{"Qges", "[m3/s]", fixed, 3, [](net n) { return n.p1().computed(); }},
    column{"Qpeg", "[m3/s]", fixed, 3, [](net n) { return n.p1().measured(); }},
};

constexpr std::array all_elements{
    element{"E", "E1", "Einleitung Siedlung Oberdorf", point_columns},
    element{"KN", "K1", "Teilgebiet Oberer Erlenbach", catchment_columns<&network::k1>},
    element{"B", "B1", "HRB Oberdorf", main_basin_columns},
    element{"T", "T1", "Gewässerstrecke Oberdorf - Auwiesen", reach_columns},
    element{"V", "V1", "Trennbauwerk Auwiesen", branch_columns},
    element{"B7", "B2", "HRB Auwiesen (Nebenschluss)", side_basin_columns},
    element{"N", "N1", "Knoten mit Teilgebiet Unterer Erlenbach", catchment_columns<&network::n1>},
    element{"P", "P1", "Pegel Unterdorf", gauge_columns},
};

} // namespace

std::span<const element> elements()
{
    return all_elements;
}

const element* element_of_kind(std::string_view kind)
{
    const auto found = std::ranges::find(all_elements, kind, &element::kind);
    return found == all_elements.end() ? nullptr : &*found;
}

} // namespace example
