#pragma once

#include <QByteArrayView>
#include <QLatin1StringView>
#include <QStringView>

#include <optional>
#include <vector>

/// The value of a number written in `token` (UTF-8), or nothing where it is no number.
///
/// What counts as a number is what `QString::toDouble` accepts: "." as decimal point whatever the
/// user's locale, an optional sign and exponent, "inf" and "nan", white space around; no thousands
/// separator. An exponent may be written "e" or "E". A value too large or too small for a double is
/// no number.
std::optional<double> number_in(QByteArrayView token);

/// Fills `values` with the numbers of a line up to the first token that is none, and answers
/// whether every token is a number. A line without tokens has no values and true.
bool read_numbers(QByteArrayView line, std::vector<double>& values);

/// What `QString::toDouble` answers for `text`: the number written there, blanks around it allowed;
/// 0 where there is none, infinity where it is too large.
double value_of(QByteArrayView text);
double value_of(QLatin1StringView text);
double value_of(QStringView text);
