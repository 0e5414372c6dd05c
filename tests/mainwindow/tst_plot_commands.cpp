#include "plot/korimo_plot.h"
#include "plot/reading/element_kinds.h"
#include "tests/support/curve_counts.h"
#include "tests/support/modal_answer.h"
#include "tests/support/modal_boxes.h"
#include "tests/support/window_driver.h"

#include <qwt_interval.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_text.h>

#include <QAction>
#include <QDialog>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QTest>

namespace {

QwtInterval range(const QwtPlot* plot, QwtAxisId axis)
{
    return plot->axisInterval(axis);
}

QStringList titles_of(const QwtPlot* plot)
{
    return {plot->title().text(), plot->axisTitle(QwtAxis::XBottom).text(),
            plot->axisTitle(QwtAxis::YLeft).text()};
}

QStringList no_titles()
{
    return {"", "", ""};
}

constexpr const char* basin_table =
    "   B1                                  101.50  0.50  0.00   0.00\n"
    "   B2                                  101.50  0.50  0.00   0.00\n";

bool is_drawn(const window_driver& driver)
{
    return driver.window.shown_document() && driver.lower->legend() &&
           !driver.lower->itemList().isEmpty();
}

} // namespace

class tst_plot_commands : public QObject
{
    Q_OBJECT

private slots:
    void plot_and_clear();
    void every_kind_is_drawn_data();
    void every_kind_is_drawn();
    void button_text_of_a_file_data();
    void button_text_of_a_file();
    void plot_without_selection();
    void read_lists_the_names();
    void read_twice_lists_once();
    void clear_after_read();
    void names_vanish_at_any_press();
    void unreadable_file();
    void file_without_marker();
    void blocked_window_data();
    void blocked_window();
    void file_chosen_behind_a_box();
    void another_file_clears_the_plots();
    void gap_of_the_legend_closes();
    void held_document_is_destroyed_first();
    void item_change_without_current_item();
    void window_closed_with_a_plot();
};

void tst_plot_commands::plot_and_clear()
{
    window_driver driver;
    driver.add("x_K.wel", node_file(9));
    driver.select(0);
    QCOMPARE(driver.button->text(), "Plot");
    driver.press(driver.button);
    QCOMPARE(driver.button->text(), "Clear");
    QVERIFY(is_drawn(driver));
    QCOMPARE(titles_of(driver.lower),
             (QStringList{"Ganglinien Knoten K1", "Zeit [h] ", "Q [m3/s]"}));
    QCOMPARE(titles_of(driver.upper), (QStringList{"", "Zeit [h] ", "P [mm]"}));
    QCOMPARE(range(driver.lower, QwtAxis::XBottom), QwtInterval(0, 72));
    QCOMPARE(range(driver.lower, QwtAxis::YLeft), QwtInterval(1, 9));
    QCOMPARE(range(driver.upper, QwtAxis::XBottom), QwtInterval(0, 72));
    driver.lower->setAxisTitle(QwtAxis::XTop, "top");
    driver.lower->setAxisVisible(QwtAxis::XTop);

    driver.press(driver.button);
    QCOMPARE(driver.button->text(), "Plot");
    QVERIFY(!is_drawn(driver));
    QVERIFY(driver.lower->itemList().isEmpty() && driver.upper->itemList().isEmpty());
    QVERIFY(!driver.lower->legend() && !driver.upper->legend());
    QCOMPARE(titles_of(driver.lower), no_titles());
    QCOMPARE(titles_of(driver.upper), no_titles());
    QCOMPARE(driver.lower->axisTitle(QwtAxis::XTop).text(), "");
    QVERIFY(!driver.lower->isAxisVisible(QwtAxis::XTop));
    driver.press(driver.button);
    QVERIFY(is_drawn(driver));
}

void tst_plot_commands::every_kind_is_drawn_data()
{
    QTest::addColumn<std::size_t>("columns");
    QTest::addColumn<int>("mode");
    for (const element_kind& kind : element_kinds()) {
        const QByteArray name = 'x' + kind.markers[0].toUtf8();
        QTest::newRow(name + ".wel") << kind.columns.size() << kind.plot_mode;
        QTest::newRow(name + "7.wel") << kind.columns_of_seven.size() << kind.plot_mode;
    }
}

