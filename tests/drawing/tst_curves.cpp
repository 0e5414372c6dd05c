#include "tests/support/modal_boxes.h"
#include "tests/support/plot_pair.h"

#include <qwt_plot_curve.h>
#include <qwt_text.h>

#include <QPen>
#include <QTest>

namespace {

struct expected_curve
{
    int mode;
    std::size_t curve;
    std::size_t x;
    std::size_t y;
    bool on_lower;
    Qt::GlobalColor colour;
    const char* title;
};

constexpr expected_curve expected_curves[] = {
    {0, 0, 0, 8, true, Qt::blue, "Qb"},     {0, 1, 0, 12, true, Qt::green, "Qges"},
    {0, 2, 0, 2, false, Qt::blue, "hN"},    {0, 3, 0, 4, false, Qt::red, "heff"},
    {1, 0, 0, 10, true, Qt::blue, "Qein"},  {1, 1, 0, 14, true, Qt::red, "Qab"},
    {1, 2, 0, 23, false, Qt::red, "V   "},  {1, 3, 0, 11, true, Qt::green, "QG"},
    {2, 0, 0, 10, true, Qt::blue, "Qein"},  {2, 1, 0, 14, true, Qt::green, "Qab"},
    {3, 0, 0, 10, true, Qt::blue, "Qb"},    {3, 1, 0, 5, true, Qt::green, "Qab1"},
    {3, 2, 0, 6, true, Qt::red, "Qab2"},    {5, 0, 0, 12, true, Qt::blue, "Qges"},
    {5, 1, 0, 20, true, Qt::green, "Qpeg"}, {6, 0, 0, 10, true, Qt::blue, "Qein"},
    {8, 0, 11, 1, true, Qt::blue, "Titel"}, {9, 0, 11, 1, true, Qt::blue, "Qg"},
    {9, 1, 13, 1, true, Qt::green, "Qhw"},  {9, 2, 23, 1, false, Qt::red, "V"},
};

constexpr const char* untouched = "untouched";

QString axis_title(const QwtPlot& plot, QwtAxisId axis)
{
    return plot.axisTitle(axis).text();
}

// Fills entry i with three values that no other entry has.
void fill(series_store& series)
{
    for (std::size_t i = 0; i < series.size(); ++i) {
        const double base = 100.0 * static_cast<double>(i);
        series[i] = {base, base + 1, base + 2};
    }
}

QList<double> samples(const QwtPlotCurve& curve, bool of_x)
{
    QList<double> values;
    for (std::size_t i = 0; i < curve.dataSize(); ++i) {
        const QPointF point = curve.sample(static_cast<int>(i));
        values.append(of_x ? point.x() : point.y());
    }
    return values;
}

} // namespace

class tst_curves : public QObject
{
    Q_OBJECT

private slots:
    void curves_of_a_mode_data();
    void curves_of_a_mode();
    void axis_titles_data();
    void axis_titles();
    void listed_names_data();
    void listed_names();
    void names_add_up();
    void lists_of_unequal_length();
    void only_the_spillway_takes_a_tail();
    void tail_of_the_levels_data();
    void tail_of_the_levels();
    void volume_of_a_basin_table_sets_its_axes();
    void unused_curves_keep_their_samples();
    void invalid_mode();
};

void tst_curves::curves_of_a_mode_data()
{
    QTest::addColumn<int>("mode");
    for (int mode = -2; mode <= 20; ++mode) {
        if (mode != -1)
            QTest::addRow("%d", mode) << mode;
    }
}

