#include "plot/korimo_plot.h"
#include "plot/reading/bek_reader.h"
#include "plot/reading/dkl_reader.h"
#include "plot/reading/result_file.h"
#include "plot/reading/text_lines.h"
#include "tests/support/document_dump.h"
#include "tests/support/literal_reader.h"
#include "tests/support/log_capture.h"
#include "tests/support/modal_boxes.h"
#include "tests/support/named_curves.h"
#include "tests/support/plot_pair.h"
#include "tests/support/write_file.h"

#include <QListWidget>
#include <QLoggingCategory>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTest>

#include <atomic>
#include <functional>
#include <thread>

namespace {

// Far more than is read at once.
constexpr int rows = 40'000;

// The numbers of a row tell which row it is, and whether it was there from the start.
QByteArray rows_of(const char* when, int first, int count)
{
    QByteArray bytes;
    for (int row = first; row < first + count; ++row)
        bytes += QByteArray::number(row).rightJustified(8) + " " + when + " 5\n";
    return bytes;
}

void append(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::Append) || file.write(bytes) != bytes.size())
        qFatal("cannot write a temporary file");
}

// Writes over the start of a file and leaves its length as it is.
void overwrite(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly) ||
        file.write(bytes) != bytes.size())
        qFatal("cannot write a temporary file");
}

// Puts another file at the same path, as programs do that save safely.
void replace(const QString& path, const QByteArray& bytes)
{
    write_file(path + ".new", bytes);
    if (!QFile::remove(path) || !QFile::rename(path + ".new", path))
        qFatal("cannot replace a temporary file");
}

std::function<void()>& at_line()
{
    static std::function<void()> what;
    return what;
}

// The reader tells the log every row: so something can be done while it reads.
class while_reading
{
public:
    while_reading(int line, const std::function<void()>& what)
    {
        at_line() = [line, what, seen = 0]() mutable {
            if (++seen == line)
                what();
        };
        previous = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString&) { at_line()(); });
    }
    ~while_reading() { qInstallMessageHandler(previous); }

    while_reading(const while_reading&) = delete;
    while_reading& operator=(const while_reading&) = delete;

private:
    QtMessageHandler previous;
};

using change = std::function<void(const QString& path)>;

// A file with one curve of `rows` points. The level tells which point it is, the discharge whether
// it was there from the start.
struct curve_format
{
    const char* head;
    QByteArray (*point)(int row, const char* when);
    void (*read)(text_lines& lines, series_store& series);

    QByteArray points(const char* when, int first, int count) const
    {
        QByteArray bytes;
        for (int row = first; row < first + count; ++row)
            bytes += point(row, when);
        return bytes;
    }
    QByteArray whole(const char* when) const { return QByteArray(head) + points(when, 0, rows); }
    qsizetype points_in(qsizetype bytes) const
    {
        return (bytes - QByteArrayView(head).size()) / point(1, "1").size();
    }
};

QByteArray level_of(int row)
{
    return (QByteArray::number(row) + ".5").rightJustified(7);
}

QByteArray point_of_basin(int row, const char* when)
{
    const QByteArray start(row == 0 ? "   B2" : "");
    return start.leftJustified(37) + level_of(row) + "     " + when + "\n";
}

QByteArray point_of_throttle(int row, const char* when)
{
    return level_of(row) + " " + when + "\n";
}

constexpr curve_format basin{"", point_of_basin, [](text_lines& lines, series_store& series) {
                                 read_bek(lines, u"B2   ", series);
                             }};
constexpr curve_format throttle{" 2 Auslass2 km 2.5\n Wo Qd\n 99999\n", point_of_throttle,
                                [](text_lines& lines, series_store& series) {
                                    QString title;
                                    read_dkl(lines, "2.5_2_Auslass2", title, series);
                                }};

// A file to which something happens as it is read for the second time, far from its end.
class changing_file : public QFile
{
public:
    changing_file(const QString& path, change what)
        : QFile(path)
        , what(std::move(what))
    {
    }

protected:
    qint64 readData(char* data, qint64 size) override
    {
        if (++readings == 2)
            what(fileName());
        return QFile::readData(data, size);
    }

private:
    change what;
    int readings = 0;
};

} // namespace

/// A result file that the model, or anybody else, writes while the viewer reads it. What is shown
/// then may be old or new, or end early; it is never anything else.
class tst_changing_files : public QObject
{
    Q_OBJECT

private slots:
    void hydrographs_data();
    void hydrographs();
    void characteristic_curves_data();
    void characteristic_curves();
    void written_all_the_time_data();
    void written_all_the_time();
    void gone_between_commands_data();
    void gone_between_commands();
};

