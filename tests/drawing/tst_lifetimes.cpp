#include "tests/support/plot_pair.h"

#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>

#include <QTest>

namespace {

void draw(const plot_pair& plots)
{
    plots.document->plot_mode = 0;
    plots.document->series[0] = plots.document->series[2] = plots.document->series[8] = {0, 1, 2};
    plots.plot();
}

} // namespace

// Memory errors and leaks show in the build with sanitizers, everything else in any.
class tst_lifetimes : public QObject
{
    Q_OBJECT

private slots:
    void document_first();
    void plots_first();
    void lower_plot_first();
    void plots_first_without_a_pass();
    void coupling_ends_with_the_upper_plot();
    void second_document_on_the_same_plots();
    void slot_before_a_pass();
};

void tst_lifetimes::document_first()
{
    plot_pair plots;
    draw(plots);
    QVERIFY(plots.lower->legend() && plots.upper->legend());
    plots.document.reset();
    QVERIFY(plots.lower->itemList().isEmpty() && plots.upper->itemList().isEmpty());
    QVERIFY(!plots.lower->legend() && !plots.upper->legend());
    QVERIFY(plots.lower->canvas()->children().isEmpty());
    plots.lower->setAxisScale(QwtAxis::XBottom, 1, 2);
    plots.lower->replot();
}

void tst_lifetimes::plots_first()
{
    plot_pair plots;
    draw(plots);
    plots.lower.reset();
    plots.upper.reset();
    korimo_plot& document = *plots.document;
    QVERIFY(!document.curves[0] && !document.curves[1]);
    QVERIFY(!document.curves[2] && !document.curves[3]);
    QVERIFY(!document.grid_lower && !document.grid_upper);
    QVERIFY(!document.legend_lower && !document.legend_upper);
    QVERIFY(!document.magnifier_a && !document.magnifier_b && !document.panner);
    document.set_curve_names({"a", "b", "c", "d"});
    document.scaleDivChangedSlot();
}

void tst_lifetimes::lower_plot_first()
{
    plot_pair plots;
    draw(plots);
    plots.lower.reset();
    QVERIFY(!plots.document->curves[0]);
    QCOMPARE(plots.document->curves[2]->plot(), plots.upper.get());
    plots.document.reset();
    QVERIFY(plots.upper->itemList().isEmpty());
}

void tst_lifetimes::plots_first_without_a_pass()
{
    plot_pair plots;
    plots.lower.reset();
    plots.upper.reset();
    QVERIFY(plots.document->curves[0] && plots.document->grid_lower);
    const QPointer<QwtLegend> lower_legend = plots.document->legend_lower;
    const QPointer<QwtLegend> upper_legend = plots.document->legend_upper;
    QVERIFY(lower_legend && upper_legend);
    plots.document.reset();
    QVERIFY(!lower_legend && !upper_legend);
}

void tst_lifetimes::coupling_ends_with_the_upper_plot()
{
    plot_pair plots;
    draw(plots);
    plots.upper.reset();
    plots.lower->setAxisScale(QwtAxis::XBottom, 1, 2);
    plots.lower->replot();
    QCOMPARE(plots.document->last_scaled_plot, 1);
}

void tst_lifetimes::second_document_on_the_same_plots()
{
    plot_pair plots;
    draw(plots);
    auto second = std::make_unique<korimo_plot>(plots.lower.get(), plots.upper.get());
    second->plot_mode = 6;
    second->plot_the_curves(plots.lower.get(), plots.upper.get());
    QCOMPARE(plots.lower->legend(), second->legend_lower);
    plots.document.reset();
    QCOMPARE(plots.lower->itemList().size(), 2);
    second.reset();
    QVERIFY(plots.lower->itemList().isEmpty());
}

void tst_lifetimes::slot_before_a_pass()
{
    const plot_pair plots;
    plots.document->last_scaled_plot = 7;
    plots.document->scaleDivChangedSlot();
    QCOMPARE(plots.document->last_scaled_plot, 7);
}

QTEST_MAIN(tst_lifetimes)
#include "tst_lifetimes.moc"
