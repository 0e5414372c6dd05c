#include "tests/examples/example_files.h"

#include <QTest>

using namespace example_files;

namespace {

struct basin_point
{
    double water;
    double outlet;
    double overflow;
    double volume; // m3
};

struct curve_point
{
    double water;
    double discharge;
};

// Basin table, all blocks of the basin one after the other; fields at fixed characters.
QList<basin_point> read_basin(const QString& key)
{
    QList<basin_point> points;
    QString current;
    const auto lines = lines_of(example("Erlenbach.bek"));
    for (const QString& line : lines) {
        const QString found = line.mid(3, 5).trimmed();
        current = found.isEmpty() ? current : found;
        if (current == key) {
            points.append({line.mid(37, 7).toDouble(), line.mid(44, 6).toDouble(),
                           line.mid(50, 6).toDouble(), line.mid(56, 7).toDouble() * 1000.0});
        }
    }
    return points;
}

qsizetype segment_at(const QList<basin_point>& points, double volume)
{
    qsizetype i = 0;
    while (i + 2 < points.size() && points[i + 1].volume <= volume) {
        ++i;
    }
    return i;
}

struct table_value
{
    double value;
    double slope; // for each m3
};

table_value look_up(const QList<basin_point>& points, double volume, double basin_point::* member)
{
    const basin_point& from = points[segment_at(points, volume)];
    const basin_point& to = points[segment_at(points, volume) + 1];
    const double slope = (to.*member - from.*member) / (to.volume - from.volume);
    return {from.*member + slope * (volume - from.volume), slope};
}

QString name_of_curve(const QString& header)
{
    QStringList words = words_of(header);
    for (const char* const dropped : {"GOK", "=", "GW", "müNHN"}) {
        words.removeAll(dropped);
    }
    return words.value(3) + '_' + words.value(0) + '_' + words.value(1);
}

QList<curve_point> read_curve(const QString& number_and_name)
{
    const QStringList lines = lines_of(example("Erlenbach.dkl"));
    const auto is_header = [&](const QString& line) {
        return line.contains("km") && name_of_curve(line).endsWith(number_and_name);
    };
    const auto header = std::find_if(lines.begin(), lines.end(), is_header);
    const qsizetype first = header - lines.begin() + 3; // after the heading and the count
    const qsizetype count = lines.value(first - 1).toInt();
    QList<curve_point> points;
    const auto shown = lines.mid(first, count);
    for (const QString& line : shown) {
        points.append({words_of(line).value(0).toDouble(), words_of(line).value(1).toDouble()});
    }
    return points;
}

} // namespace

class tst_example_curves : public QObject
{
    Q_OBJECT

private slots:
    void basin_lies_on_its_table_data();
    void basin_lies_on_its_table();
    void level_belongs_to_the_volume();
    void basin_table_lists();
    void spillway_column_may_be_blank();
    void curve_names();
    void curve_agrees_with_basin_table_data();
    void curve_agrees_with_basin_table();
};

void tst_example_curves::basin_lies_on_its_table_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("outlet");
    QTest::newRow("B1 outlet") << "B1" << true;
    QTest::newRow("B1 spillway") << "B1" << false;
    QTest::newRow("B2 outlet") << "B2" << true;
    QTest::newRow("B2 spillway") << "B2" << false;
}

// The routing rounds three flows to 0.001 m3/s and then balances the volume with them: it may lie
// half a step times 0.0015 m3/s off the volume that belongs to the flows.
void tst_example_curves::basin_lies_on_its_table()
{
    QFETCH(QString, key);
    QFETCH(bool, outlet);
    const QList<basin_point> table = read_basin(key);
    const QList<double> volume = numbers(key + ".V");
    const QList<double> flow = numbers(key + (outlet ? ".QG" : ".Qhw"));
    QVERIFY(greatest(flow) > 0.5);
    for (qsizetype i = 0; i < event_rows; ++i) {
        const auto [expected, slope] =
            look_up(table, volume[i], outlet ? &basin_point::outlet : &basin_point::overflow);
        QVERIFY2(std::abs(flow[i] - expected) < 0.0006 + slope * 450.0 * 0.0015,
                 qPrintable(QString::number(i)));
    }
}

