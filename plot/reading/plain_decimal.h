#pragma once

#include <QByteArrayView>

#include <array>
#include <cfloat>

/// The digits at the front of a text that is read as one whole number.
struct digit_run
{
    const char* at;
    const char* end;
    quint64 number = 0;

    /// Reads on up to the first character that is no digit, and answers how many digits there were.
    qsizetype read()
    {
        const char* const first = at;
        for (; at != end && *at >= '0' && *at <= '9'; ++at)
            number = 10 * number + static_cast<quint64>(*at - '0');
        return at - first;
    }
};

/// Reads the plain decimal number that `text` starts with: digits, "-" allowed before them and one
/// "." behind the first. Answers how many characters it takes; 0 where there is none, or one of
/// more than 15 digits.
///
/// Up to 15 digits, the digits without the point and the power of ten that they are divided by are
/// doubles without an error. So the division rounds once, to the double nearest to the number.
inline qsizetype read_plain_decimal(QByteArrayView text, double& value)
{
    static_assert(FLT_EVAL_METHOD == 0, "a wider division would round twice");
    static constexpr std::array powers_of_ten{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6, 1e7,
                                              1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14};
    const bool is_negative = text.startsWith('-');
    digit_run digits{text.begin() + is_negative, text.end()};
    const qsizetype before_point = digits.read();
    qsizetype behind_point = 0;
    if (digits.at != digits.end && *digits.at == '.') {
        ++digits.at;
        behind_point = digits.read();
    }
    if (before_point == 0 || before_point + behind_point > 15)
        return 0;
    const double magnitude =
        static_cast<double>(digits.number) / powers_of_ten[static_cast<std::size_t>(behind_point)];
    value = is_negative ? -magnitude : magnitude;
    return digits.at - text.begin();
}
