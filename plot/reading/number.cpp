#include "plot/reading/number.h"

#include "plot/reading/text_lines.h"

#include <QString>

#include <charconv>
#include <system_error>

namespace {

bool is_digit(char c)
{
    return c >= '0' && c <= '9';
}

// Plain decimal numbers are nearly all that result files hold; what starts otherwise ("+", ".",
// letters, blanks) is left to the conversion of Qt.
bool starts_plainly(QByteArrayView token)
{
    const qsizetype sign = token.startsWith('-') ? 1 : 0;
    return token.size() > sign && is_digit(token[sign]);
}

// Whether all of `token` is a plain number.
bool read_plainly(QByteArrayView token, double& value)
{
    if (!starts_plainly(token))
        return false;
    const char* const end = token.data() + token.size();
    const auto [rest, error] = std::from_chars(token.data(), end, value);
    return error == std::errc() && rest == end;
}

QByteArrayView without_blanks_around(QByteArrayView text)
{
    while (text.startsWith(' '))
        text = text.sliced(1);
    while (text.endsWith(' '))
        text.chop(1);
    return text;
}

} // namespace

std::optional<double> number_in(QByteArrayView token)
{
    double value = 0.0;
    if (read_plainly(token, value))
        return value;
    bool ok = false;
    value = decoded(token).toDouble(&ok);
    return ok ? std::optional(value) : std::nullopt;
}

double value_of(QByteArrayView text)
{
    text = without_blanks_around(text);
    double value = 0.0;
    if (text.isEmpty() || read_plainly(text, value))
        return value;
    return decoded(text).toDouble();
}

double value_of(QLatin1StringView text)
{
    return value_of(QByteArrayView(text.data(), text.size()));
}

double value_of(QStringView text)
{
    return text.toDouble();
}
