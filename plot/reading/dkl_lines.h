#pragma once

#include "plot/reading/line_text.h"

/// Whether a line of a DKL file is a column heading: it has "Wo", but not "Wo>", which marks a
/// data line or a header.
inline bool is_dkl_heading(QByteArrayView line)
{
    return has(line, "Wo") && !has(line, "Wo>");
}
