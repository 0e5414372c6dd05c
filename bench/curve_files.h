#pragma once

#include <QByteArray>

namespace bench {

inline constexpr int curve_count = 2000;
inline constexpr int point_count = 500;

/// A BEK file of `curve_count` basins, and a DKL file of as many curves, with `point_count` rows
/// each.
QByteArray large_bek_file();
QByteArray large_dkl_file();

} // namespace bench
