#include "plot/reading/line_text.h"
#include "plot/reading/plain_decimal.h"
#include "plot/reading/tokens.h"

#include <QTest>

class tst_line_text : public QObject
{
    Q_OBJECT

private slots:
    void ascii_data();
    void ascii();
    void skipped_blanks();
    void searched_data();
    void searched();
    void plain_decimals_data();
    void plain_decimals();
};

void tst_line_text::ascii_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("expected");
    QTest::newRow("empty") << QByteArray() << true;
    QTest::newRow("NUL") << QByteArray(1, '\0') << true;
    QTest::newRow("the last of ASCII") << QByteArray("a\x7f") << true;
    QTest::newRow("the first behind it") << QByteArray("\x80") << false;
    QTest::newRow("in a long text") << QByteArray(100, 'a') + "\xC3\xA4" << false;
}

void tst_line_text::ascii()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, expected);
    QCOMPARE(is_ascii(bytes), expected);
    const auto is_undecoded = [](auto text) {
        return std::is_same_v<decltype(text), QLatin1StringView>;
    };
    QCOMPARE(with_text_of(bytes, is_undecoded), expected);
}

// Whatever stands behind the blanks, and how many of them: bytes near the blank are none.
void tst_line_text::skipped_blanks()
{
    for (const char next : {'!', '\x1f', '0', 'a', '\t', '\0', '\xa0', '`'}) {
        for (int before = 0; before <= 20; ++before) {
            for (int behind = 0; behind <= 20; ++behind) {
                const QByteArray rest = QByteArray(1, next) + QByteArray(behind, ' ');
                const QByteArray line = QByteArray(before, ' ') + rest;
                QByteArrayView text = line;
                skip_blanks(text);
                QCOMPARE(text, QByteArrayView(rest));
                text = line;
                QCOMPARE(take_token(text), QByteArrayView(rest).first(1));
                QCOMPARE(text.size(), behind);
            }
        }
    }
    QByteArrayView blanks = "                 ";
    skip_blanks(blanks);
    QVERIFY(blanks.isEmpty());
}

void tst_line_text::searched_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("expected");
    QTest::newRow("nothing") << "" << QByteArray("a") << true;
    QTest::newRow("inside") << "bc" << QByteArray("abcd") << true;
    QTest::newRow("not there") << "bd" << QByteArray("abcd") << false;
    QTest::newRow("in another case") << "BC" << QByteArray("abcd") << false;
    QTest::newRow("ASCII in other text") << "bc" << QByteArray("\xC3\xA4 abcd") << true;
    QTest::newRow("umlaut in ASCII") << QString(u'\u00e4') << QByteArray("a") << false;
    QTest::newRow("umlaut") << QString(u'\u00e4') << QByteArray("x\xC3\xA4") << true;
    QTest::newRow("no Latin 1") << QString(u'\u0416') << QByteArray("?") << false;
}

void tst_line_text::searched()
{
    QFETCH(QString, wanted);
    QFETCH(QByteArray, line);
    QFETCH(bool, expected);
    const searched_text text(wanted);
    QCOMPARE(with_text_of(line, [&](auto each) { return text.is_in(each); }), expected);
}

void tst_line_text::plain_decimals_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<qsizetype>("length");
    QTest::addColumn<double>("value");
    const auto row = [](const char* text, qsizetype length, double value) {
        QTest::newRow(text) << QByteArray(text) << length << value;
    };
    row("5", 1, 5.0);
    row("0", 1, 0.0);
    row("-7", 2, -7.0);
    row("1029384756", 10, 1029384756.0);
    row("10.25", 5, 10.25);
    row("-0.9 1", 4, -0.9);
    row("5.", 2, 5.0);
    row("5.x", 2, 5.0);
    row("1e5", 1, 1.0);
    row("1/5", 1, 1.0);
    row("1:5", 1, 1.0);
    row("1.2.3", 3, 1.2);
    row("1-2", 1, 1.0);
    row("123456789012345", 15, 123456789012345.0);
    row("1.23456789012345", 16, 1.23456789012345);
    row("0.00000000000001 ", 16, 1e-14);
    row("1234567890123456", 0, 0.0);
    row("1.234567890123456", 0, 0.0);
    row("1234567890.123456", 0, 0.0);
    row("", 0, 0.0);
    row("-", 0, 0.0);
    row(".5", 0, 0.0);
    row("+5", 0, 0.0);
    row(" 5", 0, 0.0);
    row("x", 0, 0.0);
    row("--5", 0, 0.0);
}

// Among digits, so that one who reads too far, to whichever side, finds more of them.
void tst_line_text::plain_decimals()
{
    QFETCH(QByteArray, text);
    QFETCH(qsizetype, length);
    QFETCH(double, value);
    const QByteArray around = "44" + text + "44";
    double found = 0.0;
    QCOMPARE(read_plain_decimal(QByteArrayView(around).sliced(2, text.size()), found), length);
    QCOMPARE(found, value);
}

QTEST_GUILESS_MAIN(tst_line_text)
#include "tst_line_text.moc"
