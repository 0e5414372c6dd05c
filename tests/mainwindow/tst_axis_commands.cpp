#include "plot/korimo_plot.h"
#include "tests/support/log_capture.h"
#include "tests/support/modal_answer.h"
#include "tests/support/typing.h"
#include "tests/support/window_driver.h"
#include "ui/axis_dialog.h"

#include <qwt_interval.h>
#include <qwt_plot.h>
#include <qwt_scale_div.h>

#include <QAction>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {

using numbers = QList<double>;

// What one showing of the dialog showed.
struct showing
{
    QString label;
    double minimum = -1.0;
    double maximum = -1.0;
    bool modal = false;
};

QDoubleSpinBox* box(const axis_dialog& dialog, const char* name)
{
    return dialog.findChild<QDoubleSpinBox*>(name);
}

void press(const axis_dialog& dialog, QDialogButtonBox::StandardButton which)
{
    const auto* const buttons = dialog.findChild<QDialogButtonBox*>("buttonBox");
    QTest::mouseClick(buttons->button(which), Qt::LeftButton);
}

// Triggers a command and notes what its dialog shows; `then` closes the dialog.
QList<showing> trigger(const window_driver& driver, const QString& action,
                       const std::function<void(axis_dialog&)>& then)
{
    QList<showing> showings;
    const modal_answer<axis_dialog> answer([&](axis_dialog& dialog) {
        showings.append({dialog.findChild<QLabel*>("label")->text(),
                         box(dialog, "doubleSpinBox")->value(),
                         box(dialog, "doubleSpinBox_2")->value(), dialog.isModal()});
        then(dialog);
    });
    driver.window.findChild<QAction*>(action)->trigger();
    return showings;
}

void cancel(const axis_dialog& dialog)
{
    press(dialog, QDialogButtonBox::Cancel);
}

void type(QDoubleSpinBox& which, double value)
{
    QTest::mouseDClick(which.findChild<QLineEdit*>(), Qt::LeftButton);
    which.selectAll();
    type_text(&which, QLocale().toString(value, 'f', 1));
}

// Types both bounds and clicks on "OK".
std::function<void(axis_dialog&)> enter(double minimum, double maximum)
{
    return [=](axis_dialog& dialog) {
        type(*box(dialog, "doubleSpinBox"), minimum);
        type(*box(dialog, "doubleSpinBox_2"), maximum);
        press(dialog, QDialogButtonBox::Ok);
    };
}

// The ranges of all five axes that can be fixed, in the order of the table of commands.
QList<QwtInterval> ranges(const window_driver& driver)
{
    return {
        driver.lower->axisInterval(QwtAxis::YLeft), driver.lower->axisInterval(QwtAxis::XBottom),
        driver.upper->axisInterval(QwtAxis::YLeft), driver.upper->axisInterval(QwtAxis::XBottom),
        driver.lower->axisInterval(QwtAxis::XTop)};
}

struct flags
{
    explicit flags(korimo_plot& document)
        : x_bottom(document.get_x_bottom_status())
        , x_top(document.get_x_top_status())
        , y_bottom(document.get_y_bottom_status())
        , y_top(document.get_y_top_status())
    {
    }
    bool x_bottom, x_top, y_bottom, y_top;
};

void add_commands()
{
    QTest::addColumn<int>("axis");
    QTest::addColumn<QString>("log");
    QTest::addColumn<QString>("label");
    const auto row = [](const char* action, int axis, const char* log, const char* label) {
        QTest::newRow(action) << axis << QString(log) << QString(label);
    };
    row("action_y_achse_unten", 0, "on_action_y_achse unten triggered", "Y-Achse unterer Plot");
    row("actionx_Achse_unten", 1, "on_action_x_achse unten triggered", "X-Achse unterer Plot");
    row("actiony_Achse_oben", 2, "on_action_y_achse oben triggered", "Y-Achse oberer Plot");
    row("actionx_Achse_oben", 3, "on_action_x_achse oben triggered", "X-Achse oberer Plot");
    row("action2_X_Achse_unten", 4, "on_action_x_achse oben triggered", "X-Achse oberer Plot");
}

} // namespace