void tst_plot_commands::every_kind_is_drawn()
{
    QFETCH(std::size_t, columns);
    QFETCH(int, mode);
    window_driver driver;
    driver.open(QTest::currentDataTag(), rows_of(columns));
    const auto [lower, upper] = curve_counts(mode);
    QVERIFY(lower > 0);
    QCOMPARE(driver.lower->itemList(QwtPlotItem::Rtti_PlotCurve).size(), lower);
    QCOMPARE(driver.upper->itemList(QwtPlotItem::Rtti_PlotCurve).size(), upper);
}

void tst_plot_commands::button_text_of_a_file_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("data.Wel") << "Plot";
    QTest::newRow("xwel") << "Plot";
    QTest::newRow("x.bek") << "Read";
    QTest::newRow("x.DKL") << "Read";
    QTest::newRow("x.txt") << "Read";
}

void tst_plot_commands::button_text_of_a_file()
{
    QFETCH(QString, text);
    window_driver driver;
    driver.add("other.bek", "");
    driver.add("other_K.wel", "");
    driver.add(QTest::currentDataTag(), "");
    for (const int before : {0, 1}) {
        driver.select(before);
        driver.select(2);
        QCOMPARE(driver.button->text(), text);
    }
}

void tst_plot_commands::plot_without_selection()
{
    window_driver driver;
    driver.add("x_K.wel", node_file(9));
    const modal_boxes boxes;
    driver.names->addItem("left over");
    driver.press(driver.button);
    QCOMPARE(boxes.shown().size(), 1);
    QVERIFY(is_selection_error(boxes.shown()[0]));
    QCOMPARE(driver.button->text(), "Plot");
    QCOMPARE(driver.names->count(), 0);
    QVERIFY(!is_drawn(driver));
}

void tst_plot_commands::read_lists_the_names()
{
    window_driver driver;
    driver.add("x.bek", basin_table);
    driver.select(0);
    QCOMPARE(driver.button->text(), "Read");
    driver.press(driver.button);
    QCOMPARE(driver.button->text(), "Clear");
    QCOMPARE(driver.names->count(), 2);
    QCOMPARE(driver.names->item(0)->text(), "B1   ");
    QCOMPARE(driver.names->item(1)->text(), "B2   ");
    QVERIFY(!is_drawn(driver));
    QCOMPARE(titles_of(driver.lower), no_titles());
}

void tst_plot_commands::read_twice_lists_once()
{
    window_driver driver;
    driver.add("x.bek", basin_table);
    driver.select(0);
    for (int i = 0; i < 3; ++i)
        driver.press(driver.button);
    QCOMPARE(driver.names->count(), 2);
}

void tst_plot_commands::clear_after_read()
{
    window_driver driver;
    driver.add("x.bek", basin_table);
    driver.select(0);
    driver.press(driver.button);
    driver.press(driver.button);
    QCOMPARE(driver.button->text(), "Read");
    QCOMPARE(driver.names->count(), 0);
}

void tst_plot_commands::names_vanish_at_any_press()
{
    window_driver driver;
    driver.add("x_K.wel", node_file(9));
    driver.select(0);
    driver.names->addItem("left over");
    driver.press(driver.button);
    QCOMPARE(driver.names->count(), 0);
}

void tst_plot_commands::unreadable_file()
{
    window_driver driver;
    const QString path = driver.add("x_K.wel", node_file(9));
    QVERIFY(QFile::remove(path));
    driver.select(0);
    const modal_boxes boxes;
    driver.press(driver.button);
    QCOMPARE(boxes.shown().size(), 2);
    QVERIFY(is_read_error(boxes.shown()[0]));
    QCOMPARE(boxes.shown()[1].title, "Error plotting curve");
    QCOMPARE(driver.button->text(), "Clear");
    QVERIFY(is_drawn(driver)); // finished, without curves
}

void tst_plot_commands::file_without_marker()
{
    window_driver driver;
    driver.add("Pegel.wel", node_file(9));
    driver.select(0);
    const modal_boxes boxes;
    driver.press(driver.button);
    QCOMPARE(boxes.shown().size(), 1);
    QCOMPARE(boxes.shown()[0].title, "Error plotting curve");
    QCOMPARE(driver.lower->title().text(), "Ganglinien Knoten K1");
    QVERIFY(driver.lower->itemList(QwtPlotItem::Rtti_PlotCurve).isEmpty());
}

