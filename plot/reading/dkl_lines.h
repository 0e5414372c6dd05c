#pragma once

#include "plot/reading/line_text.h"

/// Whether a line of a DKL file is a column heading: it has "Wo", but not "Wo>". A line with "Wo>"
/// may be listed as the header of a curve, but is no header where the curve is read.
inline bool is_dkl_heading(QByteArrayView line)
{
    return has(line, "Wo") && !has(line, "Wo>");
}
