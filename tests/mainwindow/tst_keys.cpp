#include "tests/support/focus_walk.h"
#include "tests/support/modal_answer.h"
#include "tests/support/modal_boxes.h"
#include "tests/support/named_curves.h"
#include "ui/axis_dialog.h"
#include "ui/rename_dialog.h"

#include <qwt_interval.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_text.h>

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

/// The commands of the window, given with keys alone.
class tst_keys : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void file_list();
    void plot_and_clear();
    void read_and_plot_a_name();
    void steps_through_the_names_data();
    void steps_through_the_names();
    void removing();
    void axis_commands_data();
    void axis_commands();
    void rename_command();
    void zoom();
    void menus_data();
    void menus();
    void saving();

private:
    void add(const QString& name, const QByteArray& text);
    void open(const QString& name, const QByteArray& text);

    std::unique_ptr<window_driver> driver;
};

namespace {

QString text_of(const axis_dialog& dialog)
{
    return dialog.findChild<QLabel*>("label")->text();
}

// The Alt key alone goes to the menu bar.
void press_alt()
{
    QWidget* const focus = QApplication::focusWidget();
    QTest::keyPress(focus, Qt::Key_Alt, Qt::AltModifier);
    QTest::keyRelease(focus, Qt::Key_Alt, Qt::NoModifier);
}

// Keys go to the menu that is open, or to what has the focus.
void press_in_menu(Qt::Key key)
{
    QWidget* const menu = QApplication::activePopupWidget();
    QTest::keyClick(menu ? menu : QApplication::focusWidget(), key);
}

} // namespace

void tst_keys::init()
{
    driver = std::make_unique<window_driver>();
    driver->window.activateWindow();
    QTRY_VERIFY(QApplication::focusWidget());
}

void tst_keys::cleanup()
{
    driver.reset();
}

void tst_keys::add(const QString& name, const QByteArray& text)
{
    driver->add(name, text);
}

// Adds the first file, chooses it in the list and presses the button.
void tst_keys::open(const QString& name, const QByteArray& text)
{
    add(name, text);
    QVERIFY(tab_to("listWidget"));
    press_key(Qt::Key_Space);
    QVERIFY(tab_to("pushButton"));
    press_key(Qt::Key_Space);
}

void tst_keys::file_list()
{
    for (const char* name : {"a_K.wel", "b.bek", "c.dkl"})
        add(name, node_file(3));
    QVERIFY(tab_to("listWidget"));
    QVERIFY(driver->list->selectedItems().isEmpty()); // to come here selects nothing yet
    struct step
    {
        Qt::Key key;
        int row;
        const char* button;
    };
    const step steps[] = {{Qt::Key_Space, 0, "Plot"},
                          {Qt::Key_Down, 1, "Read"},
                          {Qt::Key_Up, 0, "Plot"},
                          {Qt::Key_End, 2, "Read"},
                          {Qt::Key_Home, 0, "Plot"}};
    for (const step& each : steps) {
        press_key(each.key);
        QCOMPARE(driver->list->selectedItems(), {driver->list->item(each.row)});
        QCOMPARE(driver->button->text(), each.button);
    }
}

void tst_keys::plot_and_clear()
{
    open("x_K1.wel", node_file(3));
    QVERIFY(driver->window.shown_document());
    QCOMPARE(driver->button->text(), "Clear");
    press_key(Qt::Key_Space);
    QVERIFY(!driver->window.shown_document());
    QCOMPARE(driver->button->text(), "Plot");
}

void tst_keys::read_and_plot_a_name()
{
    open("x.bek", basin_table());
    QVERIFY(tab_to("listWidget_2"));
    press_key(Qt::Key_Down);
    QCOMPARE(selected_row(*driver), 1);
    QVERIFY(tab_to("pushButton_2"));
    press_key(Qt::Key_Space);
    QCOMPARE(drawn_number(*driver), 2);
}

void tst_keys::steps_through_the_names_data()
{
    QTest::addColumn<int>("drawn");
    QTest::newRow("pushButton_b_start") << 1;
    QTest::newRow("pushButton_b") << 2;
    QTest::newRow("pushButton_f") << 4;
    QTest::newRow("pushButton_f_end") << 4;
}

void tst_keys::steps_through_the_names()
{
    QFETCH(int, drawn);
    open("x.dkl", throttle_curves());
    driver->names->setCurrentRow(2);
    QVERIFY(tab_to(QTest::currentDataTag()));
    press_key(Qt::Key_Space);
    QCOMPARE(drawn_number(*driver), drawn);
}

void tst_keys::removing()
{
    for (const char* name : {"a_K.wel", "b_K.wel"})
        add(name, node_file(3));
    QVERIFY(tab_to("listWidget"));
    press_key(Qt::Key_Down);
    QVERIFY(tab_to("pushButton_3"));
    press_key(Qt::Key_Space);
    QCOMPARE(driver->files(), QStringList(driver->folder.filePath("a_K.wel")));
}

