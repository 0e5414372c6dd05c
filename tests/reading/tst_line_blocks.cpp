#include "plot/reading/text_lines.h"

#include <QBuffer>
#include <QTest>

namespace {

constexpr qsizetype block_size = 65'536; // in which files are read

QByteArrayList lines_of(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    text_lines lines(buffer);
    QByteArrayList result;
    QByteArrayView line;
    while (lines.next(line))
        result.append(line.toByteArray());
    return result;
}

} // namespace

class tst_line_blocks : public QObject
{
    Q_OBJECT

private slots:
    void many_short_lines();
    void line_end_at_a_border_data();
    void line_end_at_a_border();
};

// Lines of all lengths, so that blocks end at any place of a line.
void tst_line_blocks::many_short_lines()
{
    QByteArrayList expected;
    for (int i = 0; i < 20'000; ++i)
        expected.append(QByteArray::number(i) + QByteArray(i % 41, 'x'));
    QCOMPARE(lines_of(expected.join("\n") + "\n"), expected);
    QCOMPARE(lines_of(expected.join("\r\n")), expected);
}

void tst_line_blocks::line_end_at_a_border_data()
{
    QTest::addColumn<QByteArray>("end");
    QTest::newRow("LF") << QByteArray("\n");
    QTest::newRow("CR LF") << QByteArray("\r\n");
    QTest::newRow("umlaut") << QByteArray("\xC3\xA4\n");
}

void tst_line_blocks::line_end_at_a_border()
{
    QFETCH(QByteArray, end);
    const QByteArray kept = end.chopped(1).replace("\r", "");
    for (qsizetype length = block_size - 5; length < block_size + 5; ++length) {
        const QByteArray first(length, 'a');
        QCOMPARE(lines_of(first + end), QByteArrayList{first + kept});
        QCOMPARE(lines_of(first + end + "b" + end + "c"),
                 (QByteArrayList{first + kept, "b" + kept, "c"}));
        QCOMPARE(lines_of(end + first), (QByteArrayList{kept, first}));
    }
}

QTEST_GUILESS_MAIN(tst_line_blocks)
#include "tst_line_blocks.moc"
