// What is a number: against Qt's own conversion of the decoded text.
#include "fuzz/support/agree.h"
#include "plot/reading/number.h"

#include <algorithm>
#include <cstdint>

namespace {

// The text of any bytes. A byte-order mark is dropped at the start alone, so nothing starts there.
QString text_of(QByteArrayView bytes)
{
    return QString::fromUtf8("|" + bytes.toByteArray()).sliced(1);
}

bool is_ascii(QByteArrayView bytes)
{
    return std::ranges::all_of(bytes, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

void compare_token(QByteArrayView bytes, const QString& text)
{
    bool ok = false;
    const double expected = text.toDouble(&ok);
    const std::optional<double> number = number_in(bytes);
    must_agree("is a number", number.has_value(), ok);
    if (ok)
        must_agree("number", *number, expected);
}

void compare_value(QByteArrayView bytes, const QString& text)
{
    must_agree("value of UTF-8", value_of(bytes), text.toDouble());
    must_agree("value of UTF-16", value_of(QStringView(text)), text.toDouble());
    if (is_ascii(bytes))
        must_agree("value of ASCII", value_of(QLatin1StringView(bytes)), text.toDouble());
}

void compare_line(QByteArrayView bytes, const QString& text)
{
    QList<double> expected;
    bool ok = true;
    const auto tokens = text.split(u' ', Qt::SkipEmptyParts);
    for (const QString& token : tokens) {
        const double value = token.toDouble(&ok);
        if (!ok)
            break;
        expected.append(value);
    }
    static std::vector<double> values;
    must_agree("is a row", read_numbers(bytes, values), ok);
    must_agree("row", QList<double>(values.begin(), values.end()), expected);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArrayView bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QString text = text_of(bytes);
    compare_token(bytes, text);
    compare_value(bytes, text);
    compare_line(bytes, text);
    return 0;
}
