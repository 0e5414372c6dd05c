#include "plot/reading/row_log.h"
#include "plot/reading/text_lines.h"
#include "plot/reading/tokens.h"
#include "tests/support/log_capture.h"

#include <QDebug>
#include <QTest>

namespace {

// What a stream writes of the tokens of a line and whether they are numbers.
QString streamed(const QByteArray& line, bool ok)
{
    QString text;
    QDebug(&text) << tokens_of(decoded(line)) << ok;
    return text.trimmed();
}

} // namespace

class tst_row_log : public QObject
{
    Q_OBJECT

private slots:
    void every_byte();
    void lines_data();
    void lines();
};

// Bytes that the log escapes, and those of no UTF-8, among ones that it does not.
void tst_row_log::every_byte()
{
    for (int byte = 0; byte < 256; ++byte) {
        const QByteArray line = "1 a" + QByteArray(1, static_cast<char>(byte)) + "b 2";
        const log_capture log;
        log_row(line, false);
        QCOMPARE(log.debug_lines(), QStringList{streamed(line, false)});
    }
}

void tst_row_log::lines_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("blanks") << QByteArray("   ");
    QTest::newRow("one token") << QByteArray("1");
    QTest::newRow("tokens of one character") << QByteArray("1 2 3 4 5 6 7 8 9").repeated(100);
    QTest::newRow("blanks around") << QByteArray("  1    2.5  ");
    QTest::newRow("long tokens") << QByteArray(5000, '7');
}

void tst_row_log::lines()
{
    QFETCH(QByteArray, line);
    for (const bool ok : {true, false}) {
        const log_capture log;
        log_row(line, ok);
        QCOMPARE(log.debug_lines(), QStringList{streamed(line, ok)});
    }
}

QTEST_GUILESS_MAIN(tst_row_log)
#include "tst_row_log.moc"
