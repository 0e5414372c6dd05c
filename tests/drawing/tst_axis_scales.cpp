#include "tests/support/plot_pair.h"

#include <QTest>

namespace {

using range = QList<double>;

struct statuses
{
    bool x_bottom;
    bool x_top;
    bool y_bottom;
    bool y_top;

    bool operator==(const statuses&) const = default;
};

statuses statuses_of(korimo_plot& document)
{
    return {document.get_x_bottom_status(), document.get_x_top_status(),
            document.get_y_bottom_status(), document.get_y_top_status()};
}

} // namespace

class tst_axis_scales : public QObject
{
    Q_OBJECT

private slots:
    void fixed_ranges_data();
    void fixed_ranges();
    void unknown_names();
    void lists_too_short();
    void inverted();
    void lower_time_axis_moves_the_upper_one();
};

void tst_axis_scales::fixed_ranges_data()
{
    QTest::addColumn<bool>("on_lower");
    QTest::addColumn<QString>("axis");
    QTest::newRow("lower y") << true << "y";
    QTest::newRow("lower x") << true << "bottom";
    QTest::newRow("lower second x") << true << "top";
    QTest::newRow("upper y") << false << "y";
    QTest::newRow("upper x") << false << "bottom";
    QTest::newRow("upper second x") << false << "top";
}

void tst_axis_scales::fixed_ranges()
{
    QFETCH(bool, on_lower);
    QFETCH(QString, axis);
    const plot_pair plots;
    korimo_plot& document = *plots.document;
    QwtPlot* const plot = on_lower ? plots.lower.get() : plots.upper.get();
    const bool is_y = axis == "y";
    const auto get = [&] {
        return is_y ? document.get_y_axis_scale(plot) : document.get_x_axis_scale(plot, axis);
    };
    const QwtAxisId id = is_y               ? QwtAxis::YLeft
                         : axis == "bottom" ? QwtAxis::XBottom
                                            : QwtAxis::XTop;
    plot->updateAxes();
    QCOMPARE(get(), (range{0, 1000}));
    if (is_y)
        document.set_y_axis_scale(plot, {2.5, 7, 99});
    else
        document.set_x_axis_scale(plot, {2.5, 7, 99}, axis);
    QVERIFY(get() != (range{2.5, 7})); // not yet redrawn
    plot->replot();
    QCOMPARE(get(), (range{2.5, 7}));
    QVERIFY(!plot->axisAutoScale(id));
    QCOMPARE(plot->axisStepSize(id), 0.0);
    QCOMPARE(statuses_of(document), (statuses{axis == "bottom", axis == "top", is_y, false}));
}

void tst_axis_scales::unknown_names()
{
    const plot_pair plots;
    korimo_plot& document = *plots.document;
    const auto names = QStringList{"Bottom", "TOP", "", "left", "bottom "};
    for (const QString& name : names) {
        document.set_x_axis_scale(plots.lower.get(), {10, 20}, name);
        plots.lower->replot();
        QCOMPARE(document.get_x_axis_scale(plots.lower.get(), "bottom"), (range{0, 1000}));
        QCOMPARE(document.get_x_axis_scale(plots.lower.get(), "top"), (range{0, 1000}));
        QCOMPARE(document.get_x_axis_scale(plots.lower.get(), name), (range{0, 0}));
        QCOMPARE(statuses_of(document), statuses());
    }
}

void tst_axis_scales::lists_too_short()
{
    const plot_pair plots;
    korimo_plot& document = *plots.document;
    for (const range& list : {range{}, range{5}}) {
        document.set_y_axis_scale(plots.lower.get(), list);
        document.set_x_axis_scale(plots.lower.get(), list, "bottom");
        document.set_x_axis_scale(plots.lower.get(), list, "top");
        QVERIFY(plots.lower->axisAutoScale(QwtAxis::YLeft));
        QVERIFY(plots.lower->axisAutoScale(QwtAxis::XBottom));
        QVERIFY(plots.lower->axisAutoScale(QwtAxis::XTop));
        QCOMPARE(statuses_of(document), statuses());
    }
}

void tst_axis_scales::inverted()
{
    const plot_pair plots;
    plots.document->set_y_axis_scale(plots.lower.get(), {9, 1});
    plots.document->set_x_axis_scale(plots.lower.get(), {20, 10}, "bottom");
    plots.lower->replot();
    QCOMPARE(plots.document->get_y_axis_scale(plots.lower.get()), (range{9, 1}));
    QCOMPARE(plots.document->get_x_axis_scale(plots.lower.get(), "bottom"), (range{20, 10}));
}

void tst_axis_scales::lower_time_axis_moves_the_upper_one()
{
    const plot_pair plots;
    plots.document->plot_mode = 0;
    plots.document->series[0] = {0, 72};
    plots.document->series[2] = {1, 2};
    plots.document->series[8] = {1, 2};
    plots.plot();
    plots.document->set_x_axis_scale(plots.lower.get(), {10, 20}, "bottom");
    plots.lower->replot();
    QCOMPARE(plots.document->get_x_axis_scale(plots.upper.get(), "bottom"), (range{10, 20}));
}

QTEST_MAIN(tst_axis_scales)
#include "tst_axis_scales.moc"
