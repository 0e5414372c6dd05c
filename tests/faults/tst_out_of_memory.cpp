#include "plot/korimo_plot.h"
#include "tests/faults/scarce_memory.h"
#include "tests/support/document_dump.h"
#include "tests/support/modal_boxes.h"
#include "tests/support/named_curves.h"
#include "tests/support/write_file.h"

#include <qwt_plot.h>

#include <QListWidget>
#include <QLoggingCategory>
#include <QPushButton>
#include <QTest>

namespace {

using namespace Qt::StringLiterals;

// Text that is written behind what the file starts with: half a million pieces so many times, and
// the end.
struct rest_of_file
{
    const char* piece;
    int times;
    const char* end = "";
};

void append(const QString& path, const rest_of_file& rest)
{
    const QByteArray block = QByteArray(rest.piece).repeated(1 << 16);
    QFile file(path);
    if (!file.open(QIODevice::Append))
        qFatal("cannot write a temporary file");
    for (int i = 0; i < 8 * rest.times; ++i)
        file.write(block);
    file.write(rest.end);
}

constexpr rest_of_file rows{"1\n", 8};
constexpr rest_of_file one_token{"11", 32};
constexpr rest_of_file one_row{"1 ", 32};
#ifndef __SANITIZE_ADDRESS__ // its operator new ends the program in place of throwing
constexpr rest_of_file numbers_of_one_row{"1 ", 6, "\n"};
#endif
constexpr rest_of_file last_line{"1 ", 10};
constexpr rest_of_file basins{"   B1                                 1\n", 2};
constexpr rest_of_file curves{" 1 Auslass1 km 1.5\n", 2};

// There is room for the line, but not for all that the log makes of it.
constexpr rest_of_file words{"a ", 3};
constexpr rest_of_file quotes{"\"\"", 3};

// Does with each line what the usual handler does, but for the writing.
class usual_log
{
public:
    usual_log()
        : previous(qInstallMessageHandler(write))
    {
        QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, true);
    }

    ~usual_log()
    {
        QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, false);
        qInstallMessageHandler(previous);
    }

    usual_log(const usual_log&) = delete;
    usual_log& operator=(const usual_log&) = delete;

private:
    static void write(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        const QByteArray line = qFormatLogMessage(type, context, text).toLocal8Bit();
        Q_UNUSED(line);
    }

    QtMessageHandler previous;
};

} // namespace

/// A file that is too large for the memory: the viewer says so, keeps nothing of it, and goes on.
class tst_out_of_memory : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void opened_data();
    void opened();
    void logged_data();
    void logged();
    void drawn_data();
    void drawn();
    void warned_of();
    void line_without_end_data();
    void line_without_end();
};

void tst_out_of_memory::initTestCase()
{
    QLoggingCategory::setFilterRules("*.debug=false");
}

void tst_out_of_memory::opened_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<rest_of_file>("rest");
    const QByteArray hydrograph = "Ganglinien\n1 1 1\n";
    QTest::newRow("rows") << "x_P.wel" << hydrograph << rows;
    QTest::newRow("one token") << "x_P.wel" << hydrograph << one_token;
    QTest::newRow("one row") << "x_P.wel" << hydrograph << one_row;
#ifndef __SANITIZE_ADDRESS__
    QTest::newRow("numbers of one row") << "x_P.wel" << hydrograph << numbers_of_one_row;
#endif
    QTest::newRow("text of the last line") << "x_P.wel" << hydrograph << last_line;
    QTest::newRow("basins and a token") << "x.bek" << basin_table() << one_token;
    QTest::newRow("curves and a token") << "x.dkl" << throttle_curves() << one_token;
    QTest::newRow("names of basins") << "x.bek" << basin_table() << basins;
    QTest::newRow("names of curves") << "x.dkl" << throttle_curves() << curves;
}

