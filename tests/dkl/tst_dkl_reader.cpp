#include "plot/reading/dkl_reader.h"
#include "plot/reading/text_lines.h"
#include "tests/support/literal_curve_reader.h"
#include "tests/support/log_capture.h"
#include "tests/support/modal_boxes.h"
#include "tests/support/plot_pair.h"

#include <QBuffer>
#include <QTest>

#include <algorithm>

namespace {

using values = QList<double>;

struct reading
{
    QString title;
    series_store series;
};

reading read(QByteArray bytes, const QString& item = "Sp_12_Auslass")
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    text_lines lines(buffer);
    reading result;
    read_dkl(lines, item, result.title, result.series);
    return result;
}

QByteArray header_line()
{
    return "12 Auslass km Sp\n";
}

} // namespace

class tst_dkl_reader : public QObject
{
    Q_OBJECT

private slots:
    void curve_data();
    void curve();
    void nan_is_not_zero();
    void header_data();
    void header();
    void rejected_line_is_logged();
    void header_needs_three_parts();
    void header_beyond_ascii();
    void cannot_be_opened();
    void slot_reads_a_file();
};

void tst_dkl_reader::curve_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<values>("levels");
    QTest::addColumn<values>("discharges");
    QTest::newRow("as many as announced") << header_line() + "Wo Qd\n2\n101.5 2\n102 3\n"
                                          << values{101.5, 102} << values{2, 3};
    QTest::newRow("more than announced") << header_line() + "3\n1 1\n2 2\n3 3\n4 4\n5 5\n"
                                         << values{1, 2, 3} << values{1, 2, 3};
    QTest::newRow("fewer than announced") << header_line() + "3\n1 1\n" << values{1} << values{1};
    QTest::newRow("true zero") << header_line() + "1\n101.5 0.000000E+00\n"
                               << values{101.5} << values{0};
    QTest::newRow("exponent 0 with level 0") << header_line() + "1\n0 1.5E+00\n"
                                             << values{0} << values{0};
    QTest::newRow("rejected but counted") << header_line() + "2\n0 2.5\n1 1\n2 2\n"
                                          << values{1} << values{1};
    QTest::newRow("one field") << header_line() + "2\n7.5\n1 1\n" << values{1} << values{1};
    QTest::newRow("count before the header") << "5\n" + header_line() + "1 1\n"
                                             << values{} << values{};
    QTest::newRow("data with Wo>") << header_line() + "2\n1 1 Wo>\n2 2\n"
                                   << values{1, 2} << values{1, 2};
    QTest::newRow("blanks around the count") << header_line() + "  1  \n1 1\n"
                                             << values{1} << values{1};
    QTest::newRow("0 is no count") << header_line() + "2\n0\n1 1\n" << values{1} << values{1};
    QTest::newRow("second count") << header_line() + "1\n1 1\n3\n2 2\n3 3\n4 4\n"
                                  << values{1, 2, 3} << values{1, 2, 3};
    QTest::newRow("second header adds what is missing")
        << header_line() + "1\n1 1\nend\n" + header_line() + "2\n2 2\n3 3\n"
        << values{1, 2} << values{1, 2};
    QTest::newRow("another curve")
        << QByteArray("13 Zulauf km Sp\n1\n1 1\n") << values{} << values{};
}

void tst_dkl_reader::curve()
{
    QFETCH(QByteArray, text);
    QFETCH(values, levels);
    QFETCH(values, discharges);
    const log_capture log;
    const reading result = read(text);
    QCOMPARE(result.series[1], levels);
    QCOMPARE(result.series[11], discharges);
    QCOMPARE(result.title, text.contains(header_line()) ? "Sp_12_Auslass" : QString());
}

void tst_dkl_reader::nan_is_not_zero()
{
    const reading result = read(header_line() + "1\nnan 1\n");
    QCOMPARE(result.series[1].size(), 1);
    QVERIFY(qIsNaN(result.series[1][0]));
    QCOMPARE(result.series[11], values{1});
}

