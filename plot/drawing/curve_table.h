#pragma once

#include "plot/short_list.h"

#include <Qt>
#include <QtTypes>

enum class plot_place
{
    lower,
    upper,
};

/// One curve of a plot mode.
struct curve_rule
{
    int curve; ///< index of the curve in the document
    int x;     ///< entry of the series store
    int y;     ///< entry of the series store
    plot_place place;
    Qt::GlobalColor colour;
    const char16_t* title;  ///< null: the title line of the file
    bool tail_of_y = false; ///< takes only the last values of y, as many as x has
    bool sets_axes = false; ///< is put on the bottom and the left axis before it is attached
};

/// The titles of the bottom and the left axis of one plot; null leaves the title as it is.
struct axis_titles
{
    const char16_t* x = nullptr;
    const char16_t* y = nullptr;
};

/// How the documents of one plot mode are drawn.
struct plot_mode_rule
{
    int plot_mode;
    short_list<curve_rule, 4> curves;
    axis_titles lower;
    axis_titles upper;
    bool lists_names = true; ///< whether the curves' titles become names that can be changed
};

/// The rule of a mode; null where the mode draws nothing.
const plot_mode_rule* plot_mode_rule_of(int plot_mode);
