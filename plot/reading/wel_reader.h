#pragma once

#include "plot/series_store.h"

#include <QStringView>

class QString;
class text_lines;

/// What reading a WEL file writes to. Everything is added to what is there: nothing is cleared.
struct wel_target
{
    int& plot_mode;       ///< set at every data row to the mode of the element kind
    QString& title;       ///< set to every title line, so that the last one stays
    series_store& series; ///< gets every number of every data row
};

/// Reads the hydrographs of one model element.
///
/// `file_name`, without its folder, tells the element kind. A line with the word "Ganglinien" is
/// the title; any other line of which every token is a number is a data row; the rest is dropped.
/// Reading stops at the first data row that has more tokens than its kind has columns, after the
/// tokens that fit. What is done with each line is told to the debug log.
void read_wel(text_lines& lines, QStringView file_name, const wel_target& target);
