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

std::optional<double> by_qt(QByteArrayView token)
{
    bool ok = false;
    const double value = decoded(token).toDouble(&ok);
    return ok ? std::optional(value) : std::nullopt;
}

} // namespace

std::optional<double> number_in(QByteArrayView token)
{
    if (!starts_plainly(token))
        return by_qt(token);
    double value = 0.0;
    const char* const end = token.data() + token.size();
    const auto [rest, error] = std::from_chars(token.data(), end, value);
    if (error == std::errc() && rest == end)
        return value;
    return by_qt(token);
}
