#include "tests/examples/example_files.h"

#include <QTest>

#include <QTemporaryDir>

using namespace example_files;

namespace {

constexpr double half_step = 450.0; // s

} // namespace

class tst_examples : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void remade_byte_for_byte_data();
    void remade_byte_for_byte();
    void no_file_is_missing();
    void layout_data();
    void layout();
    void inflow_is_outflow_of_the_element_above_data();
    void inflow_is_outflow_of_the_element_above();
    void parts_make_the_whole_data();
    void parts_make_the_whole();
    void stock_balances_data();
    void stock_balances();
    void storm_balances_data();
    void storm_balances();
    void flood_rises_and_falls_data();
    void flood_rises_and_falls();

private:
    QString made(const QString& name) const { return made_.filePath(name); }

    QTemporaryDir made_;
};

void tst_examples::initTestCase()
{
    QVERIFY(made_.isValid());
    const run_result run = run_program({made_.path()});
    QVERIFY2(run.exit_code == 0, qPrintable(run.errors));
}

void tst_examples::remade_byte_for_byte_data()
{
    QTest::addColumn<QString>("name");
    const auto names = QDir(made_.path()).entryList(QDir::Files);
    for (const QString& name : names) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void tst_examples::remade_byte_for_byte()
{
    QFETCH(QString, name);
    QVERIFY(!read_file(made(name)).isEmpty());
    QVERIFY(read_file(made(name)) == read_file(example(name)));
}

void tst_examples::no_file_is_missing()
{
    const QStringList kinds{"*.wel", "*.bek", "*.dkl"};
    const QStringList kept = QDir(QStringLiteral(EXAMPLES_DIR)).entryList(kinds, QDir::Files);
    QCOMPARE(kept.size(), 10);
    QCOMPARE(QDir(made_.path()).entryList(QDir::Files), kept);
}

void tst_examples::layout_data()
{
    QTest::addColumn<QString>("element");
    QTest::addColumn<QString>("heading");
    QTest::newRow("KN") << "K1" << "t hN hV heff QD QI QGW Qzu Qb Qges";
    QTest::newRow("N") << "N1" << "t hN hV heff QD QI QGW Qzu Qb Qges";
    QTest::newRow("B, 9 columns") << "B1" << "t h Qein QG Qhw Qab Qver V A";
    QTest::newRow("B, 7 columns") << "B2" << "t Qein QG Qhw Qab V A";
    QTest::newRow("T") << "T1" << "t Qein Qab h A v b V QFl QVor";
    QTest::newRow("V") << "V1" << "t Qb Qab1 Qab2";
    QTest::newRow("E") << "E1" << "t Qein";
    QTest::newRow("P") << "P1" << "t Qges Qpeg";
}

void tst_examples::layout()
{
    QFETCH(QString, element);
    QFETCH(QString, heading);
    const wel_table table = read_wel(wel_path(element));
    QVERIFY(table.lines.first().contains("Ganglinien " + element));
    QCOMPARE(table.lines.filter("Ganglinien").size(), 1);
    QVERIFY(table.lines.filter("\t").isEmpty() && table.lines.filter("\r").isEmpty());
    QCOMPARE(table.heading, words_of(heading));
    QCOMPARE(table.units.size(), table.heading.size());
    QCOMPARE(table.rows.size(), event_rows);
    for (qsizetype i = 0; i < event_rows; ++i) {
        QCOMPARE(table.rows[i].size(), table.heading.size());
        QCOMPARE(table.rows[i][0], QString::number(0.25 * static_cast<double>(i), 'f', 2));
    }
    for (const QString& name : table.heading) {
        QVERIFY2(std::isfinite(total(numbers(element + '.' + name))), qPrintable(name));
    }
}

void tst_examples::inflow_is_outflow_of_the_element_above_data()
{
    QTest::addColumn<QString>("outflow");
    QTest::addColumn<QString>("inflow");
    QTest::newRow("settlement to catchment") << "E1.Qein" << "K1.Qzu";
    QTest::newRow("catchment to basin") << "K1.Qges" << "B1.Qein";
    QTest::newRow("basin to reach") << "B1.Qab" << "T1.Qein";
    QTest::newRow("reach to branch") << "T1.Qab" << "V1.Qb";
    QTest::newRow("branch to side basin") << "V1.Qab2" << "B2.Qein";
    QTest::newRow("node to gauge") << "N1.Qges" << "P1.Qges";
}

void tst_examples::inflow_is_outflow_of_the_element_above()
{
    QFETCH(QString, outflow);
    QFETCH(QString, inflow);
    QCOMPARE(column(inflow), column(outflow));
}

void tst_examples::parts_make_the_whole_data()
{
    QTest::addColumn<QStringList>("whole");
    QTest::addColumn<QStringList>("parts");
    using names = QStringList;
    for (const QString& area : {QString("K1"), QString("N1")}) {
        QTest::addRow("%s rain", qPrintable(area))
            << names{area + ".hN"} << names{area + ".hV", area + ".heff"};
        QTest::addRow("%s base flow", qPrintable(area))
            << names{area + ".Qb"} << names{area + ".QI", area + ".QGW"};
        QTest::addRow("%s total", qPrintable(area))
            << names{area + ".Qges"} << names{area + ".QD", area + ".Qb", area + ".Qzu"};
    }
    QTest::newRow("B1 outflow") << names{"B1.Qab"} << names{"B1.QG", "B1.Qhw"};
    QTest::newRow("B2 outflow") << names{"B2.Qab"} << names{"B2.QG", "B2.Qhw"};
    QTest::newRow("T1 outflow") << names{"T1.Qab"} << names{"T1.QFl", "T1.QVor"};
    QTest::newRow("V1 branches") << names{"V1.Qb"} << names{"V1.Qab1", "V1.Qab2"};
    QTest::newRow("N1 inflow") << names{"N1.Qzu"} << names{"V1.Qab1", "B2.Qab"};
}

void tst_examples::parts_make_the_whole()
{
    QFETCH(QStringList, whole);
    QFETCH(QStringList, parts);
    const QList<double> expected = sum_of(whole);
    const QList<double> sum = sum_of(parts);
    QCOMPARE(expected.size(), event_rows);
    for (qsizetype i = 0; i < event_rows; ++i) {
        QVERIFY2(std::abs(sum[i] - expected[i]) < 1e-6, qPrintable(QString::number(i)));
    }
}

void tst_examples::stock_balances_data()
{
    QTest::addColumn<QString>("inflow");
    QTest::addColumn<QStringList>("outflows");
    QTest::addColumn<QString>("stock");
    QTest::newRow("B1") << "B1.Qein" << QStringList{"B1.Qab", "B1.Qver"} << "B1.V";
    QTest::newRow("B2") << "B2.Qein" << QStringList{"B2.Qab"} << "B2.V";
    QTest::newRow("T1") << "T1.Qein" << QStringList{"T1.Qab"} << "T1.V";
}

void tst_examples::stock_balances()
{
    QFETCH(QString, inflow);
    QFETCH(QStringList, outflows);
    QFETCH(QString, stock);
    const QList<double> in = numbers(inflow);
    const QList<double> out = sum_of(outflows);
    const QList<double> volume = numbers(stock);
    QCOMPARE(volume.size(), event_rows);
    QVERIFY(greatest(volume) > 10000.0);
    for (qsizetype i = 1; i < event_rows; ++i) {
        const double gain = half_step * (in[i - 1] + in[i] - out[i - 1] - out[i]);
        QVERIFY2(std::abs(volume[i] - volume[i - 1] - gain) < 0.005,
                 qPrintable(QString::number(i)));
    }
}

void tst_examples::storm_balances_data()
{
    QTest::addColumn<QString>("element");
    QTest::addColumn<double>("surface"); // m2
    QTest::newRow("K1") << "K1" << 6.2e6;
    QTest::newRow("N1") << "N1" << 2.1e6;
}

// What is left in the cascade when its flows round to nothing is a few cubic metres.
void tst_examples::storm_balances()
{
    QFETCH(QString, element);
    QFETCH(double, surface);
    const double effective = total(numbers(element + ".heff")) / 1000.0 * surface;
    const double runoff = total(numbers(element + ".QD")) * 2.0 * half_step;
    QCOMPARE(numbers(element + ".QD").constLast(), 0.0);
    QVERIFY(std::abs(total(numbers(element + ".hN")) - 60.0) < 1e-6);
    QVERIFY(effective > 30000.0);
    QVERIFY2(std::abs(effective - runoff) < 10.0, qPrintable(QString::number(runoff - effective)));
}

void tst_examples::flood_rises_and_falls_data()
{
    QTest::addColumn<QString>("flow");
    QTest::addColumn<QString>("flow_below");
    QTest::newRow("basin") << "B1.Qein" << "B1.Qab";
    QTest::newRow("reach") << "T1.Qein" << "T1.Qab";
    QTest::newRow("side basin") << "B2.Qein" << "B2.Qab";
}

// Storage makes the peak lower and later; after three days the flood is over.
void tst_examples::flood_rises_and_falls()
{
    QFETCH(QString, flow);
    QFETCH(QString, flow_below);
    const QList<double> in = numbers(flow);
    const QList<double> out = numbers(flow_below);
    QVERIFY(greatest(out) > 1.0);
    QVERIFY(greatest(out) < greatest(in));
    QVERIFY(peak_row(out) > peak_row(in));
    QVERIFY(out.constFirst() < 0.05 * greatest(out));
    QVERIFY(out.constLast() < 0.05 * greatest(out));
}

QTEST_APPLESS_MAIN(tst_examples)
#include "tst_examples.moc"
