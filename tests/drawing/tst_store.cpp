#include "tests/support/plot_pair.h"

#include <qwt_plot_curve.h>
#include <qwt_text.h>

#include <QMetaMethod>
#include <QTest>

class tst_store : public QObject
{
    Q_OBJECT

private slots:
    void entries();
    void fresh_document();
    void invocable_methods_in_order();
    void getters_return_copies();
    void new_names_data();
    void new_names();
};

void tst_store::entries()
{
    QVERIFY(is_entry(0));
    QVERIFY(is_entry(24));
    QVERIFY(!is_entry(25));
    QVERIFY(!is_entry(-1));
}

void tst_store::fresh_document()
{
    const plot_pair plots;
    korimo_plot& document = *plots.document;
    QCOMPARE(document.plot_mode, -1);
    QCOMPARE(document.last_scaled_plot, 1);
    QCOMPARE(document.get_wel_title(), QString());
    QCOMPARE(document.get_kennlinien_list(), QStringList());
    QCOMPARE(document.get_curve_names(), QStringList());
    QVERIFY(!document.get_x_bottom_status() && !document.get_x_top_status());
    QVERIFY(!document.get_y_bottom_status() && !document.get_y_top_status());
    QCOMPARE(document.series, series_store());
    QCOMPARE(document.series.size(), 25U);
    for (std::size_t i = 0; i < 4; ++i) {
        QCOMPARE(document.curve_title[i], "Nothing");
        QCOMPARE(document.curves[i]->title().text(), "");
        QVERIFY(!document.curves[i]->plot());
    }
    QVERIFY(!document.legend_lower->parent() && !document.legend_upper->parent());
    for (QObject* tool : std::initializer_list<QObject*>{document.magnifier_a, document.magnifier_b,
                                                         document.panner})
        QCOMPARE(tool->parent(), plots.lower->canvas());
    QVERIFY(!document.parent());
    QVERIFY(plots.lower->itemList().isEmpty() && plots.upper->itemList().isEmpty());
}

void tst_store::invocable_methods_in_order()
{
    const QMetaObject& meta = korimo_plot::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names.append(meta.method(i).methodSignature());
    QCOMPARE(names,
             (QStringList{
                 "readFile(QString)", "read_DKL(QString,QString)", "read_BEK(QString,QString)",
                 "plot_the_curves(QwtPlot*,QwtPlot*)", "get_wel_title()", "get_kennlinien_list()",
                 "scaleDivChangedSlot()", "get_y_axis_scale(QwtPlot*)",
                 "set_y_axis_scale(QwtPlot*,QList<double>)", "get_x_axis_scale(QwtPlot*,QString)",
                 "set_x_axis_scale(QwtPlot*,QList<double>,QString)", "get_x_bottom_status()",
                 "get_x_top_status()", "get_y_bottom_status()", "get_y_top_status()",
                 "get_curve_names()", "set_curve_names(QStringList)"}));
}

void tst_store::getters_return_copies()
{
    const plot_pair plots;
    korimo_plot& document = *plots.document;
    document.kennlinien_list = QStringList{"B1   "};
    document.curve_names = QStringList{"Qb"};
    auto&& elements = document.get_kennlinien_list();
    elements.append("more");
    auto&& names = document.get_curve_names();
    names.clear();
    QCOMPARE(document.kennlinien_list, QStringList{"B1   "});
    QCOMPARE(document.curve_names, QStringList{"Qb"});
}

void tst_store::new_names_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QStringList>("listed");
    QTest::addColumn<QStringList>("titles");
    using list = QStringList;
    QTest::newRow("none") << list{} << list{"Qges", "Qpeg"} << list{"Qges", "Qpeg", "", ""};
    QTest::newRow("both") << list{"a", "b"} << list{"a", "b"} << list{"a", "b", "", ""};
    QTest::newRow("second only") << list{"", "b"} << list{"Qges", "b"} << list{"Qges", "b", "", ""};
    QTest::newRow("all empty") << list{"", ""} << list{"Qges", "Qpeg"}
                               << list{"Qges", "Qpeg", "", ""};
    QTest::newRow("more than the list holds")
        << list{"a", "b", "c", "d", "e", "f"} << list{"a", "b"} << list{"a", "b", "c", "d"};
}

void tst_store::new_names()
{
    QFETCH(QStringList, given);
    QFETCH(QStringList, listed);
    QFETCH(QStringList, titles);
    const plot_pair plots;
    plots.document->plot_mode = 5;
    plots.plot();
    plots.document->set_curve_names(given);
    QCOMPARE(plots.document->get_curve_names(), listed);
    for (std::size_t i = 0; i < 4; ++i) {
        const QString& title = titles[static_cast<qsizetype>(i)];
        QCOMPARE(plots.document->curves[i]->title().text(), title);
        QCOMPARE(plots.document->curve_title[i], title.isEmpty() ? "Nothing" : title);
    }
}

QTEST_MAIN(tst_store)
#include "tst_store.moc"
