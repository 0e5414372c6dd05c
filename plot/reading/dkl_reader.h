#pragma once

#include "plot/series_store.h"

#include <QString>

class text_lines;

/// Reads one characteristic curve of a DKL file: its water levels (müNHN) into entry 1 and its
/// discharges (m³/s) into entry 11 of `series`. `item` is the curve's name as the file lists it; it
/// is copied into `title` where the file has a header of that name.
void read_dkl(text_lines& lines, const QString& item, QString& title, series_store& series);