void tst_example_curves::level_belongs_to_the_volume()
{
    const QList<basin_point> table = read_basin("B1");
    const QList<double> volume = numbers("B1.V");
    const QList<double> water = numbers("B1.h");
    QCOMPARE(water.size(), event_rows);
    for (qsizetype i = 0; i < event_rows; ++i) {
        const double expected = look_up(table, volume[i], &basin_point::water).value;
        QVERIFY2(std::abs(water[i] - expected) < 0.0006, qPrintable(QString::number(i)));
    }
}

void tst_example_curves::basin_table_lists()
{
    QStringList listed;
    QStringList headings;
    const auto lines = lines_of(example("Erlenbach.bek"));
    for (const QString& line : lines) {
        const bool starts =
            line.mid(3, 1).toUpper() == "B" && !line.mid(37, 26).trimmed().isEmpty();
        if (starts) {
            (line.mid(4, 3) == "Bez" ? headings : listed).append(line.mid(3, 5));
        }
    }
    QCOMPARE(headings.size(), 1);
    QCOMPARE(listed, QStringList({"B1   ", "B2   ", "B3   ", "B4   ", "B1   "}));
}

// Below the crest of B2 nothing, from the crest on a value; B4 has no spillway at all.
void tst_example_curves::spillway_column_may_be_blank()
{
    QHash<QString, QString> pattern;
    QString current;
    const auto lines = lines_of(example("Erlenbach.bek"));
    for (const QString& line : lines) {
        const QString found = line.mid(3, 5).trimmed();
        current = found.isEmpty() ? current : found;
        pattern[current] += line.mid(50, 6).trimmed().isEmpty() ? '-' : 'x';
    }
    QCOMPARE(pattern["B1"], QString(17, 'x'));
    QCOMPARE(pattern["B2"], QString("------xxxx"));
    QCOMPARE(pattern["B3"], QString(8, 'x'));
    QCOMPARE(pattern["B4"], QString(6, '-'));
}

// A curve is found again by the first and the third part of its name: they must stand in the
// header of this curve alone.
void tst_example_curves::curve_names()
{
    const QStringList headers = lines_of(example("Erlenbach.dkl")).filter("km");
    QCOMPARE(headers.size(), 7);
    for (const QString& header : headers) {
        const QStringList parts = name_of_curve(header).split('_');
        QCOMPARE(parts.size(), 3);
        QVERIFY(!header.contains("Wo"));
        QCOMPARE(headers.filter(parts[0]).filter(parts[2]), QStringList{header});
    }
    QCOMPARE(name_of_curve(headers.first()), QString("6.480_1_Grundablass-Oberdorf"));
}

void tst_example_curves::curve_agrees_with_basin_table_data()
{
    QTest::addColumn<QString>("curve");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("outlet");
    QTest::addColumn<qsizetype>("points");
    QTest::newRow("B1 outlet") << "_1_Grundablass-Oberdorf" << "B1" << true << qsizetype(56);
    QTest::newRow("B1 spillway") << "_2_Überlauf-Oberdorf" << "B1" << false << qsizetype(10);
    QTest::newRow("B2 outlet") << "_3_Drossel-Auwiesen" << "B2" << true << qsizetype(29);
    QTest::newRow("B2 spillway") << "_4_Notüberlauf-Auwiesen" << "B2" << false << qsizetype(8);
    QTest::newRow("B3 outlet") << "_5_Mönch-Mühlteich" << "B3" << true << qsizetype(24);
    QTest::newRow("B3 spillway") << "_6_Überlauf-Mühlteich" << "B3" << false << qsizetype(8);
    QTest::newRow("B4 outlet") << "_7_Drossel-Gewerbegebiet" << "B4" << true << qsizetype(20);
}

void tst_example_curves::curve_agrees_with_basin_table()
{
    QFETCH(QString, curve);
    QFETCH(QString, key);
    QFETCH(bool, outlet);
    QFETCH(qsizetype, points);
    const QList<curve_point> read = read_curve(curve);
    QCOMPARE(read.size(), points);
    int shared = 0;
    const auto rows = read_basin(key);
    for (const basin_point& row : rows) {
        const auto same = [&](curve_point p) { return std::abs(p.water - row.water) < 0.0005; };
        const auto found = std::find_if(read.begin(), read.end(), same);
        if (found != read.end()) {
            ++shared;
            QVERIFY(std::abs(found->discharge - (outlet ? row.outlet : row.overflow)) < 0.0056);
        }
    }
    QVERIFY(shared >= 4);
    QCOMPARE(read.first().discharge, 0.0);
}

QTEST_APPLESS_MAIN(tst_example_curves)
#include "tst_example_curves.moc"
