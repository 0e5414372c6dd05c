#include "examples/basin_data.h"

namespace example {

namespace {

basin_data oberdorf()
{
    return {"B1",
            "HRB Oberdorf",
            {182000, 0.85, 0.65},
            {186600, 12.0},
            spillway_column::zero_below_crest,
            {{182000, 400},
             {182250, 900},
             {182500, 1800},
             {183000, 4200},
             {183500, 7400},
             {184000, 11000},
             {184500, 14800},
             {185000, 18600},
             {185500, 22400},
             {186000, 26200},
             {186300, 28500},
             {186600, 31000},
             {186700, 31850},
             {186800, 32700},
             {187000, 34400},
             {187200, 36200},
             {187500, 38800}}};
}

basin_data auwiesen()
{
    return {"B2",
            "HRB Auwiesen (Nebenschluss)",
            {174500, 0.40, 0.35},
            {176600, 8.0},
            spillway_column::blank_below_crest,
            {{174500, 900},
             {174700, 2600},
             {175000, 5400},
             {175400, 8200},
             {175800, 10100},
             {176200, 11600},
             {176600, 12900},
             {176800, 13600},
             {177000, 14300},
             {177300, 15400}}};
}

basin_data muehlgrund()
{
    return {"B3",
            "Mühlteich",
            {191200, 0.60, 0.50},
            {192800, 5.5},
            spillway_column::zero_below_crest,
            {{191200, 350},
             {191500, 1200},
             {192000, 2900},
             {192400, 4100},
             {192800, 5200},
             {193000, 5700},
             {193200, 6300},
             {193500, 7200}}};
}

basin_data gewerbegebiet()
{
    return {"B4",
            "RRB Gewerbegebiet Süd",
            {179300, 0.25, 0.25},
            {181200, 0.0},
            spillway_column::blank_below_crest,
            {{179300, 820},
             {179600, 1010},
             {180000, 1280},
             {180400, 1560},
             {180800, 1860},
             {181200, 2170}}};
}

} // namespace

const std::array<basin_data, 4>& basins()
{
    static const std::array<basin_data, 4> all{oberdorf(), auwiesen(), muehlgrund(),
                                               gewerbegebiet()};
    return all;
}

} // namespace example
