#include "plot/reading/bek_reader.h"
#include "plot/reading/dkl_reader.h"
#include "plot/reading/name_listing.h"
#include "plot/reading/text_lines.h"
#include "plot/reading/wel_reader.h"
#include "tests/support/document_dump.h"
#include "tests/support/literal_curve_reader.h"
#include "tests/support/named_curves.h"
#include "tests/support/write_file.h"

#include <QIODevice>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstring>

namespace {

// Gives its bytes in pieces of at most `piece`; behind them comes an error and, if asked again,
// more text, as of a disk that recovers.
class failing_device : public QIODevice
{
public:
    failing_device(const QByteArray& bytes, qint64 piece)
        : bytes(bytes)
        , piece(piece)
    {
        open(ReadOnly | Unbuffered);
    }

    bool isSequential() const override { return true; }
    int errors() const { return errors_given; }

protected:
    qint64 readData(char* data, qint64 most) override
    {
        if (at == bytes.size() && ++errors_given == 1)
            return -1;
        const QByteArray text = at < bytes.size() ? bytes.sliced(at) : "\n9 9 9\n";
        const qint64 count = std::min({most, piece, qint64(text.size())});
        std::memcpy(data, text.constData(), static_cast<std::size_t>(count));
        at += at < bytes.size() ? count : 0;
        return count;
    }

    qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

private:
    QByteArray bytes;
    qint64 piece;
    qint64 at = 0;
    int errors_given = 0;
};

// What a reader makes of the lines.
using reader = literal_reading (*)(text_lines& lines);

literal_reading read_hydrographs(text_lines& lines)
{
    literal_reading result;
    read_wel(lines, u"x_K.wel", {result.plot_mode, result.wel_title, result.series});
    return result;
}

literal_reading list_basins(text_lines& lines)
{
    literal_reading result;
    result.kennlinien_list = list_bek_names(lines);
    return result;
}

literal_reading list_curves(text_lines& lines)
{
    literal_reading result;
    result.kennlinien_list = list_dkl_names(lines);
    return result;
}

literal_reading read_basin(text_lines& lines)
{
    literal_reading result;
    result.plot_mode = 9;
    read_bek(lines, u"B2   ", result.series);
    return result;
}

literal_reading read_curve(text_lines& lines)
{
    literal_reading result;
    result.plot_mode = 8;
    read_dkl(lines, "2.5_2_Auslass2", result.wel_title, result.series);
    return result;
}

literal_reading basin_literally(const QString& path)
{
    return read_bek_literally(path, "B2   ");
}

literal_reading curve_literally(const QString& path)
{
    return read_dkl_literally(path, "2.5_2_Auslass2");
}

} // namespace

using literal_reader = literal_reading (*)(const QString& path);

/// A disk that fails in the middle of a file: what was read before counts, as if the file ended
/// there.
class tst_read_errors : public QObject
{
    Q_OBJECT

private slots:
    void error_at_every_byte_data();
    void error_at_every_byte();
};

void tst_read_errors::error_at_every_byte_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<reader>("read");
    QTest::addColumn<literal_reader>("read_expected");
    const QByteArray basins = basin_table();
    const QByteArray curves = throttle_curves();
    QTest::newRow("hydrographs") << "x_K.wel" << node_file(9) << &read_hydrographs
                                 << literal_reader(read_literally);
    QTest::newRow("names of basins")
        << "x.bek" << basins << &list_basins << literal_reader(read_literally);
    QTest::newRow("names of curves")
        << "x.dkl" << curves << &list_curves << literal_reader(read_literally);
    QTest::newRow("basin") << "x.bek" << basins << &read_basin << &basin_literally;
    QTest::newRow("curve") << "x.dkl" << curves << &read_curve << &curve_literally;
}

void tst_read_errors::error_at_every_byte()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(reader, read);
    QFETCH(literal_reader, read_expected);
    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    for (qsizetype size = 0; size <= bytes.size(); ++size) {
        write_file(path, bytes.first(size));
        const QString expected = dump(read_expected(path));
        for (const qint64 piece : {1, 7, 100'000}) {
            failing_device device(bytes.first(size), piece);
            text_lines lines(device);
            QCOMPARE(dump(read(lines)), expected);
            QCOMPARE(device.errors(), 1); // nobody asks again
        }
    }
}

QTEST_MAIN(tst_read_errors)
#include "tst_read_errors.moc"
