#pragma once

#include "plot/reading/text_lines.h"

#include <QByteArrayView>
#include <QLatin1StringView>
#include <QString>
#include <QStringView>

/// Whether all bytes are ASCII, so that each is a character by itself.
inline bool is_ascii(QByteArrayView bytes)
{
    unsigned all = 0; // without an early way out, several bytes are looked at in one step
    for (const char byte : bytes)
        all |= static_cast<unsigned char>(byte);
    return all < 0x80;
}

/// Calls `use` with the text of a line (UTF-8) and answers what it answers. Where all is ASCII, as
/// nearly always, that is a QLatin1StringView of the line itself; otherwise the line is decoded and
/// the text is a QStringView. Both have the same functions, so `use` is written once for both.
template <class function>
auto with_text_of(QByteArrayView line, const function& use)
{
    if (is_ascii(line))
        return use(QLatin1StringView(line));
    const QString text = decoded(line);
    return use(QStringView(text));
}
