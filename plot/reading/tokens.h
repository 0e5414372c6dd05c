#pragma once

#include <QByteArrayView>
#include <QStringList>

/// Cuts a line into its tokens, one after the other: at every blank (U+0020 only, a tab is no
/// separator), without empty pieces.
class token_cursor
{
public:
    explicit token_cursor(QByteArrayView line)
        : rest(line)
    {
    }

    /// Puts the next token into `token` and answers whether there was one.
    bool next(QByteArrayView& token);

private:
    QByteArrayView rest;
};

/// All tokens of `line`.
QStringList tokens_of(const QString& line);