void tst_out_of_memory::opened()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, start);
    QFETCH(rest_of_file, rest);
    window_driver driver;
    append(driver.add(name, start), rest);
    driver.add("good_P.wel", "1 2 3\n4 5 6\n");
    driver.select(0);
    const modal_boxes boxes;
    {
        const scarce_memory scarce;
        driver.press(driver.button);
    }
    QCOMPARE(boxes.shown().size(), name.endsWith("wel") ? 2 : 1);
    QVERIFY(is_read_error(boxes.shown()[0]));
    const korimo_plot& document = *driver.window.shown_document();
    QVERIFY(has_no_values(document));
    QCOMPARE(document.plot_mode, -1);
    QCOMPARE(document.wel_title, "");
    QCOMPARE(driver.names->count(), 0);
    driver.select(1);
    driver.press(driver.button);
    QCOMPARE(driver.window.shown_document()->series[12], (QList<double>{2, 5}));
}

void tst_out_of_memory::logged_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<rest_of_file>("rest");
    QTest::newRow("words") << "x_P.wel" << "1 2 3\n"_ba << words;
    QTest::newRow("quotes") << "x_P.wel" << "1 2 3\n"_ba << quotes;
    QTest::newRow("header") << "x.dkl" << throttle_curves() + "km " << quotes;
}

void tst_out_of_memory::logged()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, start);
    QFETCH(rest_of_file, rest);
    window_driver driver;
    append(driver.add(name, start), rest);
    driver.select(0);
    const modal_boxes boxes;
    {
        const usual_log log;
        const scarce_memory scarce;
        driver.press(driver.button);
    }
    QCOMPARE(boxes.shown().size(), name.endsWith("wel") ? 2 : 1);
    QVERIFY(is_read_error(boxes.shown()[0]));
    QVERIFY(has_no_values(*driver.window.shown_document()));
    QCOMPARE(driver.names->count(), 0);
    driver.press(driver.button); // "Clear"
    driver.press(driver.button);
    QCOMPARE(boxes.shown().size(), name.endsWith("wel") ? 2 : 1);
}

void tst_out_of_memory::drawn_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("basin") << "x.bek";
    QTest::newRow("curve") << "x.dkl";
}

// The file has grown since its names were listed.
void tst_out_of_memory::drawn()
{
    QFETCH(QString, name);
    window_driver driver;
    const QString path = driver.open(name, named_curves(name));
    append(path, one_token);
    driver.pick(2);
    const modal_boxes boxes;
    {
        const scarce_memory scarce;
        driver.press(driver.plot_name);
    }
    QCOMPARE(boxes.shown().size(), 1);
    QVERIFY(is_read_error(boxes.shown()[0]));
    QVERIFY(has_no_values(*driver.window.shown_document()));
    QCOMPARE(driver.names->count(), 4);
    write_file(path, named_curves(name));
    driver.press(driver.plot_name);
    QCOMPARE(drawn_number(driver), 3);
}

// In place of its point the curve has a line that the log is told of.
void tst_out_of_memory::warned_of()
{
    window_driver driver;
    const QString path = driver.open("x.dkl", " 1 Auslass1 km 1.5\n 1\n");
    append(path, quotes);
    driver.pick(0);
    const modal_boxes boxes;
    {
        const usual_log log;
        const scarce_memory scarce;
        driver.press(driver.plot_name);
    }
    QCOMPARE(boxes.shown().size(), 1);
    QVERIFY(is_read_error(boxes.shown()[0]));
    QVERIFY(has_no_values(*driver.window.shown_document()));
}

void tst_out_of_memory::line_without_end_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"x_P.wel", "x.bek", "x.dkl"})
        QTest::newRow(name) << QString(name);
}

// There would be memory enough. On the disk, the zeros take no room.
void tst_out_of_memory::line_without_end()
{
    QFETCH(QString, name);
    window_driver driver;
    const QString path = driver.add(name, "1 2 3\n");
    QVERIFY(QFile::resize(path, 5'000'000'000));
    driver.select(0);
    const modal_boxes boxes;
    driver.press(driver.button);
    QCOMPARE(boxes.shown().size(), name.endsWith("wel") ? 2 : 1);
    QVERIFY(is_read_error(boxes.shown()[0]));
    QVERIFY(has_no_values(*driver.window.shown_document()));
}

QTEST_MAIN(tst_out_of_memory)
#include "tst_out_of_memory.moc"
