#pragma once

#include <QByteArrayView>

/// Whether a line of a DKL file is a column heading: it has "Wo", but not "Wo>", which marks a
/// data line or a header.
inline bool is_dkl_heading(QByteArrayView line)
{
    return line.contains("Wo") && !line.contains("Wo>");
}
