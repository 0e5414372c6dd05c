#pragma once

#include <QByteArray>
#include <QLoggingCategory>

/// Whether debug lines go anywhere. Readers ask before they build the text of one: a file has
/// millions of lines.
inline bool debug_log_is_on()
{
    return QLoggingCategory::defaultCategory()->isDebugEnabled();
}

/// Sees to it that a text of so many characters can be logged, or throws std::bad_alloc. The log is
/// written in a destructor, where a lack of memory would end the program.
inline void ask_for_room_to_log(qsizetype characters)
{
    constexpr qsizetype long_text = 1 << 16; // for all others there is always room
    constexpr qsizetype bytes = 8;           // of a character: twice in UTF-16, once in UTF-8
    if (characters > long_text)
        QByteArray().reserve(bytes * characters);
}

/// The same for a line that is logged in quotes.
inline void ask_for_room_to_quote(QByteArrayView line)
{
    constexpr qsizetype longest_escape = 6;
    ask_for_room_to_log(longest_escape * line.size());
}
