#include "plot/reading/number.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <bit>
#include <clocale>
#include <cmath>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

std::optional<double> by_qt(const QString& token)
{
    bool ok = false;
    const double value = token.toDouble(&ok);
    return ok ? std::optional(value) : std::nullopt;
}

double value_by_qt(const QString& text)
{
    return text.toDouble();
}

bool same(std::optional<double> a, std::optional<double> b)
{
    if (!a || !b)
        return a.has_value() == b.has_value();
    if (std::isnan(*a) || std::isnan(*b))
        return std::isnan(*a) && std::isnan(*b);
    return std::bit_cast<quint64>(*a) == std::bit_cast<quint64>(*b);
}

// Whether a line of the tokens is read as these values.
bool reads(const QByteArray& line, const std::vector<double>& expected)
{
    std::vector<double> values;
    return read_numbers(line, values) &&
           std::ranges::equal(values, expected, [](double a, double b) { return same(a, b); });
}

// Whether a token is the number that is expected, by itself and among others in a line.
bool is(const QString& token, std::optional<double> expected)
{
    const QByteArray utf8 = token.toUtf8();
    if (!same(number_in(utf8), expected))
        return false;
    if (utf8.isEmpty() || utf8.contains(' '))
        return true;
    std::vector<double> unused;
    if (!expected)
        return !read_numbers(utf8, unused) && !read_numbers("7 " + utf8 + " 8", unused);
    return reads(utf8, {*expected}) && reads("  " + utf8 + "          7", {*expected, 7.0}) &&
           reads("7 " + utf8 + " 8", {7.0, *expected, 8.0});
}

// A decimal of up to twenty digits, which may have its point anywhere.
QString random_decimal(QRandomGenerator& random)
{
    QString token;
    const int length = random.bounded(1, 21);
    for (int i = 0; i < length; ++i)
        token.append(QChar(u'0' + random.bounded(10)));
    if (random.bounded(4) > 0)
        token.insert(random.bounded(length + 1), u'.');
    return random.bounded(3) == 0 ? u'-' + token : token;
}

QString random_token(QRandomGenerator& random)
{
    static const QString letters =
        QStringLiteral("0123456789012345678901234567890.eE+-, infNA\t\u00a0x");
    QString token;
    const int length = random.bounded(1, 24);
    for (int i = 0; i < length; ++i)
        token.append(letters[random.bounded(letters.size())]);
    return token;
}

} // namespace

class tst_number : public QObject
{
    Q_OBJECT

private slots:
    void locale_is_the_one_asked_for();
    void number_data();
    void number();
    void random_tokens_as_qt();
    void random_doubles_in_all_notations();
    void random_decimals();
    void lines_data();
    void lines();
    void value_of_text_data();
    void value_of_text();
    void random_values_as_qt();
};

// The test is run in several locales; without the locale on the system it would test nothing.
void tst_number::locale_is_the_one_asked_for()
{
    const QString name = qEnvironmentVariable("LC_ALL").section('.', 0, 0);
    QCOMPARE(QLocale().name(), name);
    const bool comma = name.startsWith("de") || name.startsWith("tr");
    QCOMPARE(QString(std::localeconv()->decimal_point), comma ? "," : ".");
}

void tst_number::number_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<bool>("is_number");
    QTest::addColumn<double>("value");
    const auto number = [](const char* token, double value) {
        QTest::newRow(token) << QString::fromUtf8(token) << true << value;
    };
    const auto text = [](const char* token) {
        QTest::newRow(token) << QString::fromUtf8(token) << false << 0.0;
    };
    number("0", 0.0);
    number("-0", -0.0);
    number("00012", 12.0);
    number("1.25", 1.25);
    number("+1.25", 1.25);
    number("-1.25", -1.25);
    number("1.", 1.0);
    number(".5", 0.5);
    number("1e5", 1e5);
    number("1E5", 1e5);
    number("1.0E+00", 1.0);
    number("2.5e-3", 2.5e-3);
    number("1e0000000000000000001", 10.0);
    number("4.9e-324", 4.9e-324);
    number("1.7976931348623157e308", 1.7976931348623157e308);
    number("inf", infinity);
    number("-INF", -infinity);
    number("nan", std::nan(""));
    number("\t1", 1.0);
    number("1\t", 1.0);
    number("\u00a01", 1.0);
    text("1,5");
    text("1'000");
    text("1_0");
    text("0x10");
    text("1d5");
    text("1e");
    text("1e+");
    text("e5");
    text(".");
    text("-");
    text("--1");
    text("+-1");
    text("1.5.");
    text("1e5.5");
    text("1e400");
    text("1e-400");
    text("infinity");
    text("\uff11");
    text("\u22121");
    text("\u06611");
    QTest::newRow("byte-order mark") << QString(QChar(0xfeff)) + "1" << false << 0.0;
    text("Zeit");
}

