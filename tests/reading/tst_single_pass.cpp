#include "plot/reading/bek_reader.h"
#include "plot/reading/dkl_reader.h"
#include "plot/reading/name_listing.h"
#include "plot/reading/text_lines.h"
#include "plot/reading/wel_reader.h"

#include <QBuffer>
#include <QLoggingCategory>
#include <QTest>

namespace {

// A file in memory that counts the bytes that are read from it.
class counting_buffer : public QBuffer
{
public:
    using QBuffer::QBuffer;

    qint64 count = 0;

protected:
    qint64 readData(char* data, qint64 size) override
    {
        const qint64 read = QBuffer::readData(data, size);
        count += qMax(read, qint64(0));
        return read;
    }
};

using reader = void (*)(text_lines&);

void read_wel_file(text_lines& lines)
{
    int plot_mode = -1;
    QString title;
    series_store series;
    read_wel(lines, u"x_P.wel", {plot_mode, title, series});
}

void read_basin(text_lines& lines)
{
    series_store series;
    read_bek(lines, u"B1   ", series);
}

void read_throttle(text_lines& lines)
{
    QString title;
    series_store series;
    read_dkl(lines, "1.5_1_Auslass", title, series);
}

} // namespace

// Whatever is read, however often it stands in the file: each byte is taken once.
class tst_single_pass : public QObject
{
    Q_OBJECT

private slots:
    void bytes_taken_data();
    void bytes_taken();
};

void tst_single_pass::bytes_taken_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<reader>("read");
    const QByteArray basin = "   B1" + QByteArray(32, ' ') + " 101.50  1.00        0.000\n";
    const QByteArray curve = " 1 Auslass km 1.5 GOK = 110 GW = 90\n 2\n 101.5 1\n 102.0 9.5\n";
    QTest::newRow("hydrographs") << QByteArray("0.25 1.50 2.50\n") << reader(&read_wel_file);
    QTest::newRow("list of basins")
        << basin << reader([](text_lines& lines) { list_bek_names(lines); });
    QTest::newRow("list of curves")
        << curve << reader([](text_lines& lines) { list_dkl_names(lines); });
    QTest::newRow("basin") << basin << reader(&read_basin);
    QTest::newRow("curve") << curve << reader(&read_throttle);
}

void tst_single_pass::bytes_taken()
{
    QFETCH(QByteArray, line);
    QFETCH(reader, read);
    QByteArray bytes = line.repeated(20000);
    counting_buffer file(&bytes);
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    text_lines lines(file);
    QLoggingCategory::setFilterRules("*.debug=false");
    read(lines);
    QCOMPARE(file.count, bytes.size());
}

QTEST_GUILESS_MAIN(tst_single_pass)
#include "tst_single_pass.moc"
