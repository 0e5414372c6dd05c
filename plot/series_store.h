#pragma once

#include <QList>

#include <array>
#include <tuple>

/// The numeric columns of a result file. Which column of which kind of file lands in which entry is
/// said by the tables of the readers; entry 0 is always the time in hours. Values stand in the
/// order of the file. Entries of one file may differ in length.
using series_store = std::array<QList<double>, 25>;

/// Whether the store has an entry of this number.
constexpr bool is_entry(int number)
{
    return number >= 0 && number < static_cast<int>(std::tuple_size_v<series_store>);
}
