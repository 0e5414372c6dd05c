#pragma once

#include <QByteArray>

namespace bench {

inline constexpr int curve_count = 2000;
inline constexpr int point_count = 500;

/// A BEK file of so many basins, and a DKL file of so many curves, with `point_count` rows each.
QByteArray large_bek_file(int basins = curve_count);
QByteArray large_dkl_file(int curves = curve_count);

} // namespace bench
