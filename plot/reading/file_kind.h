#pragma once

#include <QStringView>

/// The three kinds of result file, and everything else.
enum class file_kind
{
    none,
    wel, ///< hydrographs of one model element
    bek, ///< basin table
    dkl, ///< characteristic curves
};

/// The kind of the file at `path` (a path, or the text of a URL), told by its last three letters
/// in any case. No dot is asked for: "xwel" is a WEL file too.
file_kind file_kind_of(QStringView path);
