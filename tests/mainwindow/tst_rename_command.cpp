#include "plot/korimo_plot.h"
#include "tests/support/modal_answer.h"
#include "tests/support/named_curves.h"
#include "tests/support/rename_driver.h"
#include "ui/rename_dialog.h"

#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_scale_div.h>
#include <qwt_text_label.h>

#include <QAction>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

namespace {

void press(const rename_dialog& dialog, const char* text)
{
    const auto buttons = dialog.findChildren<QPushButton*>();
    for (auto* button : buttons) {
        if (button->text() == text)
            QTest::mouseClick(button, Qt::LeftButton);
    }
}

// Runs the command; answers how often its dialog came up.
int rename(const window_driver& driver, const std::function<void(rename_dialog&)>& answer)
{
    const modal_answer<rename_dialog> user(answer);
    driver.window.findChild<QAction*>("actionZeitreihe_change_names")->trigger();
    return user.count();
}

// The titles of the document's four curves.
QStringList curve_titles(const window_driver& driver)
{
    QStringList titles;
    for (const QwtPlotCurve* curve : driver.window.shown_document()->curves)
        titles.append(curve->title().text());
    return titles;
}

QStringList legend_texts(const QwtPlot* plot)
{
    QStringList texts;
    const auto labels = plot->legend()->findChildren<QwtTextLabel*>();
    for (const auto* label : labels)
        texts.append(label->text().text());
    return texts;
}

double top_of(const QwtPlot* plot)
{
    return plot->axisScaleDiv(QwtAxis::YRight).upperBound();
}

constexpr const char* basin_file = "0 1 2 3 4 5 6 7 8\n72 2 3 4 5 6 7 8 9\n";
QStringList basin_names()
{
    return {"Qein", "Qab", "V   ", "QG"};
}

} // namespace

class tst_rename_command : public QObject
{
    Q_OBJECT

private slots:
    void without_a_document();
    void names_are_offered_and_taken();
    void cell_still_being_edited();
    void one_name_only();
    void no_name_at_all();
    void cancelled_names_wait();
    void names_are_collected_once_for_each_run();
    void more_than_four_rows();
    void mode_without_names();
    void new_document_has_its_own_names();
    void both_plots_are_redrawn();
};

void tst_rename_command::without_a_document()
{
    window_driver driver;
    QCOMPARE(rename(driver, [](rename_dialog& dialog) { press(dialog, "OK"); }), 0);
}

void tst_rename_command::names_are_offered_and_taken()
{
    window_driver driver;
    driver.open("x_B.wel", basin_file);
    const int count = rename(driver, [](rename_dialog& dialog) {
        QCOMPARE(texts_of_column(dialog, 0), basin_names());
        QVERIFY(dialog.isModal() && !dialog.windowIcon().isNull());
        for (int row = 0; row < 4; ++row)
            fill_cell(dialog, row, 1, QString("Name %1").arg(row));
        press(dialog, "OK");
        QCOMPARE(table_of(dialog).rowCount(), 4); // cleared after the dialog has closed
    });
    QCOMPARE(count, 1);
    const QStringList names{"Name 0", "Name 1", "Name 2", "Name 3"};
    QCOMPARE(curve_titles(driver), names);
    QCOMPARE(driver.window.shown_document()->get_curve_names(), names);
    QCoreApplication::processEvents();
    QCOMPARE(legend_texts(driver.lower), (QStringList{"Name 0", "Name 1", "Name 3"}));
    QCOMPARE(legend_texts(driver.upper), QStringList{"Name 2"});
    rename(driver, [&](rename_dialog& dialog) {
        QCOMPARE(texts_of_column(dialog, 0), names);
        QCOMPARE(texts_of_column(dialog, 1), QStringList(4, ""));
        press(dialog, "Cancel");
    });
}

void tst_rename_command::cell_still_being_edited()
{
    window_driver driver;
    driver.open("x_B.wel", basin_file);
    rename(driver, [](rename_dialog& dialog) {
        type_into_cell(dialog, 3, 1, "open");
        press(dialog, "OK");
    });
    QCOMPARE(curve_titles(driver).at(3), "open");
}

void tst_rename_command::one_name_only()
{
    window_driver driver;
    driver.open("x_B.wel", basin_file);
    rename(driver, [](rename_dialog& dialog) {
        fill_cell(dialog, 1, 1, "new");
        press(dialog, "OK");
    });
    QCOMPARE(curve_titles(driver), (QStringList{"Qein", "new", "V   ", "QG"}));
}