class tst_axis_commands : public QObject
{
    Q_OBJECT

private slots:
    void without_a_document_data();
    void without_a_document();
    void range_is_shown_and_fixed_data();
    void range_is_shown_and_fixed();
    void log_of_a_command_data();
    void log_of_a_command();
    void cancel_applies_what_is_shown();
    void escape_applies_what_was_entered();
    void values_are_rounded_and_clamped();
    void minimum_above_maximum();
    void lower_time_axis_takes_the_upper_along();
    void range_outlives_a_change_of_file();
    void dialog_shows_the_axis_of_the_command();
    void empty_document();
    void set_min_max();
};

void tst_axis_commands::without_a_document_data()
{
    add_commands();
}

void tst_axis_commands::without_a_document()
{
    window_driver driver;
    const log_capture log;
    const QList<showing> showings = trigger(driver, QTest::currentDataTag(), &cancel);
    QVERIFY(showings.isEmpty());
    QVERIFY(log_capture::debug_lines().isEmpty());
}

void tst_axis_commands::range_is_shown_and_fixed_data()
{
    add_commands();
}

void tst_axis_commands::range_is_shown_and_fixed()
{
    QFETCH(int, axis);
    QFETCH(QString, label);
    window_driver driver;
    driver.open("x_K.wel", node_file(9));
    QList<QwtInterval> expected = ranges(driver);
    const QList<showing> showings = trigger(driver, QTest::currentDataTag(), enter(2, 30.5));
    QCOMPARE(showings.size(), 1);
    QCOMPARE(showings[0].label, label);
    QCOMPARE(showings[0].minimum, expected[axis].minValue());
    QCOMPARE(showings[0].maximum, expected[axis].maxValue());
    QVERIFY(showings[0].modal);
    expected[axis] = QwtInterval(2, 30.5);
    if (axis == 1) // the coupling of the time axes
        expected[3] = expected[1];
    QCOMPARE(ranges(driver), expected);
    const flags set(*driver.window.shown_document());
    QCOMPARE(set.x_bottom, axis == 1 || axis == 3);
    QCOMPARE(set.x_top, axis == 4);
    QCOMPARE(set.y_bottom, axis == 0 || axis == 2);
    QVERIFY(!set.y_top);
    QVERIFY(!driver.lower->isAxisVisible(QwtAxis::XTop));
}

void tst_axis_commands::log_of_a_command_data()
{
    add_commands();
}

void tst_axis_commands::log_of_a_command()
{
    QFETCH(int, axis);
    QFETCH(QString, log);
    window_driver driver;
    driver.open("x_K.wel", node_file(9));
    const QwtInterval shown = ranges(driver).at(axis);
    const log_capture captured;
    trigger(driver, QTest::currentDataTag(), enter(5, 50));
    const QStringList reading{"returning min", "returning max", "min: 5", "max: 50",
                              "QList(5, 50)"};
    const QStringList lines = log_capture::debug_lines();
    QCOMPARE(lines.value(0), log);
    QCOMPARE(lines.value(1), QString("setting min:  %1").arg(shown.minValue()));
    QCOMPARE(lines.value(2), QString("setting max:  %1").arg(shown.maxValue()));
    QCOMPARE(lines.mid(3), reading + reading); // once by "OK", once by the command
}

void tst_axis_commands::cancel_applies_what_is_shown()
{
    window_driver driver;
    driver.open("x_K.wel", node_file(9));
    driver.lower->setAxisScale(QwtAxis::YLeft, -2, 8);
    driver.lower->replot();
    const QList<showing> showings = trigger(driver, "action_y_achse_unten", &cancel);
    QCOMPARE(showings[0].minimum, 0.0);
    QCOMPARE(showings[0].maximum, 8.0);
    QCOMPARE(ranges(driver).at(0), QwtInterval(0, 8));
    QVERIFY(driver.window.shown_document()->get_y_bottom_status());
    QVERIFY(!driver.lower->axisAutoScale(QwtAxis::YLeft));
}

