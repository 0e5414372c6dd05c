#pragma once

#include "plot/reading/text_lines.h"

#include <QByteArrayView>
#include <QLatin1StringView>
#include <QString>
#include <QStringView>

#include <algorithm>
#include <string>
#include <string_view>

/// Whether `text` stands somewhere in `bytes`.
inline bool has(QByteArrayView bytes, std::string_view text)
{
    return std::string_view(bytes.data(), static_cast<std::size_t>(bytes.size())).find(text) !=
           std::string_view::npos;
}

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

/// A text that is looked for in many lines.
class searched_text
{
public:
    explicit searched_text(QStringView text)
        : text(text.toString())
        , ascii(text.toLatin1().toStdString())
        , all_ascii(std::ranges::all_of(text, [](QChar c) { return c.unicode() < 0x80; }))
    {
    }

    /// Whether it stands somewhere in `line`, as with_text_of gives it. The case matters.
    bool is_in(QLatin1StringView line) const
    {
        return all_ascii && has(QByteArrayView(line.data(), line.size()), ascii);
    }
    bool is_in(QStringView line) const { return line.contains(text); }

private:
    QString text;
    std::string ascii;
    bool all_ascii; // if not, it is in no line of ASCII alone
};
