#pragma once

#include <QList>

#include <array>

/// The numeric columns of a result file. Which column of which kind of file lands in which entry is
/// said by the tables of the readers; entry 0 is always the time in hours. Values stand in the
/// order of the file. Entries of one file may differ in length.
using series_store = std::array<QList<double>, 25>;