void tst_rename_command::no_name_at_all()
{
    window_driver driver;
    driver.open("x_B.wel", basin_file);
    rename(driver, [](rename_dialog& dialog) { press(dialog, "OK"); });
    QCOMPARE(curve_titles(driver), basin_names());
    rename(driver, [](rename_dialog& dialog) {
        QCOMPARE(table_of(dialog).rowCount(), 4);
        press(dialog, "Cancel");
    });
}

void tst_rename_command::cancelled_names_wait()
{
    window_driver driver;
    driver.open("x_B.wel", basin_file);
    for (const bool escape : {false, true}) {
        rename(driver, [&](rename_dialog& dialog) {
            fill_cell(dialog, 1, 1, "new");
            if (escape)
                QTest::keyClick(&dialog, Qt::Key_Escape);
            else
                press(dialog, "Cancel");
        });
        QCOMPARE(curve_titles(driver), basin_names());
    }
    rename(driver, [](rename_dialog& dialog) {
        QCOMPARE(texts_of_column(dialog, 1), (QStringList{"", "new", "", ""}));
        press(dialog, "OK");
    });
    QCOMPARE(curve_titles(driver), (QStringList{"Qein", "new", "V   ", "QG"}));
}

void tst_rename_command::names_are_collected_once_for_each_run()
{
    window_driver driver;
    driver.open("x_B.wel", basin_file);
    for (const QString& name : {QString("first"), QString("second")}) {
        rename(driver, [&](rename_dialog& dialog) {
            fill_cell(dialog, 0, 1, name);
            press(dialog, "OK");
        });
        QCOMPARE(curve_titles(driver), (QStringList{name, "Qab", "V   ", "QG"}));
    }
}

// A document that was drawn twice lists its names twice.
void tst_rename_command::more_than_four_rows()
{
    window_driver driver;
    driver.open("x_B.wel", basin_file);
    driver.window.shown_document()->plot_the_curves(driver.lower, driver.upper);
    rename(driver, [](rename_dialog& dialog) {
        QCOMPARE(table_of(dialog).rowCount(), 8);
        for (int row = 0; row < 8; ++row)
            fill_cell(dialog, row, 1, QString("Name %1").arg(row));
        press(dialog, "OK");
    });
    QCOMPARE(curve_titles(driver), (QStringList{"Name 0", "Name 1", "Name 2", "Name 3"}));
    QCOMPARE(driver.window.shown_document()->get_curve_names(),
             (QStringList{"Name 0", "Name 1", "Name 2", "Name 3"} + basin_names()));
}

void tst_rename_command::mode_without_names()
{
    window_driver driver;
    driver.open("x_T.wel", "0 1 2 3 4 5 6 7 8 9\n1 1 2 3 4 5 6 7 8 9\n");
    rename(driver, [](rename_dialog& dialog) {
        QCOMPARE(table_of(dialog).rowCount(), 0);
        press(dialog, "OK");
    });
    QCOMPARE(curve_titles(driver).mid(0, 2), (QStringList{"Qein", "Qab"}));
}

void tst_rename_command::new_document_has_its_own_names()
{
    window_driver driver;
    driver.open("x.dkl", throttle_curves());
    driver.press(navigation_button(driver, ">"));
    rename(driver, [](rename_dialog& dialog) {
        QCOMPARE(texts_of_column(dialog, 0), QStringList{"1.5_1_Auslass1"});
        fill_cell(dialog, 0, 1, "new");
        press(dialog, "OK");
    });
    QCOMPARE(curve_titles(driver).at(0), "new");
    driver.press(navigation_button(driver, ">"));
    QCOMPARE(curve_titles(driver).at(0), "2.5_2_Auslass2");
}

void tst_rename_command::both_plots_are_redrawn()
{
    window_driver driver;
    driver.open("x_B.wel", basin_file);
    QCoreApplication::processEvents(); // the first showing redraws, too
    for (QwtPlot* plot : {driver.upper, driver.lower}) {
        plot->setAxisScale(QwtAxis::YRight, 100, 200); // takes effect with the next redraw
        rename(driver, [](rename_dialog& dialog) { press(dialog, "Cancel"); });
        QVERIFY(top_of(plot) != 200);
        rename(driver, [](rename_dialog& dialog) { press(dialog, "OK"); });
        QCOMPARE(top_of(plot), 200.0);
    }
}

QTEST_MAIN(tst_rename_command)
#include "tst_rename_command.moc"