void tst_dkl_reader::header_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("is_header");
    QTest::newRow("all parts") << QByteArray("12 Auslass km Sp") << true;
    QTest::newRow("without the second") << QByteArray("Auslass km Sp") << true;
    QTest::newRow("inside words, without km") << QByteArray("xAuslassx xSpx") << true;
    QTest::newRow("without the third") << QByteArray("12 km Sp") << false;
    QTest::newRow("without the first") << QByteArray("12 Auslass km") << false;
    QTest::newRow("third in another case") << QByteArray("12 auslass km Sp") << false;
    QTest::newRow("first in another case") << QByteArray("12 Auslass km SP") << false;
    QTest::newRow("with Wo") << QByteArray("12 Auslass km Sp Wo") << false;
    QTest::newRow("with Wo>") << QByteArray("12 Auslass km Sp Wo>") << false;
}

void tst_dkl_reader::header()
{
    QFETCH(QByteArray, line);
    QFETCH(bool, is_header);
    const reading result = read(line + "\n1\n1 2\n");
    QCOMPARE(result.title, is_header ? "Sp_12_Auslass" : QString());
    QCOMPARE(result.series[1].size(), is_header ? 1 : 0);
}

void tst_dkl_reader::rejected_line_is_logged()
{
    const log_capture log;
    read(header_line() + "1\n0 2.5\n");
    QCOMPARE(log_capture::warning_lines(),
             QStringList{"dkl data line could not be converted:  \"0 2.5\""});
}

void tst_dkl_reader::header_needs_three_parts()
{
    QCOMPARE(read(header_line() + "1\n1 1\n", "Sp_12").title, QString());
    QCOMPARE(read(header_line() + "1\n1 1\n", "Sp__12_Auslass_2").title, "Sp__12_Auslass_2");
}

// A question mark stands for what another encoding cannot write; it is a character of its own here.
void tst_dkl_reader::header_beyond_ascii()
{
    const QByteArray umlaut = "3 \xC3\x9C"
                              "berlauf km Sp = 1 m\xC3\xBCNHN\n1\n1 2\n";
    QCOMPARE(read(umlaut, QStringLiteral("Sp_3_\u00dcberlauf")).series[1], values{1});
    QCOMPARE(read(umlaut, "Sp_3_berlauf").series[1], values{1});
    QCOMPARE(read("3 ? km Sp\n1\n1 2\n", QStringLiteral("Sp_3_\u0416")).series[1], values());
}

void tst_dkl_reader::cannot_be_opened()
{
    const plot_pair plots;
    const modal_boxes boxes;
    plots.document->read_DKL("missing.dkl", "Sp_12_Auslass");
    QCOMPARE(boxes.shown().size(), 1);
    QVERIFY(is_read_error(boxes.shown()[0]));
    QCOMPARE(plots.document->plot_mode, 8);
    QCOMPARE(plots.document->series, series_store());
}

void tst_dkl_reader::slot_reads_a_file()
{
    const plot_pair plots;
    plots.document->readFile(EXAMPLES_DIR "/Erlenbach.dkl");
    const QString name = plots.document->get_kennlinien_list().value(1);
    plots.document->read_DKL(EXAMPLES_DIR "/Erlenbach.dkl", name);
    QVERIFY(!name.isEmpty());
    QCOMPARE(plots.document->series,
             read_dkl_literally(EXAMPLES_DIR "/Erlenbach.dkl", name).series);
    QCOMPARE(plots.document->plot_mode, 8);
    QCOMPARE(plots.document->get_wel_title(), name);
    QVERIFY(plots.document->series[1].size() > 2);
    QCOMPARE(plots.document->series[1].size(), plots.document->series[11].size());
    QVERIFY(std::ranges::is_sorted(plots.document->series[1]));
}

QTEST_MAIN(tst_dkl_reader)
#include "tst_dkl_reader.moc"
