#pragma once

#include <QStringView>

/// Whether a line of a DKL file is a column heading: it has "Wo", but not "Wo>", which marks a
/// data line or a header.
inline bool is_dkl_heading(QStringView line)
{
    return line.contains(u"Wo") && !line.contains(u"Wo>");
}
