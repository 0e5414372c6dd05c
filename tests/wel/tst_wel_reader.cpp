#include "tests/support/document_dump.h"
#include "tests/support/modal_boxes.h"
#include "tests/support/plot_pair.h"
#include "tests/support/sample_files.h"
#include "tests/support/working_folder.h"

#include "plot/drawing/curve_table.h"
#include "plot/reading/element_kinds.h"

#include <QLoggingCategory>
#include <QTemporaryDir>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

class tst_wel_reader : public QObject
{
    Q_OBJECT

private slots:
    void sample_data();
    void sample();
    void debug_level_off();
    void second_reading_appends();
    void file_name_ends_the_path();
    void marker_begins_a_name_without_a_folder();
    void cannot_be_opened_data();
    void cannot_be_opened();
    void every_kind_is_drawn_and_has_a_name_of_its_own();
};

void tst_wel_reader::sample_data()
{
    add_sample_rows(SAMPLES);
}

void tst_wel_reader::sample()
{
    QFETCH(QString, path);
    const plot_pair plots;
    QCOMPARE(read_and_dump(*plots.document, path), expected_of(path));
}

void tst_wel_reader::debug_level_off()
{
    QLoggingCategory::setFilterRules("default.debug=false");
    const plot_pair plots;
    const QString text = read_and_dump(*plots.document, SAMPLES "worked_example_P.wel");
    QLoggingCategory::setFilterRules(QString());
    const QString whole = expected_of(SAMPLES "worked_example_P.wel");
    QCOMPARE(text, whole.first(whole.indexOf("log ")));
}

void tst_wel_reader::second_reading_appends()
{
    const plot_pair plots;
    korimo_plot& document = *plots.document;
    document.readFile(SAMPLES "two_columns_E.wel");
    document.kennlinien_list = QStringList{"left over"};
    document.readFile(SAMPLES "two_titles_E.wel");
    QCOMPARE(document.series[0], (QList<double>{0.25, 0, 1}));
    QCOMPARE(document.series[10], (QList<double>{1.5, 1, 2}));
    QVERIFY(document.kennlinien_list.isEmpty());
    document.readFile(SAMPLES "title_without_rows_P.wel");
    QCOMPARE(document.plot_mode, 6);
    QCOMPARE(document.wel_title, "Ganglinien Pegel");
}

// A marker in the folder's name does not count, nor is a backslash the end of a folder.
void tst_wel_reader::file_name_ends_the_path()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir("x_B"));
    const QString source = SAMPLES "two_columns_E.wel";
    const QString in_folder = folder.filePath("x_B/plain_E.wel");
    const QString with_backslash = folder.filePath("a_V\\b_E.wel");
    QVERIFY(QFile::copy(source, in_folder));
    QVERIFY(QFile::copy(source, with_backslash));
    const plot_pair plots;
    plots.document->readFile(in_folder);
    QCOMPARE(plots.document->plot_mode, 6);
    plots.document->readFile(with_backslash);
    QCOMPARE(plots.document->plot_mode, 3);
}

void tst_wel_reader::marker_begins_a_name_without_a_folder()
{
    const working_folder folder;
    QVERIFY(QFile::copy(SAMPLES "two_columns_E.wel", "_P.wel"));
    const plot_pair plots;
    plots.document->readFile("_P.wel");
    QCOMPARE(plots.document->plot_mode, 5);
}

void tst_wel_reader::cannot_be_opened_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << "missing_P.wel";
    QTest::newRow("a directory") << "folder_P.wel";
    QTest::newRow("a dangling link") << "dangling_P.wel";
    QTest::newRow("missing BEK") << "missing.bek";
#ifdef Q_OS_UNIX
    QTest::newRow("a FIFO") << "fifo_P.wel";
    QTest::newRow("a device") << "device_P.wel";
#endif
    QTest::newRow("no name at all") << "";
}

void tst_wel_reader::cannot_be_opened()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir("folder_P.wel"));
    QVERIFY(QFile::link(folder.filePath("nowhere"), folder.filePath("dangling_P.wel")));
#ifdef Q_OS_UNIX
    QCOMPARE(mkfifo(qPrintable(folder.filePath("fifo_P.wel")), 0600), 0);
    QVERIFY(QFile::link("/dev/zero", folder.filePath("device_P.wel")));
#endif
    const plot_pair plots;
    plots.document->kennlinien_list = QStringList{"left over"};
    const modal_boxes boxes;
    plots.document->readFile(name.isEmpty() ? QString() : folder.filePath(name));
    QCOMPARE(boxes.shown().size(), 1);
    QVERIFY(is_read_error(boxes.shown()[0]));
    QCOMPARE(dump(*plots.document), "mode -1\n");
}

void tst_wel_reader::every_kind_is_drawn_and_has_a_name_of_its_own()
{
    QSet<QString> names;
    QVERIFY(!element_kinds().empty());
    for (const element_kind& kind : element_kinds()) {
        names.insert(kind.name);
        QVERIFY2(plot_mode_rule_of(kind.plot_mode), kind.name);
        QCOMPARE(kind.columns[0], 0);
        QCOMPARE(kind.columns_of_seven[0], 0);
    }
    QCOMPARE(names.size(), static_cast<qsizetype>(element_kinds().size()));
}

QTEST_MAIN(tst_wel_reader)
#include "tst_wel_reader.moc"
