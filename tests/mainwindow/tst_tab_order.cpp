#include "tests/support/focus_walk.h"
#include "tests/support/named_curves.h"

#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QToolBar>

#include <qwt_plot.h>

/// Where the Tab key goes, and that the mouse takes the focus nowhere else for that.
class tst_tab_order : public QObject
{
    Q_OBJECT

private slots:
    void order_data();
    void order();
    void where_the_focus_is_at_first();
    void clicks_on_the_tool_bar_keep_the_focus_data();
    void clicks_on_the_tool_bar_keep_the_focus();
    void plots_take_no_click_before_the_first_file();
};

namespace {

QStringList stops(bool with_plot)
{
    QStringList names{"pushButton",
                      "pushButton_3",
                      "listWidget_2",
                      "pushButton_2",
                      "pushButton_b_start",
                      "pushButton_b",
                      "pushButton_f",
                      "pushButton_f_end",
                      "qwtPlot",
                      "action_y_achse_unten",
                      "actionx_Achse_unten",
                      "action2_X_Achse_unten",
                      "actiony_Achse_oben",
                      "actionx_Achse_oben",
                      "actionZeitreihe_change_names",
                      "listWidget"};
    if (!with_plot)
        names.removeOne("qwtPlot");
    return names;
}

void wait_for_the_focus(window_driver& driver)
{
    driver.window.activateWindow();
    QTRY_VERIFY(QApplication::focusWidget());
}

} // namespace

void tst_tab_order::order_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("nothing drawn") << "";
    QTest::newRow("hydrographs drawn") << "x_K1.wel";
    QTest::newRow("names of basins read") << "x.bek";
    QTest::newRow("names of throttles read") << "x.dkl";
}

void tst_tab_order::order()
{
    QFETCH(QString, file);
    window_driver driver;
    if (!file.isEmpty())
        driver.open(file, file.endsWith("wel") ? node_file(3) : named_curves(file));
    wait_for_the_focus(driver);
    driver.button->setFocus();
    QStringList expected = stops(!file.isEmpty());
    expected.append(expected.takeFirst()); // the walk begins there and comes back to it
    QCOMPARE(walk(Qt::Key_Tab, expected.size(), object_name_of), expected);
    expected.removeLast();
    std::reverse(expected.begin(), expected.end());
    expected.append("pushButton");
    QCOMPARE(walk(Qt::Key_Backtab, expected.size(), object_name_of), expected);
}

void tst_tab_order::where_the_focus_is_at_first()
{
    window_driver driver;
    wait_for_the_focus(driver);
    QCOMPARE(QApplication::focusWidget(), driver.button);
}

void tst_tab_order::clicks_on_the_tool_bar_keep_the_focus_data()
{
    QTest::addColumn<int>("place");
    for (int place = 0; place < 6; ++place)
        QTest::addRow("button %d", place) << place;
}

void tst_tab_order::clicks_on_the_tool_bar_keep_the_focus()
{
    QFETCH(int, place);
    window_driver driver;
    wait_for_the_focus(driver);
    driver.list->setFocus();
    const auto* const tools = driver.window.findChild<QToolBar*>("toolBar");
    QWidget* const button = tools->widgetForAction(tools->actions().at(place));
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(QApplication::focusWidget(), driver.list);
}

void tst_tab_order::plots_take_no_click_before_the_first_file()
{
    window_driver driver;
    wait_for_the_focus(driver);
    for (QwtPlot* plot : {driver.lower, driver.upper}) {
        QTest::mouseClick(plot->canvas(), Qt::LeftButton);
        QCOMPARE(QApplication::focusWidget(), driver.button);
    }
}

QTEST_MAIN(tst_tab_order)
#include "tst_tab_order.moc"
