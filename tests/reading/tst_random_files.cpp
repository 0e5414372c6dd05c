#include "plot/korimo_plot.h"
#include "tests/support/document_dump.h"
#include "tests/support/kind_names.h"
#include "tests/support/literal_curve_reader.h"
#include "tests/support/log_capture.h"
#include "tests/support/plot_pair.h"
#include "tests/support/random_choice.h"
#include "tests/support/random_files.h"
#include "tests/support/write_file.h"

#include <QTemporaryDir>
#include <QTest>

class tst_random_files : public QObject
{
    Q_OBJECT

private slots:
    void files_data();
    void files();
    void basins();
    void throttles();
};

namespace {

// How many files each row reads; the curves of BEK and DKL files are read from ten times as many.
qsizetype file_count()
{
    bool is_number = false;
    const int wanted = qEnvironmentVariableIntValue("KORIMO_RANDOM_FILES", &is_number);
    return is_number && wanted > 0 ? wanted : 5000;
}

// One file after the other, made from a seed of their name, and both plots for the documents.
struct random_road
{
    explicit random_road(const QString& name)
        : name(name)
        , random(qChecksum(name.toUtf8()))
    {
    }

    void next()
    {
        bytes = random_file(name, random);
        write_file(path, bytes);
    }

    QByteArray shown() const { return bytes.toPercentEncoding(" "); }

    QString name;
    QRandomGenerator random;
    QTemporaryDir folder;
    QString path = folder.filePath(name);
    QByteArray bytes;
    plot_pair plots;
};

// A name to read from a file: mostly one that it lists, at times one that it does not.
QString name_to_read(const QString& path, const QStringList& others, QRandomGenerator& random)
{
    const QStringList listed = read_literally(path).kennlinien_list;
    return listed.isEmpty() || once_in(4, random) ? any_of(others, random) : any_of(listed, random);
}

} // namespace

void tst_random_files::files_data()
{
    QTest::addColumn<QString>("name");
    const QStringList others{"x_N.WEL", "x_V.Wel", "x_p1.wel", "x.wel",
                             "x_P.bek", "x.DKL",   "x_K.txt"};
    const QStringList names = names_of_every_kind() + others;
    for (const QString& name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void tst_random_files::files()
{
    QFETCH(QString, name);
    random_road road(name);
    for (qsizetype i = 0; i < file_count(); ++i) {
        road.next();
        const literal_reading expected = read_literally(road.path);
        korimo_plot document(road.plots.lower.get(), road.plots.upper.get());
        const log_capture log;
        document.readFile(road.path);
        QVERIFY2(log.debug_lines() == expected.log, road.shown().constData());
        QVERIFY2(dump(document) == dump(expected), road.shown().constData());
    }
}

void tst_random_files::basins()
{
    random_road road("basins.bek");
    const QStringList others{"B1   ", "B2   ", "B9   ", "B\u00fc   ", "B1", "1"};
    qsizetype rows = 0;
    for (qsizetype i = 0; i < 10 * file_count(); ++i) {
        road.next();
        const QString item = name_to_read(road.path, others, road.random);
        const literal_reading expected = read_bek_literally(road.path, item);
        rows += expected.series[1].size();
        korimo_plot document(road.plots.lower.get(), road.plots.upper.get());
        document.read_BEK(road.path, item);
        QVERIFY2(dump(document) == dump(expected), road.shown() + " item " + item.toUtf8());
    }
    QVERIFY(rows > 10 * file_count());
}

void tst_random_files::throttles()
{
    random_road road("throttles.dkl");
    const QStringList others{"Sp_1_Auslass",
                             "Sp_2_Auslass_km",
                             "Sp__1__Auslass",
                             "6.480_1_Auslass",
                             "Sp_1",
                             "Auslass_km_Sp",
                             "_",
                             "Sp_3_\u00dcberlauf"};
    qsizetype points = 0;
    qsizetype warnings = 0;
    for (qsizetype i = 0; i < 10 * file_count(); ++i) {
        road.next();
        const QString item = name_to_read(road.path, others, road.random);
        const literal_reading expected = read_dkl_literally(road.path, item);
        points += expected.series[1].size();
        warnings += expected.log.size();
        korimo_plot document(road.plots.lower.get(), road.plots.upper.get());
        const log_capture log;
        document.read_DKL(road.path, item);
        QVERIFY2(log.warning_lines() == expected.log, road.shown() + " item " + item.toUtf8());
        QVERIFY2(dump(document) == dump(expected), road.shown() + " item " + item.toUtf8());
    }
    QVERIFY(points > 10 * file_count());
    QVERIFY(warnings > file_count());
}

QTEST_MAIN(tst_random_files)
#include "tst_random_files.moc"
