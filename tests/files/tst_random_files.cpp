#include "plot/korimo_plot.h"
#include "tests/support/document_dump.h"
#include "tests/support/literal_reader.h"
#include "tests/support/log_capture.h"
#include "tests/support/plot_pair.h"
#include "tests/support/write_file.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

namespace {

using namespace Qt::StringLiterals;

template <class list>
const auto& any_of(const list& values, QRandomGenerator& random)
{
    return values[random.bounded(values.size())];
}

QByteArray number(QRandomGenerator& random)
{
    static const QByteArrayList odd = {"0",
                                       "-0",
                                       "+1",
                                       "1.",
                                       ".5",
                                       "1e5",
                                       "1E5",
                                       "1.0E+00",
                                       "1e-400",
                                       "1e400",
                                       "inf",
                                       "-INF",
                                       "nan",
                                       "1,5",
                                       "1e",
                                       "0x10",
                                       "12.5.",
                                       "--1",
                                       "1_0",
                                       "\t7",
                                       "7\t8",
                                       "\xC2\xA0"
                                       "3",
                                       "4\xC2\xA0",
                                       "\xEF\xBC\x91",
                                       "5\xFF",
                                       "\xEF\xBB\xBF"
                                       "6",
                                       "9\xC3",
                                       QByteArray("1\0", 2),
                                       QByteArray("\0", 1),
                                       "123456789012345678901234567890",
                                       "0.1000000000000000055511151231257827",
                                       "4.9e-324",
                                       "2.2250738585072011e-308",
                                       "1\r2"};
    if (random.bounded(12) == 0)
        return any_of(odd, random);
    const double value = random.bounded(2000.0) - 200.0;
    return QByteArray::number(value, "fge"[random.bounded(3)], random.bounded(0, 9));
}

QByteArray line_end(QRandomGenerator& random)
{
    static const QByteArrayList ends = {"\n", "\n", "\n", "\r\n", "\r\n", "\r\r\n", "\n\n"};
    return any_of(ends, random);
}

QByteArray number_row(QRandomGenerator& random)
{
    QByteArray row;
    // Rows of the length of a kind are the rule, over-long ones the exception that ends the file.
    static const QList<int> lengths = {0, 1, 2, 2, 2, 3, 3, 4, 4, 7, 7, 8, 9, 9, 10, 10, 11, 12};
    for (int n = any_of(lengths, random); n > 0; --n)
        row += QByteArray(random.bounded(1, 4), ' ') + number(random);
    if (random.bounded(4) == 0)
        row += "  ";
    return row;
}

QByteArray wel_line(QRandomGenerator& random)
{
    static const QByteArrayList texts = {"Ganglinien Pegel P",
                                         "  Ganglinien \xC3\x9C",
                                         "\xEF\xBB\xBF"
                                         "Ganglinien",
                                         "ganglinien klein",
                                         "Ganglinien\xFF",
                                         "Gang\rlinien Titel",
                                         "Zeit [h]  Q [m3/s]",
                                         "   ",
                                         "",
                                         "0.0 Ganglinien 1.0",
                                         "\t",
                                         "1.0\t2.0"};
    return random.bounded(6) == 0 ? any_of(texts, random) : number_row(random);
}

QByteArray bek_line(QRandomGenerator& random)
{
    static const QByteArrayList starts = {"   B1   ", "   b2   ", "   BBez ", "   B\xC3\xBC  ",
                                          "   X",     "        ", "B",        "   BB1B2"};
    QByteArray line = any_of(starts, random);
    while (line.size() < 70 && random.bounded(40) != 0)
        line += random.bounded(3) == 0 ? QByteArray::number(random.bounded(100)) : " ";
    return line;
}

QByteArray dkl_line(QRandomGenerator& random)
{
    static const QByteArrayList words = {
        "km", "1.2", "GOK",  "=",  "GW",       "m\xC3\xBCNHN", "Wo", "Wo>",
        "Qd", "Sp",  "GOK=", "\t", "m\xFCNHN", "km=3",         "12", "Auslass"};
    QByteArray line;
    for (int n = random.bounded(0, 9); n > 0; --n)
        line += any_of(words, random) + QByteArray(random.bounded(1, 3), ' ');
    return line;
}

QByteArray random_file(const QString& name, QRandomGenerator& random)
{
    QByteArray bytes;
    if (random.bounded(20) == 0)
        bytes += "\xEF\xBB\xBF";
    for (int n = random.bounded(0, 14); n > 0; --n) {
        bytes += name.endsWith("bek", Qt::CaseInsensitive)   ? bek_line(random)
                 : name.endsWith("dkl", Qt::CaseInsensitive) ? dkl_line(random)
                                                             : wel_line(random);
        bytes += line_end(random);
    }
    if (random.bounded(3) == 0)
        bytes.chop(1);
    if (random.bounded(25) == 0)
        bytes.truncate(random.bounded(bytes.size() + 1));
    return bytes;
}

} // namespace

class tst_random_files : public QObject
{
    Q_OBJECT

private slots:
    void as_the_literal_reader_data();
    void as_the_literal_reader();
};

void tst_random_files::as_the_literal_reader_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"x_B1.wel", "x_K1.wel", "x_N1.WEL", "x_V1.Wel", "x_T1.wel", "x_E1.wel",
                             "x_P1.wel", "x_p1.wel", "x.wel", "x_P.bek", "x.DKL", "x_K.txt"})
        QTest::newRow(name) << QString(name);
}

void tst_random_files::as_the_literal_reader()
{
    QFETCH(QString, name);
    constexpr int files = 500;
    QRandomGenerator random(qChecksum(name.toUtf8()));
    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    const plot_pair plots;
    for (int i = 0; i < files; ++i) {
        const QByteArray bytes = random_file(name, random);
        write_file(path, bytes);
        const literal_reading expected = read_literally(path);
        korimo_plot document(plots.lower.get(), plots.upper.get());
        const log_capture log;
        document.readFile(path);
        QVERIFY2(log.debug_lines() == expected.log, bytes.toPercentEncoding(" ").constData());
        QVERIFY2(dump(document) == dump(expected), bytes.toPercentEncoding(" ").constData());
    }
}

QTEST_MAIN(tst_random_files)
#include "tst_random_files.moc"