void tst_keys::axis_commands_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QwtPlot * window_driver::*>("plot");
    QTest::addColumn<QwtAxisId>("axis");
    const auto row = [](const char* action, const char* label, QwtPlot* window_driver::* plot,
                        QwtAxisId axis) {
        QTest::newRow(action) << QString(label) << plot << axis;
    };
    QwtPlot* window_driver::* const lower = &window_driver::lower;
    QwtPlot* window_driver::* const upper = &window_driver::upper;
    row("action_y_achse_unten", "Y-Achse unterer Plot", lower, QwtAxis::YLeft);
    row("actionx_Achse_unten", "X-Achse unterer Plot", lower, QwtAxis::XBottom);
    row("action2_X_Achse_unten", "X-Achse oberer Plot", lower, QwtAxis::XTop);
    row("actiony_Achse_oben", "Y-Achse oberer Plot", upper, QwtAxis::YLeft);
    row("actionx_Achse_oben", "X-Achse oberer Plot", upper, QwtAxis::XBottom);
}

void tst_keys::axis_commands()
{
    QFETCH(QString, label);
    QFETCH(QwtPlot * window_driver::*, plot);
    QFETCH(QwtAxisId, axis);
    open("x_K1.wel", node_file(3));
    QVERIFY(tab_to(QTest::currentDataTag()));
    const QWidget* const button = QApplication::focusWidget();
    QStringList labels;
    const modal_answer<axis_dialog> answer([&](axis_dialog& dialog) {
        labels.append(text_of(dialog));
        QVERIFY(tab_to("doubleSpinBox"));
        press_key(Qt::Key_1);
        QVERIFY(tab_to("doubleSpinBox_2"));
        press_key(Qt::Key_2);
        press_key(Qt::Key_Return);
    });
    press_key(Qt::Key_Space);
    QCOMPARE(labels, QStringList(label));
    QCOMPARE(((*driver).*plot)->axisInterval(axis), QwtInterval(1, 2));
    QCOMPARE(driver->window.focusWidget(), button); // where the user has come from
}

void tst_keys::rename_command()
{
    open("x_K1.wel", node_file(3));
    QVERIFY(tab_to("actionZeitreihe_change_names"));
    const modal_answer<rename_dialog> answer([&](rename_dialog& dialog) {
        QTRY_COMPARE(dialog.focusWidget()->objectName(), "tableWidget");
        press_key(Qt::Key_Right);
        press_key(Qt::Key_Q); // opens the editor
        press_key(Qt::Key_Return);
        QTRY_COMPARE(dialog.focusWidget()->objectName(), "tableWidget");
        press_key(Qt::Key_Return);
    });
    press_key(Qt::Key_Space);
    QCOMPARE(answer.count(), 1);
    QCOMPARE(curves_of(driver->lower).at(0)->title().text(), "q");
}

// The keys zoom in both directions: both of the plot's magnifiers have the same ones.
void tst_keys::zoom()
{
    open("x_K1.wel", node_file(3));
    QVERIFY(tab_to("qwtPlot"));
    const QwtInterval time = driver->lower->axisInterval(QwtAxis::XBottom);
    const QwtInterval values = driver->lower->axisInterval(QwtAxis::YLeft);
    press_key(Qt::Key_Plus, Qt::KeypadModifier); // this one does not count
    QCOMPARE(driver->lower->axisInterval(QwtAxis::XBottom), time);
    press_key(Qt::Key_Plus);
    QVERIFY(driver->lower->axisInterval(QwtAxis::XBottom).width() < time.width());
    QVERIFY(driver->lower->axisInterval(QwtAxis::YLeft).width() < values.width());
    QCOMPARE(driver->upper->axisInterval(QwtAxis::XBottom),
             driver->lower->axisInterval(QwtAxis::XBottom));
    press_key(Qt::Key_Minus);
    QVERIFY(qAbs(driver->lower->axisInterval(QwtAxis::XBottom).width() - time.width()) < 1e-9);
    press_key(Qt::Key_Minus);
    QVERIFY(driver->lower->axisInterval(QwtAxis::XBottom).width() > time.width());
}

void tst_keys::menus_data()
{
    QTest::addColumn<int>("menu");
    QTest::addColumn<int>("entry");
    const auto row = [](const char* action, int menu, int entry) {
        QTest::newRow(action) << menu << entry;
    };
    row("action_oeffnen", 0, 0);
    row("action_speicher", 0, 1);
    row("action_schliessen", 0, 2);
    row("actionOrvan_Information", 1, 0);
    row("actionQt_Licensing_Information", 1, 1);
    row("actionLGPLv3", 1, 2);
    row("actionHandbuch", 2, 0);
}

void tst_keys::menus()
{
    QFETCH(int, menu);
    QFETCH(int, entry);
    const QSignalSpy triggered(driver->window.findChild<QAction*>(QTest::currentDataTag()),
                               &QAction::triggered);
    const modal_answer<QDialog> answer(
        [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    press_alt();
    for (int i = 0; i < menu; ++i)
        press_in_menu(Qt::Key_Right);
    press_in_menu(Qt::Key_Down); // opens the menu, at its first entry
    for (int i = 0; i < entry; ++i)
        press_in_menu(Qt::Key_Down);
    press_in_menu(Qt::Key_Return);
    QCOMPARE(triggered.count(), 1);
}

void tst_keys::saving()
{
    open("x_K1.wel", node_file(3));
    const modal_boxes boxes;
    press_alt();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
        press_in_menu(key);
    QCOMPARE(boxes.shown().size(), 1);
    QVERIFY(QFile::exists(driver->folder.filePath("x_K1.png")));
}

QTEST_MAIN(tst_keys)
#include "tst_keys.moc"