void tst_plot_commands::blocked_window_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("command");
    QTest::newRow("range dialog") << "x_K.wel" << "actionx_Achse_unten";
    QTest::newRow("rename dialog") << "x_K.wel" << "actionZeitreihe_change_names";
    QTest::newRow("box of the document") << "x.wel" << "";
}

// A screen reader can use the window behind a dialog; the document must not go while that is open.
void tst_plot_commands::blocked_window()
{
    QFETCH(QString, name);
    QFETCH(QString, command);
    window_driver driver;
    driver.add("y.bek", basin_table);
    driver.names->addItem("B1   ");
    QPointer<korimo_plot> document;
    const modal_answer<QDialog> user([&](QDialog& dialog) {
        document = driver.window.shown_document();
        driver.button->click();
        driver.list->setCurrentRow(0);
        driver.names->setCurrentRow(0);
        driver.plot_name->click();
        QVERIFY(document && document == driver.window.shown_document());
        dialog.reject();
    });
    driver.open(name, node_file(9));
    if (!command.isEmpty())
        driver.window.findChild<QAction*>(command)->trigger();
    QCOMPARE(user.count(), 1);
    QVERIFY(document && document == driver.window.shown_document());
}

// The very first file is chosen by a screen reader while a box is open.
void tst_plot_commands::file_chosen_behind_a_box()
{
    window_driver driver;
    driver.add("x_K.wel", node_file(9));
    const modal_answer<QDialog> user([&](QDialog& dialog) {
        driver.list->setCurrentRow(0);
        dialog.reject();
    });
    driver.press(driver.button); // with nothing selected
    QCOMPARE(user.count(), 1);
    driver.press(driver.button);
    QVERIFY(is_drawn(driver));
    QCOMPARE(driver.lower->axisInterval(QwtAxis::XBottom), QwtInterval(0, 72));
}

void tst_plot_commands::another_file_clears_the_plots()
{
    window_driver driver;
    driver.add("x_K.wel", node_file(9));
    driver.add("x.bek", basin_table);
    driver.select(0);
    driver.press(driver.button);
    driver.select(1);
    QCOMPARE(driver.button->text(), "Read");
    QVERIFY(!is_drawn(driver));
    QCOMPARE(titles_of(driver.lower), no_titles());
    driver.press(driver.button);
    driver.select(0);
    QCOMPARE(driver.button->text(), "Plot");
    QCOMPARE(driver.names->count(), 0);
}

void tst_plot_commands::gap_of_the_legend_closes()
{
    window_driver driver;
    driver.add("x_K.wel", node_file(9));
    driver.select(0);
    const int lower = driver.lower->canvas()->width();
    const int upper = driver.upper->canvas()->width();
    driver.press(driver.button);
    QCoreApplication::processEvents();
    QVERIFY(driver.lower->canvas()->width() < lower);
    driver.press(driver.button);
    QCOMPARE(driver.lower->canvas()->width(), lower);
    QCOMPARE(driver.upper->canvas()->width(), upper);
}

// No way leads here by mouse and keyboard: "Plot" is named "Clear" while a document is held.
void tst_plot_commands::held_document_is_destroyed_first()
{
    window_driver driver;
    driver.add("x_K.wel", node_file(9));
    driver.select(0);
    driver.press(driver.button);
    const QPointer<korimo_plot> held = driver.window.shown_document();
    driver.button->setText("Plot");
    driver.press(driver.button);
    QVERIFY(!held);
    QVERIFY(is_drawn(driver));
    QCOMPARE(driver.lower->itemList(QwtPlotItem::Rtti_PlotCurve).size(), 2);
}

void tst_plot_commands::item_change_without_current_item()
{
    window_driver driver;
    driver.button->setText("as it was");
    driver.window.listWidget_item_changed();
    QCOMPARE(driver.button->text(), "as it was");
}

void tst_plot_commands::window_closed_with_a_plot()
{
    auto driver = std::make_unique<window_driver>();
    driver->add("x_K.wel", node_file(9));
    driver->select(0);
    driver->press(driver->button);
    driver->window.close();
    const QPointer<korimo_plot> document = driver->window.shown_document();
    QVERIFY(document);
    driver.reset();
    QVERIFY(!document);
}

QTEST_MAIN(tst_plot_commands)
#include "tst_plot_commands.moc"