void tst_curves::curves_of_a_mode()
{
    QFETCH(int, mode);
    const plot_pair plots;
    korimo_plot& document = *plots.document;
    fill(document.series);
    document.plot_mode = mode;
    document.wel_title = "Titel";
    plots.plot();
    std::array<bool, 4> used{};
    for (const expected_curve& expected : expected_curves) {
        if (expected.mode != mode)
            continue;
        used[expected.curve] = true;
        const QwtPlotCurve& curve = *document.curves[expected.curve];
        QCOMPARE(curve.plot(), expected.on_lower ? plots.lower.get() : plots.upper.get());
        QCOMPARE(samples(curve, true), document.series[expected.x]);
        QCOMPARE(samples(curve, false), document.series[expected.y]);
        QCOMPARE(curve.pen(), QPen(QColor(expected.colour), 2.0, Qt::SolidLine));
        QCOMPARE(curve.title().text(), expected.title);
        QCOMPARE(curve.xAxis(), QwtAxisId(QwtAxis::XBottom));
        QCOMPARE(curve.yAxis(), QwtAxisId(QwtAxis::YLeft));
    }
    for (std::size_t i = 0; i < used.size(); ++i)
        QCOMPARE(document.curves[i]->plot() != nullptr, used[i]);
}

void tst_curves::axis_titles_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("titles"); // lower x, lower y, upper x, upper y
    const QString time = "Zeit [h] ";
    const QString flow = "Q [m3/s]";
    QTest::newRow("0") << 0 << QStringList{time, flow, time, "P [mm]"};
    QTest::newRow("1") << 1 << QStringList{time, flow, time, "V [m3]"};
    for (const int mode : {2, 3, 5, 6})
        QTest::addRow("%d", mode) << mode << QStringList{time, flow, untouched, untouched};
    QTest::newRow("4") << 4 << QStringList{untouched, untouched, untouched, untouched};
    QTest::newRow("7") << 7 << QStringList{untouched, untouched, untouched, untouched};
    QTest::newRow("8") << 8 << QStringList{"Qd [m3/s]", "Wo [müNHN]", untouched, untouched};
    QTest::newRow("9") << 9 << QStringList{flow, "h [müNHN]", "V [Tsd. m3]", "h [müNHN]"};
}

void tst_curves::axis_titles()
{
    QFETCH(int, mode);
    QFETCH(QStringList, titles);
    const plot_pair plots;
    for (QwtPlot* plot : {plots.lower.get(), plots.upper.get()}) {
        plot->setTitle(untouched);
        plot->setAxisTitle(QwtAxis::XBottom, untouched);
        plot->setAxisTitle(QwtAxis::YLeft, untouched);
    }
    plots.document->plot_mode = mode;
    plots.plot();
    QCOMPARE((QStringList{axis_title(*plots.lower, QwtAxis::XBottom),
                          axis_title(*plots.lower, QwtAxis::YLeft),
                          axis_title(*plots.upper, QwtAxis::XBottom),
                          axis_title(*plots.upper, QwtAxis::YLeft)}),
             titles);
    QCOMPARE(plots.lower->title().text(), untouched);
    QCOMPARE(plots.upper->title().text(), untouched);
}

void tst_curves::listed_names_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("0") << 0 << QStringList{"Qb", "Qges", "hN", "heff"};
    QTest::newRow("1") << 1 << QStringList{"Qein", "Qab", "V   ", "QG"};
    QTest::newRow("2") << 2 << QStringList{};
    QTest::newRow("3") << 3 << QStringList{"Qb", "Qab1", "Qab2"};
    QTest::newRow("4") << 4 << QStringList{};
    QTest::newRow("5") << 5 << QStringList{"Qges", "Qpeg"};
    QTest::newRow("6") << 6 << QStringList{"Qein"};
    QTest::newRow("8") << 8 << QStringList{"Sp1"};
    QTest::newRow("9") << 9 << QStringList{"Qg", "Qhw", "V"};
}

void tst_curves::listed_names()
{
    QFETCH(int, mode);
    QFETCH(QStringList, names);
    const plot_pair plots;
    plots.document->plot_mode = mode;
    plots.document->wel_title = "Sp1";
    plots.plot();
    QCOMPARE(plots.document->get_curve_names(), names);
}

void tst_curves::names_add_up()
{
    const plot_pair plots;
    plots.document->plot_mode = 5;
    plots.plot();
    plots.document->plot_mode = 2;
    plots.plot();
    QCOMPARE(plots.document->get_curve_names(), (QStringList{"Qges", "Qpeg", "Qges", "Qpeg"}));
    plots.document->plot_mode = 8;
    plots.document->wel_title = "Nothing";
    plots.plot();
    QCOMPARE(plots.document->get_curve_names().size(), 5);
}

