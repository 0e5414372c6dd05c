#include "bench/curve_files.h"

namespace bench {

namespace {

QByteArray number(double value, int decimals, int width)
{
    return QByteArray::number(value, 'f', decimals).rightJustified(width);
}

QByteArray padded(int value, int width)
{
    return QByteArray::number(value).rightJustified(width, '0');
}

} // namespace

QByteArray large_bek_file(int basins)
{
    QByteArray bytes = "   BBez. Bezeichnung                       h    Qg   Qhw      V\n";
    for (int basin = 0; basin < basins; ++basin) {
        for (int row = 0; row < point_count; ++row) {
            const QByteArray name = row == 0 ? "   B" + padded(basin, 4) + " Becken" : QByteArray();
            bytes += name.leftJustified(37) + number(100 + 0.01 * row, 2, 7) +
                     number(0.02 * row, 2, 6) +
                     (row < 400 ? QByteArray(6, ' ') : number(0.1 * (row - 400), 2, 6)) +
                     number(0.7 * row, 3, 7) + "\n";
        }
    }
    return bytes;
}

QByteArray large_dkl_file(int curves)
{
    QByteArray bytes;
    for (int curve = 0; curve < curves; ++curve) {
        bytes += "  " + QByteArray::number(curve) + "  Drossel" + padded(curve, 4) + "  km 1" +
                 padded(curve, 4) +
                 ".0  GOK = 187.50 m\u00fcNHN\n   Wo [m\u00fcNHN]  Qd [m3/s]\n  " +
                 QByteArray::number(point_count) + "\n";
        for (int row = 0; row < point_count; ++row) {
            bytes += number(100 + 0.01 * row, 3, 12) + "   " +
                     QByteArray::number(0.013 * row, 'E', 6) + "\n";
        }
    }
    return bytes;
}

} // namespace bench
