#pragma once

#include <QLoggingCategory>

/// Whether debug lines go anywhere. Readers ask before they build the text of one: a file has
/// millions of lines.
inline bool debug_log_is_on()
{
    return QLoggingCategory::defaultCategory()->isDebugEnabled();
}