void tst_number::number()
{
    QFETCH(QString, token);
    QFETCH(bool, is_number);
    QFETCH(double, value);
    const std::optional<double> expected = is_number ? std::optional(value) : std::nullopt;
    QVERIFY(is(token, expected));
    QVERIFY(same(by_qt(token), expected));
}

void tst_number::random_tokens_as_qt()
{
    QRandomGenerator random(20261);
    int numbers = 0;
    for (int i = 0; i < 300000; ++i) {
        const QString token = random_token(random);
        const std::optional<double> expected = by_qt(token);
        numbers += expected ? 1 : 0;
        QVERIFY2(is(token, expected), qPrintable(token));
    }
    QVERIFY(numbers > 1000);
}

void tst_number::random_doubles_in_all_notations()
{
    QRandomGenerator random(20262);
    for (int i = 0; i < 100000; ++i) {
        const double value = std::bit_cast<double>(random.generate64());
        if (!std::isfinite(value))
            continue;
        const char format = "efgEG"[random.bounded(5)];
        const QString token = QString::number(value, format, random.bounded(0, 20));
        QVERIFY2(is(token, by_qt(token)), qPrintable(token));
    }
}

void tst_number::random_decimals()
{
    QRandomGenerator random(20263);
    for (int i = 0; i < 300000; ++i) {
        const QString token = random_decimal(random);
        QVERIFY2(is(token, by_qt(token)), qPrintable(token));
    }
}

void tst_number::lines_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("all_are_numbers");
    QTest::addColumn<std::vector<double>>("values");
    const auto row = [](const QByteArray& line, bool all, const std::vector<double>& values) {
        QTest::addRow("\"%s\"", line.constData()) << line << all << values;
    };
    row("", true, {});
    row("        ", true, {});
    row("                 ", true, {});
    row("1", true, {1.0});
    row("1 2", true, {1.0, 2.0});
    row("        1        2       ", true, {1.0, 2.0});
    row("1 x 2", false, {1.0});
    row("x", false, {});
    row("1\t2", false, {});
    row("1\t 2", true, {1.0, 2.0});
    row("1.5.2 3", false, {});
    row("1e2 +3 .5 -0 4.", true, {100.0, 3.0, 0.5, -0.0, 4.0});
    row("123456789012345 1234567890123456 0.12345678901234567", true,
        {123456789012345.0, 1234567890123456.0, 0.12345678901234567});
}

void tst_number::lines()
{
    QFETCH(QByteArray, line);
    QFETCH(bool, all_are_numbers);
    QFETCH(std::vector<double>, values);
    std::vector<double> read{99.0};
    QCOMPARE(read_numbers(line, read), all_are_numbers);
    QVERIFY(std::ranges::equal(read, values, [](double a, double b) { return same(a, b); }));
}

void tst_number::value_of_text_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("value");
    const auto row = [](const QByteArray& text, double value) {
        QTest::addRow("\"%s\"", text.constData()) << text << value;
    };
    row("1.25", 1.25);
    row("  -1.25 ", -1.25);
    row("-0", -0.0);
    row("", 0.0);
    row("   ", 0.0);
    row("\t\v\f1.25\r\n", 1.25); // what Qt takes for blanks, too
    row("\0371", 0.0);
    row("1 2", 0.0);
    row("!1", 0.0);
    row("1!", 0.0);
    row("Zeit", 0.0);
    row("1,5", 0.0);
    row(" +1e400", infinity);
    row("1e-400", 0.0);
    row("nan", std::nan(""));
}

void tst_number::value_of_text()
{
    QFETCH(QByteArray, text);
    QFETCH(double, value);
    QVERIFY(same(value_of(QByteArrayView(text)), value));
    QVERIFY(same(value_of(QLatin1StringView(text)), value));
    QVERIFY(same(value_of(QStringView(QString(text))), value));
    QVERIFY(same(value_by_qt(text), value));
}

void tst_number::random_values_as_qt()
{
    QRandomGenerator random(20263);
    for (int i = 0; i < 300000; ++i) {
        const QString text = random_token(random) + QString(random.bounded(3), u' ');
        QVERIFY2(same(value_of(text.toUtf8()), value_by_qt(text)), qPrintable(text));
        QVERIFY2(same(value_of(QStringView(text)), value_by_qt(text)), qPrintable(text));
        const QByteArray ascii = QString(text).remove(u'\u00a0').toLatin1();
        QVERIFY2(same(value_of(QLatin1StringView(ascii)), value_by_qt(ascii)), ascii.constData());
    }
}

QTEST_GUILESS_MAIN(tst_number)
#include "tst_number.moc"
