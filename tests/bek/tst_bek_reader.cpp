#include "plot/reading/bek_reader.h"
#include "plot/reading/text_lines.h"
#include "tests/support/literal_curve_reader.h"
#include "tests/support/modal_boxes.h"
#include "tests/support/plot_pair.h"

#include <QBuffer>
#include <QTest>

#include <algorithm>

namespace {

using namespace Qt::StringLiterals;

// A line of a BEK file: the identifier, then the four values in their columns.
QByteArray line(const char* identifier, const char* level, const char* outlet, const char* spillway,
                const char* volume)
{
    return QByteArray("   ") + QByteArray(identifier).leftJustified(34) +
           QByteArray(level).rightJustified(7) + QByteArray(outlet).rightJustified(6) +
           QByteArray(spillway).rightJustified(6) + QByteArray(volume).rightJustified(7) + "\n";
}

series_store read(QByteArray bytes, const QString& item)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    text_lines lines(buffer);
    series_store series;
    read_bek(lines, item, series);
    return series;
}

using values = QList<double>;

} // namespace

class tst_bek_reader : public QObject
{
    Q_OBJECT

private slots:
    void blocks();
    void values_of_a_row();
    void spillway_data();
    void spillway();
    void short_line();
    void silent_when_it_cannot_be_opened();
    void case_of_the_identifier_matters();
    void columns_count_characters();
    void identifiers_beyond_latin_letters();
    void slot_reads_a_file();
};

void tst_bek_reader::blocks()
{
    const series_store series =
        read(line("B1", "1", "10", "", "0") + line("", "2", "20", "", "0") +
                 line("B1", "3", "30", "", "0") + line("", "4", "40", "", "0") +
                 line("B2", "5", "50", "", "0") + line("", "6", "60", "", "0") +
                 line("B1", "7", "70", "", "0") + line("", "8", "80", "", "0") + "\n" +
                 line("", "9", "90", "", "0"),
             "B1   ");
    QCOMPARE(series[1], (values{1, 2, 4, 7, 8}));
    QCOMPARE(series[11], (values{10, 20, 40, 70, 80}));
    QCOMPARE(series[13], values());
    QCOMPARE(series[23], (values{0, 0, 0, 0, 0}));
}

void tst_bek_reader::values_of_a_row()
{
    const series_store series =
        read(line("B1", "1234.56", "123.45", "678.90", "9999.99") + line("", "x", "", "1", "-2"),
             "B1   ");
    QCOMPARE(series[0], values());
    QCOMPARE(series[1], (values{1234.56, 0}));
    QCOMPARE(series[11], (values{123.45, 0}));
    QCOMPARE(series[13], (values{678.9, 1}));
    QCOMPARE(series[23], (values{9999.99, -2}));
}

void tst_bek_reader::spillway_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<values>("expected");
    QTest::newRow("blank") << QByteArray("") << values{};
    QTest::newRow("0.00") << QByteArray("0.00") << values{0};
    QTest::newRow("0.0") << QByteArray("0.0") << values{0};
    QTest::newRow("0.000") << QByteArray("0.000") << values{0};
    QTest::newRow("bare 0") << QByteArray("0") << values{};
    QTest::newRow("0.0000") << QByteArray("0.0000") << values{};
    QTest::newRow("-0.0") << QByteArray("-0.0") << values{};
    QTest::newRow("negative") << QByteArray("-1.5") << values{};
    QTest::newRow("text") << QByteArray("abc") << values{};
    QTest::newRow("positive") << QByteArray("0.01") << values{0.01};
}

void tst_bek_reader::spillway()
{
    QFETCH(QByteArray, text);
    QFETCH(values, expected);
    QCOMPARE(read(line("B1", "1", "1", text.constData(), "1"), "B1   ")[13], expected);
}

void tst_bek_reader::short_line()
{
    const series_store series = read("   B1   \n        x\n", "B1   ");
    QCOMPARE(series[1], (values{0, 0}));
    QCOMPARE(series[11], (values{0, 0}));
    QCOMPARE(series[13], values());
    QCOMPARE(series[23], (values{0, 0}));
}

void tst_bek_reader::silent_when_it_cannot_be_opened()
{
    const plot_pair plots;
    const modal_boxes boxes;
    plots.document->read_BEK("missing.bek", "B1   ");
    QVERIFY(boxes.shown().isEmpty());
    QCOMPARE(plots.document->plot_mode, 9);
    QCOMPARE(plots.document->series, series_store());
}

void tst_bek_reader::case_of_the_identifier_matters()
{
    QCOMPARE(read(line("B1", "1", "1", "1", "1"), "b1   "), series_store());
}

void tst_bek_reader::columns_count_characters()
{
    const QByteArray bytes = line("B1   HRB M*hlbach", "1", "10", "", "0") +
                             line("     *", "2", "20", "", "0") +
                             line("B*   HRB Oberdorf", "3", "30", "", "0");
    const QByteArray text = QByteArray(bytes).replace('*', "\xC3\xBC");
    QCOMPARE(read(text, u"B1   "_s)[1], (values{1, 2}));
    QCOMPARE(read(text, u"B1   "_s)[11], (values{10, 20}));
    QCOMPARE(read(text, u"B\u00fc   "_s)[11], (values{30}));
}

// A question mark stands for what another encoding cannot write; it is a character of its own here.
void tst_bek_reader::identifiers_beyond_latin_letters()
{
    const QByteArray bytes = line("B?", "1", "10", "", "0") + line("B1", "2", "20", "", "0");
    QCOMPARE(read(bytes, u"B\u0416   "_s)[1], values());
    QCOMPARE(read(bytes, u"B?   "_s)[1], (values{1}));
}

// The basin stands in two blocks of the file, up to its crest and above it.
void tst_bek_reader::slot_reads_a_file()
{
    const plot_pair plots;
    plots.document->readFile(EXAMPLES_DIR "/Erlenbach.bek");
    const QStringList names = plots.document->get_kennlinien_list();
    QVERIFY(!names.isEmpty() && names.count(names[0]) == 2);
    plots.document->read_BEK(EXAMPLES_DIR "/Erlenbach.bek", names[0]);
    QCOMPARE(plots.document->series,
             read_bek_literally(EXAMPLES_DIR "/Erlenbach.bek", names[0]).series);
    QCOMPARE(plots.document->plot_mode, 9);
    QVERIFY(plots.document->series[1].size() > 4);
    QVERIFY(std::ranges::is_sorted(plots.document->series[1]));
    QVERIFY(std::ranges::is_sorted(plots.document->series[23]));
    QCOMPARE(plots.document->series[11].size(), plots.document->series[1].size());
}

QTEST_MAIN(tst_bek_reader)
#include "tst_bek_reader.moc"
