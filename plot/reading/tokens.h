#pragma once

#include <QByteArrayView>
#include <QStringList>
#include <QtEndian>

#include <bit>

// A line is cut into tokens at every blank (U+0020 only, a tab is no separator), without empty
// pieces.

/// Drops the blanks that `text` starts with. Columns are mostly blanks: eight bytes are looked at
/// in one step.
inline void skip_blanks(QByteArrayView& text)
{
    constexpr quint64 eight_blanks = 0x2020202020202020;
    const char* first = text.begin();
    const char* const end = text.end();
    for (; end - first >= 8; first += 8) {
        const quint64 others = qFromLittleEndian<quint64>(first) ^ eight_blanks;
        if (others != 0) {
            first += std::countr_zero(others) / 8;
            break;
        }
    }
    while (first != end && *first == ' ')
        ++first;
    text = QByteArrayView(first, end);
}

/// Takes the first token off `line` and answers it; where none is left, an empty one.
inline QByteArrayView take_token(QByteArrayView& line)
{
    skip_blanks(line);
    qsizetype length = 0;
    while (length < line.size() && line[length] != ' ')
        ++length;
    const QByteArrayView token = line.first(length);
    line = line.sliced(length);
    return token;
}

/// All tokens of `line`.
inline QStringList tokens_of(const QString& line)
{
    return line.split(u' ', Qt::SkipEmptyParts);
}
