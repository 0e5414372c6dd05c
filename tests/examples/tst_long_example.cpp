#include "tests/examples/example_files.h"

#include <QTest>

#include <QTemporaryDir>

using namespace example_files;

class tst_long_example : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void has_the_rows_and_columns_data();
    void has_the_rows_and_columns();
    void is_the_same_again();
    void shorter_file_begins_the_longer_one();
    void storms_return();
    void wrong_arguments_data();
    void wrong_arguments();
    void help();
    void unwritable_file();

private:
    QString path(const QString& name) const { return folder_.filePath(name); }
    void write(const QString& rows, const QString& kind, const QString& name) const;

    QTemporaryDir folder_;
};

void tst_long_example::initTestCase()
{
    QVERIFY(folder_.isValid());
}

void tst_long_example::write(const QString& rows, const QString& kind, const QString& name) const
{
    const run_result run = run_program({"--rows", rows, "--kind", kind, path(name)});
    QVERIFY2(run.exit_code == 0, qPrintable(run.errors));
}

void tst_long_example::has_the_rows_and_columns_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<qsizetype>("columns");
    QTest::addColumn<qsizetype>("width");
    QTest::newRow("KN") << "KN" << qsizetype(10) << qsizetype(108);
    QTest::newRow("N") << "N" << qsizetype(10) << qsizetype(108);
    QTest::newRow("B") << "B" << qsizetype(9) << qsizetype(103);
    QTest::newRow("B7") << "B7" << qsizetype(7) << qsizetype(81);
    QTest::newRow("T") << "T" << qsizetype(10) << qsizetype(108);
    QTest::newRow("V") << "V" << qsizetype(4) << qsizetype(42);
    QTest::newRow("P") << "P" << qsizetype(3) << qsizetype(31);
    QTest::newRow("E") << "E" << qsizetype(2) << qsizetype(20);
}

void tst_long_example::has_the_rows_and_columns()
{
    QFETCH(QString, kind);
    QFETCH(qsizetype, columns);
    QFETCH(qsizetype, width);
    write("3001", kind, "rows.wel");
    const wel_table table = read_wel(path("rows.wel"));
    QVERIFY(table.lines.first().contains("Ganglinien"));
    QCOMPARE(table.heading.size(), columns);
    QCOMPARE(table.rows.size(), 3001);
    QCOMPARE(table.rows[12][0], QString("1.00"));
    QCOMPARE(table.rows[3000][0], QString("250.00"));
    const auto lines = table.lines.mid(3);
    for (const QString& line : lines) {
        QCOMPARE(line.size(), width);
        QCOMPARE(words_of(line).size(), columns);
    }
}

void tst_long_example::is_the_same_again()
{
    write("5000", "B", "first.wel");
    write("5000", "B", "second.wel");
    QVERIFY(read_file(path("first.wel")) == read_file(path("second.wel")));
}

void tst_long_example::shorter_file_begins_the_longer_one()
{
    write("1", "KN", "one.wel");
    write("5000", "KN", "short.wel");
    write("9000", "KN", "long.wel");
    QCOMPARE(lines_of(path("one.wel")).size(), 4);
    QVERIFY(read_file(path("short.wel")).startsWith(read_file(path("one.wel"))));
    QVERIFY(read_file(path("long.wel")).startsWith(read_file(path("short.wel"))));
}

// A year: rain comes back after dry days, and more rain falls than in the first storm.
void tst_long_example::storms_return()
{
    write("105120", "KN", "year.wel");
    int storms = 0;
    double rain = 0.0;
    int dry_rows = 1000;
    const auto rows = read_wel(path("year.wel")).rows;
    for (const QStringList& row : rows) {
        const double fallen = row[1].toDouble();
        storms += fallen > 0.0 && dry_rows > 288 ? 1 : 0;
        dry_rows = fallen > 0.0 ? 0 : dry_rows + 1;
        rain += fallen;
    }
    QVERIFY2(storms > 20 && storms < 120, qPrintable(QString::number(storms)));
    QVERIFY2(rain > 600.0 && rain < 1400.0, qPrintable(QString::number(rain)));
}

void tst_long_example::wrong_arguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    const QString file = path("wrong.wel");
    QTest::newRow("none") << QStringList{};
    QTest::newRow("unknown kind") << QStringList{"--rows", "5", "--kind", "X", file};
    QTest::newRow("no rows") << QStringList{"--rows", "0", "--kind", "KN", file};
    QTest::newRow("negative rows") << QStringList{"--rows", "-5", "--kind", "KN", file};
    QTest::newRow("rows with a tail") << QStringList{"--rows", "5x", "--kind", "KN", file};
    QTest::newRow("no file") << QStringList{"--rows", "5", "--kind", "KN"};
    QTest::newRow("unknown option") << QStringList{"--row"};
}

void tst_long_example::wrong_arguments()
{
    QFETCH(QStringList, arguments);
    const run_result run = run_program(arguments);
    QCOMPARE(run.exit_code, 2);
    QVERIFY(run.errors.contains("--help"));
    QVERIFY(!QFile::exists(path("wrong.wel")));
}

void tst_long_example::help()
{
    const run_result run = run_program({"--help"});
    QCOMPARE(run.exit_code, 0);
    QVERIFY(run.errors.isEmpty());
}

void tst_long_example::unwritable_file()
{
    const QString file = path("missing/file.wel");
    const run_result run = run_program({"--rows", "5", "--kind", "KN", file});
    QCOMPARE(run.exit_code, 1);
    QVERIFY(run.errors.contains(file));
}

QTEST_APPLESS_MAIN(tst_long_example)
#include "tst_long_example.moc"
