#pragma once

#include <QStringList>

class text_lines;

/// The basins that a BEK file names, in the order of the file: the five characters of each
/// identifier as they stand, blanks included.
QStringList list_bek_names(text_lines& lines);

/// The characteristic curves that a DKL file names, in the order of the file. A header with too few
/// words for a name is left out and logged at debug level.
QStringList list_dkl_names(text_lines& lines);
