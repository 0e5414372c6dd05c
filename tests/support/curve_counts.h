#pragma once

#include "plot/drawing/curve_table.h"

#include <QByteArray>

#include <algorithm>
#include <utility>

/// How many curves the lower and the upper plot have in a mode.
inline std::pair<qsizetype, qsizetype> curve_counts(int plot_mode)
{
    const plot_mode_rule* const mode = plot_mode_rule_of(plot_mode);
    if (!mode)
        return {0, 0};
    const auto lower = std::ranges::count(mode->curves, plot_place::lower, &curve_rule::place);
    const auto all = static_cast<qsizetype>(mode->curves.size());
    return {lower, all - lower};
}

/// A WEL file with two rows of so many columns.
inline QByteArray rows_of(std::size_t columns)
{
    const auto others = static_cast<qsizetype>(columns - 1);
    return "Ganglinien\n0" + QByteArray(" 1.5").repeated(others) + "\n72" +
           QByteArray(" 20").repeated(others) + "\n";
}
