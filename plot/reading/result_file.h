#pragma once

#include <QFile>

/// Opens a result file for reading and answers whether that succeeded. Only regular files are
/// opened: a directory gives no text, a FIFO or a device might never end.
bool open_result_file(QFile& file);