void tst_axis_commands::escape_applies_what_was_entered()
{
    window_driver driver;
    driver.open("x_K.wel", node_file(9));
    trigger(driver, "actiony_Achse_oben", [](axis_dialog& dialog) {
        type(*box(dialog, "doubleSpinBox_2"), 12);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    QCOMPARE(ranges(driver).at(2), QwtInterval(0, 12));
}

void tst_axis_commands::values_are_rounded_and_clamped()
{
    window_driver driver;
    driver.open("x_K.wel", node_file(9));
    driver.upper->setAxisScale(QwtAxis::YLeft, 12.34567, 2.5e7);
    driver.upper->replot();
    const QList<showing> showings = trigger(driver, "actiony_Achse_oben", &cancel);
    QCOMPARE(showings[0].minimum, 12.346);
    QCOMPARE(showings[0].maximum, 1e7);
    QCOMPARE(ranges(driver).at(2), QwtInterval(12.346, 1e7));
}

void tst_axis_commands::minimum_above_maximum()
{
    window_driver driver;
    driver.open("x_K.wel", node_file(9));
    trigger(driver, "action_y_achse_unten", enter(50, 5));
    const QwtScaleDiv& scale = driver.lower->axisScaleDiv(QwtAxis::YLeft);
    QCOMPARE(scale.lowerBound(), 50.0);
    QCOMPARE(scale.upperBound(), 5.0);
    const QList<showing> again = trigger(driver, "action_y_achse_unten", &cancel);
    QCOMPARE(again[0].minimum, 50.0);
    QCOMPARE(again[0].maximum, 5.0);
}

void tst_axis_commands::lower_time_axis_takes_the_upper_along()
{
    window_driver driver;
    driver.open("x_K.wel", node_file(9));
    trigger(driver, "actionx_Achse_unten", enter(5, 50));
    QCOMPARE(ranges(driver).at(1), QwtInterval(5, 50));
    QCOMPARE(ranges(driver).at(3), QwtInterval(5, 50));
    trigger(driver, "actionx_Achse_oben", enter(10, 20));
    QCOMPARE(ranges(driver).at(1), QwtInterval(5, 50));
    QCOMPARE(ranges(driver).at(3), QwtInterval(10, 20));
}

void tst_axis_commands::range_outlives_a_change_of_file()
{
    window_driver driver;
    driver.open("a_K.wel", node_file(9));
    trigger(driver, "action_y_achse_unten", enter(5, 50));
    driver.open("b_K.wel", node_file(90));
    QCOMPARE(ranges(driver).at(0), QwtInterval(5, 50));
    driver.press(driver.button); // "Clear"
    driver.press(driver.button);
    QCOMPARE(ranges(driver).at(0), QwtInterval(1, 90));
}

void tst_axis_commands::dialog_shows_the_axis_of_the_command()
{
    window_driver driver;
    driver.open("x_K.wel", node_file(9));
    trigger(driver, "action_y_achse_unten", enter(5, 50));
    const QList<showing> showings = trigger(driver, "actionx_Achse_unten", &cancel);
    QCOMPARE(showings[0].label, "X-Achse unterer Plot");
    QCOMPARE(showings[0].minimum, 0.0);
    QCOMPARE(showings[0].maximum, 72.0);
}

// After "Read" there is a document that draws nothing yet.
void tst_axis_commands::empty_document()
{
    window_driver driver;
    driver.open("x.bek", "   B1" + QByteArray(32, ' ') + " 101.50  1.00        0.000\n");
    const QList<showing> showings = trigger(driver, "action_y_achse_unten", enter(5, 50));
    QCOMPARE(showings.size(), 1);
    QCOMPARE(ranges(driver).at(0), QwtInterval(5, 50));
}

void tst_axis_commands::set_min_max()
{
    window_driver driver;
    const log_capture log;
    driver.window.set_min_max({1.5, 2});
    QCOMPARE(log_capture::debug_lines(), QStringList{"min max into set:  QList(1.5, 2)"});
}

QTEST_MAIN(tst_axis_commands)
#include "tst_axis_commands.moc"
