#pragma once

#include "plot/short_list.h"

#include <QStringView>

#include <span>

/// Where the tokens of a data row go: token i is appended to entry `[i]` of the series store. A row
/// that is longer than its routing is too long.
using column_routing = short_list<int, 10>;

/// One kind of model element, as a WEL file shows it.
struct element_kind
{
    const char* name;                          ///< as the log writes it
    short_list<QStringView, 2> markers;        ///< any one of them in the file name tells the kind
    int plot_mode;                             ///< decides how the file is drawn
    column_routing columns;                    ///< of a row of any length…
    column_routing columns_of_seven = columns; ///< …but one of exactly seven tokens
    bool logs_excess_token = false; ///< whether the log names the first token of a row too long

    /// The routing of a row of `tokens` tokens.
    constexpr const column_routing& columns_for(std::size_t tokens) const
    {
        return tokens == 7 ? columns_of_seven : columns;
    }
};

/// The kinds in the order in which their markers are looked for. Deliberate: the first that matches
/// wins, wherever it stands in the name.
std::span<const element_kind> element_kinds();

/// The kind of the element that a file of this name (without its folder) holds, by case-sensitive
/// search for the markers; null where there is none.
const element_kind* element_kind_of(QStringView file_name);
