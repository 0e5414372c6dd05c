#pragma once

#include <QByteArrayView>

/// Tells the debug log, if it is on, the tokens of a line and whether all of them are numbers.
void log_row(QByteArrayView line, bool ok);
