#pragma once

#include "plot/series_store.h"

#include <QStringView>

class text_lines;

/// Reads the table of one basin of a BEK file into `series`: water level (entry 1), discharge of
/// the outlet (11) and of the spillway (13), volume (23). `item` is the identifier as the file
/// lists it, blanks included. A basin may stand in several blocks of the file; all of them are
/// appended.
void read_bek(text_lines& lines, QStringView item, series_store& series);
