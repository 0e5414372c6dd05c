#pragma once

#include <QList>

#include <array>

/// The numeric columns of a result file. Which column of which kind of file lands in which entry is
/// said by the tables of the readers; entry 0 is always the time in hours. Values stand in the
/// order of the file. Entries of one file may differ in length.
///
/// What is drawn of a WEL file, by the titles of `plot/drawing/curve_table.cpp`: 2 hN and 4 heff
/// [mm], 5 Qab1, 6 Qab2, 8 Qb, 10 Qein, 11 QG, 12 Qges, 14 Qab and 20 Qpeg [m3/s], 23 V [m3]. Of a
/// BEK or DKL file: 1 the water level [müNHN], 11 the discharge, 13 that of the spillway [m3/s], 23
/// the volume [1000 m3]. The other entries are stored only; 15 is the one that no file fills.
using series_store = std::array<QList<double>, 25>;