void tst_changing_files::hydrographs_data()
{
    QTest::addColumn<change>("what");
    QTest::addColumn<int>("least"); // rows that are read
    QTest::addColumn<int>("most");
    const auto row = [](const char* name, const change& what, int least, int most) {
        QTest::newRow(name) << what << least << most;
    };
    row("emptied", [](const QString& path) { QFile::resize(path, 0); }, 100, rows - 1);
    row(
        "cut", [](const QString& path) { QFile::resize(path, 300'000); }, 300'000 / 13,
        300'000 / 13 + 1);
    row(
        "longer", [](const QString& path) { append(path, rows_of("2", rows, 500)); }, rows + 500,
        rows + 500);
    row("removed", [](const QString& path) { QFile::remove(path); }, rows, rows);
    row("replaced", [](const QString& path) { replace(path, "9 9 9\n"); }, rows, rows);
    row(
        "overwritten", [](const QString& path) { overwrite(path, rows_of("2", 0, rows)); }, rows,
        rows);
    row("forbidden", [](const QString& path) { QFile::setPermissions(path, {}); }, rows, rows);
}

void tst_changing_files::hydrographs()
{
    QFETCH(change, what);
    QFETCH(int, least);
    QFETCH(int, most);
    const QTemporaryDir folder;
    const QString path = folder.filePath("x_P.wel");
    write_file(path, rows_of("1", 0, rows));
    const plot_pair plots;
    const modal_boxes boxes;
    {
        const while_reading changed(100, [&] { what(path); });
        plots.document->readFile(path);
    }
    plots.plot();
    QVERIFY(boxes.shown().isEmpty());
    const QList<double>& read = plots.document->series[0];
    QVERIFY2(read.size() >= least && read.size() <= most, QByteArray::number(read.size()));
    for (qsizetype i = 0; i + 1 < read.size(); ++i) // the last row may be cut off
        QCOMPARE(read[i], i);
    qsizetype old = plots.document->series[12].indexOf(2);
    QVERIFY(old == -1 || old > 100);
}

void tst_changing_files::characteristic_curves_data()
{
    QTest::addColumn<curve_format>("format");
    QTest::addColumn<change>("what");
    QTest::addColumn<qsizetype>("least"); // points that are read
    QTest::addColumn<qsizetype>("most");
    for (const auto& [name, format] :
         {std::pair("basin", basin), std::pair("throttle", throttle)}) {
        const auto row = [&](const char* how, const change& what, qsizetype least, qsizetype most) {
            QTest::addRow("%s, %s", name, how) << format << what << least << most;
        };
        const auto to_end = [&](const char* how, const change& what) {
            row(how, what, rows, rows);
        };
        row("emptied", [](const QString& path) { QFile::resize(path, 0); }, 100, rows - 1);
        const qsizetype left = format.points_in(300'000);
        row("cut", [](const QString& path) { QFile::resize(path, 300'000); }, left, left + 1);
        row(
            "longer", [=](const QString& path) { append(path, format.points("2", rows, 500)); },
            rows + 500, rows + 500);
        to_end("removed", [](const QString& path) { QFile::remove(path); });
        to_end("replaced", [=](const QString& path) { replace(path, format.head); });
        to_end("overwritten", [=](const QString& path) { overwrite(path, format.whole("2")); });
        to_end("forbidden", [](const QString& path) { QFile::setPermissions(path, {}); });
    }
}

void tst_changing_files::characteristic_curves()
{
    QFETCH(curve_format, format);
    QFETCH(change, what);
    QFETCH(qsizetype, least);
    QFETCH(qsizetype, most);
    const QTemporaryDir folder;
    const QString path = folder.filePath("x");
    write_file(path, format.whole("1"));
    bool changed = false;
    changing_file file(path, [&](const QString& of) {
        what(of);
        changed = true;
    });
    QVERIFY(open_result_file(file));
    const log_capture warnings;
    text_lines lines(file);
    series_store series;
    format.read(lines, series);
    QVERIFY(changed);
    const QList<double>& levels = series[1];
    QVERIFY2(levels.size() >= least && levels.size() <= most, QByteArray::number(levels.size()));
    for (qsizetype i = 0; i + 1 < levels.size(); ++i) // the last point may be cut off
        QCOMPARE(levels[i], static_cast<double>(i) + 0.5);
    const qsizetype old = series[11].indexOf(2);
    QVERIFY(old == -1 || old > 100);
}

void tst_changing_files::written_all_the_time_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("hydrographs") << "x_P.wel" << rows_of("1", 0, 6'000);
    QTest::newRow("basins") << "x.bek" << basin_table().repeated(300);
    QTest::newRow("curves") << "x.dkl" << throttle_curves().repeated(300);
}

// Another thread cuts and writes the file while it is read and drawn again and again, with the
// debug log and without it.
void tst_changing_files::written_all_the_time()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    write_file(path, bytes);
    std::atomic<bool> over = false;
    std::atomic<int> rounds = 0;
    std::thread writer([&] {
        QRandomGenerator random(4);
        for (; !over; ++rounds) {
            QFile::resize(path, random.bounded(bytes.size()));
            append(path, bytes.first(random.bounded(bytes.size())));
            overwrite(path, bytes.first(random.bounded(bytes.size())));
        }
    });
    const log_capture log;
    const modal_boxes boxes;
    for (int i = 0; i < 25 || rounds < 25; ++i) {
        QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, i % 2 == 0);
        const plot_pair plots;
        plots.document->readFile(path);
        if (name.endsWith("bek"))
            plots.document->read_BEK(path, "B2   ");
        if (name.endsWith("dkl"))
            plots.document->read_DKL(path, "2.5_2_Auslass2");
        if (plots.document->plot_mode != -1)
            plots.plot();
    }
    over = true;
    writer.join();
    QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, true);
    QVERIFY(boxes.shown().isEmpty());
}

void tst_changing_files::gone_between_commands_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("basins") << "x.bek";
    QTest::newRow("curves") << "x.dkl";
}

// The names were listed; the file has other ones by now, or none.
void tst_changing_files::gone_between_commands()
{
    QFETCH(QString, name);
    window_driver driver;
    const QString path = driver.open(name, named_curves(name));
    for (const QByteArray& now : {QByteArray(), QByteArray("\0\0\0\n", 4), node_file(9)}) {
        write_file(path, now);
        driver.pick(3);
        const modal_boxes boxes;
        driver.press(driver.plot_name);
        QVERIFY(boxes.shown().isEmpty());
        QVERIFY(driver.window.shown_document()->series[1].isEmpty());
        QCOMPARE(driver.names->count(), 4);
    }
    write_file(path, named_curves(name));
    driver.press(driver.plot_name);
    QCOMPARE(drawn_number(driver), 4);
}

QTEST_MAIN(tst_changing_files)
#include "tst_changing_files.moc"
