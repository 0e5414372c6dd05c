#include "plot/reading/number.h"

#include "plot/reading/plain_decimal.h"
#include "plot/reading/text_lines.h"
#include "plot/reading/tokens.h"

#include <QString>

#include <charconv>
#include <system_error>

namespace {

bool is_digit(char c)
{
    return c >= '0' && c <= '9';
}

// What starts otherwise ("+", ".", letters, white space) is left to the conversion of Qt.
bool starts_plainly(QByteArrayView text)
{
    const qsizetype sign = text.startsWith('-') ? 1 : 0;
    return text.size() > sign && is_digit(text[sign]);
}

// Whether all of `token` is a number with a plain start.
bool read_plainly(QByteArrayView token, double& value)
{
    if (!starts_plainly(token))
        return false;
    const auto [rest, error] = std::from_chars(token.begin(), token.end(), value);
    return error == std::errc() && rest == token.end();
}

// Takes a token off `line`, which starts with it, and answers whether it is a number. Nearly all
// tokens of result files are plain decimals, which show their own end.
bool take_number(QByteArrayView& line, double& value)
{
    const qsizetype length = read_plain_decimal(line, value);
    if (length > 0 && (length == line.size() || line[length] == ' ')) {
        line = line.sliced(length);
        return true;
    }
    const std::optional<double> number = number_in(take_token(line));
    value = number.value_or(0.0);
    return number.has_value();
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

bool read_numbers(QByteArrayView line, std::vector<double>& values)
{
    values.clear();
    for (skip_blanks(line); !line.isEmpty(); skip_blanks(line)) {
        double value = 0.0;
        if (!take_number(line, value))
            return false;
        values.push_back(value);
    }
    return true;
}

double value_of(QByteArrayView text)
{
    text = text.trimmed();
    if (text.isEmpty())
        return 0.0;
    double value = 0.0;
    if (read_plainly(text, value))
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