void tst_curves::lists_of_unequal_length()
{
    const plot_pair plots;
    plots.document->plot_mode = 6;
    plots.document->series[0] = {0, 1, 2};
    plots.document->series[10] = {5, 6};
    plots.plot();
    QCOMPARE(plots.document->curves[0]->dataSize(), 2U);
}

void tst_curves::only_the_spillway_takes_a_tail()
{
    for (const expected_curve& expected : expected_curves) {
        const plot_pair plots;
        plots.document->plot_mode = expected.mode;
        plots.document->series[expected.x] = {0, 1};
        plots.document->series[expected.y] = {5, 6, 7};
        plots.plot();
        const bool is_spillway = expected.mode == 9 && expected.curve == 1;
        QCOMPARE(samples(*plots.document->curves[expected.curve], false),
                 is_spillway ? (QList<double>{6, 7}) : (QList<double>{5, 6}));
    }
}

void tst_curves::tail_of_the_levels_data()
{
    QTest::addColumn<int>("spillway_values");
    QTest::addColumn<QList<double>>("levels");
    QTest::newRow("none") << 0 << QList<double>{};
    QTest::newRow("4 of 10") << 4 << QList<double>{107, 108, 109, 110};
    QTest::newRow("all") << 10 << QList<double>{101, 102, 103, 104, 105, 106, 107, 108, 109, 110};
    QTest::newRow("more than levels")
        << 12 << QList<double>{101, 102, 103, 104, 105, 106, 107, 108, 109, 110};
}

void tst_curves::tail_of_the_levels()
{
    QFETCH(int, spillway_values);
    QFETCH(QList<double>, levels);
    const plot_pair plots;
    plots.document->plot_mode = 9;
    for (int i = 1; i <= 10; ++i)
        plots.document->series[1].append(100 + i);
    plots.document->series[13].fill(0.5, spillway_values);
    plots.plot();
    QCOMPARE(samples(*plots.document->curves[1], false), levels);
}

void tst_curves::volume_of_a_basin_table_sets_its_axes()
{
    const plot_pair plots;
    for (QwtPlotCurve* curve : plots.document->curves)
        curve->setAxes(QwtAxis::XTop, QwtAxis::YRight);
    plots.document->plot_mode = 9;
    plots.plot();
    QCOMPARE(plots.document->curves[2]->xAxis(), QwtAxisId(QwtAxis::XBottom));
    QCOMPARE(plots.document->curves[2]->yAxis(), QwtAxisId(QwtAxis::YLeft));
    QCOMPARE(plots.document->curves[1]->yAxis(), QwtAxisId(QwtAxis::YRight));
}

void tst_curves::unused_curves_keep_their_samples()
{
    const plot_pair plots;
    fill(plots.document->series);
    plots.document->plot_mode = 0;
    plots.plot();
    plots.document->plot_mode = 6;
    plots.plot();
    QCOMPARE(plots.document->curves[0]->title().text(), "Qein");
    QCOMPARE(plots.document->curves[3]->title().text(), "heff");
    QCOMPARE(plots.document->curves[3]->plot(), plots.upper.get());
    QCOMPARE(plots.document->curves[3]->dataSize(), 3U);
}

void tst_curves::invalid_mode()
{
    const plot_pair plots;
    const modal_boxes boxes;
    plots.plot();
    QCOMPARE(boxes.shown().size(), 1);
    QCOMPARE(boxes.shown()[0].title, "Error plotting curve");
    QCOMPARE(boxes.shown()[0].text,
             "An Error occured and an invalid plot mode was triggered. Please check the selected "
             "WEL-Files formatting as well as its name!");
    QCOMPARE(boxes.shown()[0].buttons, QMessageBox::Ok);
    QCOMPARE(boxes.shown()[0].icon, QMessageBox::NoIcon);
    QVERIFY(boxes.shown()[0].was_modal);
    QCOMPARE(plots.lower->legend(), plots.document->legend_lower);
    QCOMPARE(plots.lower->itemList().size(), 1); // the grid
}

QTEST_MAIN(tst_curves)
#include "tst_curves.moc"
