#pragma once

#include "plot/series_store.h"

#include <QString>

namespace bench {

/// Reads a WEL file as its rules are told, with the usual means of Qt: text stream, split,
/// toDouble, append. `with_log` tells whether it tells the debug log each row.
///
/// Each token is converted once only, and the log is asked before its text is built, so that it is
/// as quick as such a reader can be.
void read_wel_literally(const QString& path, bool with_log, series_store& series);

/// Reads all numbers behind the three lines of the heading, and nothing else: one loop over the
/// mapped bytes, without any check, into `columns` reserved lists. Answers how many it read.
qsizetype read_numbers_only(const QString& path, qsizetype columns, qsizetype rows);

} // namespace bench
