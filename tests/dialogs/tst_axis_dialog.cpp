#include "tests/support/log_capture.h"
#include "tests/support/typing.h"
#include "ui/axis_dialog.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <functional>

namespace {

using numbers = QList<double>;

// The dialog with its widgets.
struct shown_dialog
{
    shown_dialog()
        : label(dialog.findChild<QLabel*>("label"))
        , minimum(dialog.findChild<QDoubleSpinBox*>("doubleSpinBox"))
        , maximum(dialog.findChild<QDoubleSpinBox*>("doubleSpinBox_2"))
        , buttons(dialog.findChild<QDialogButtonBox*>("buttonBox"))
    {
        dialog.show();
    }

    axis_dialog dialog{nullptr};
    QLabel* label;
    QDoubleSpinBox* minimum;
    QDoubleSpinBox* maximum;
    QDialogButtonBox* buttons;
};

// Replaces what stands in a spin box, as a user does.
void type(QDoubleSpinBox* box, const QString& text)
{
    box->setFocus();
    box->selectAll();
    type_text(box, text);
}

} // namespace

class tst_axis_dialog : public QObject
{
    Q_OBJECT

private slots:
    void form_data();
    void form();
    void texts();
    void spin_boxes();
    void label_grows_with_its_text_data();
    void label_grows_with_its_text();
    void label_stays_inside_the_dialog();
    void label_is_never_smaller_than_in_the_form();
    void values_data();
    void values();
    void range_is_read_as_it_stands();
    void leaving_data();
    void leaving();
    void log_lines();
    void log_of_ok();
    void typed_value_counts_without_leaving_the_box();
    void arrow_keys_step_by_the_power_of_ten();
};

void tst_axis_dialog::form_data()
{
    QTest::addColumn<QRect>("geometry");
    QTest::newRow("buttonBox") << QRect(10, 200, 301, 32);
    QTest::newRow("label") << QRect(60, 20, 51, 31);
    QTest::newRow("label_2") << QRect(60, 70, 47, 13);
    QTest::newRow("doubleSpinBox") << QRect(60, 90, 191, 22);
    QTest::newRow("label_3") << QRect(60, 130, 47, 13);
    QTest::newRow("doubleSpinBox_2") << QRect(60, 150, 191, 22);
}

void tst_axis_dialog::form()
{
    QFETCH(QRect, geometry);
    const shown_dialog shown;
    const auto* const widget = shown.dialog.findChild<QWidget*>(QTest::currentDataTag());
    QVERIFY(widget && widget->parentWidget() == &shown.dialog);
    QCOMPARE(widget->geometry(), geometry);
    QCOMPARE(shown.dialog.size(), QSize(320, 240));
    QVERIFY(!shown.dialog.layout());
}

void tst_axis_dialog::texts()
{
    const shown_dialog shown;
    QCOMPARE(shown.dialog.objectName(), "axis_dialog");
    QCOMPARE(shown.dialog.windowTitle(), "Achsenskalierung");
    QCOMPARE(shown.label->text(), "Text");
    QCOMPARE(shown.label->font().pointSize(), 12);
    QCOMPARE(shown.label->font().weight(), 700);
    QCOMPARE(shown.label->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(shown.label->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(shown.dialog.findChild<QLabel*>("label_2")->text(), "Minimum:");
    QCOMPARE(shown.dialog.findChild<QLabel*>("label_3")->text(), "Maximum"); // without a colon
}

void tst_axis_dialog::spin_boxes()
{
    const shown_dialog shown;
    for (const QDoubleSpinBox* box : {shown.minimum, shown.maximum}) {
        QCOMPARE(box->decimals(), 3);
        QCOMPARE(box->minimum(), 0.0);
        QCOMPARE(box->maximum(), 1e7);
        QCOMPARE(box->stepType(), QAbstractSpinBox::AdaptiveDecimalStepType);
    }
    QCOMPARE(shown.buttons->orientation(), Qt::Horizontal);
    QCOMPARE(shown.buttons->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
}

void tst_axis_dialog::label_grows_with_its_text_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("short") << "Y";
    QTest::newRow("y axis") << "Y-Achse unterer Plot";
    QTest::newRow("x axis") << "X-Achse oberer Plot";
}

void tst_axis_dialog::label_grows_with_its_text()
{
    QFETCH(QString, text);
    shown_dialog shown;
    for (const QString& each : {QString("Y-Achse unterer Plot"), text}) { // it shrinks again, too
        shown.dialog.set_label(each);
        QCOMPARE(shown.label->text(), each);
        QCOMPARE(shown.label->pos(), QPoint(60, 20));
        const QSize wanted = shown.label->sizeHint().expandedTo(QSize(51, 31));
        QCOMPARE(shown.label->size(), wanted);
        QVERIFY(shown.dialog.rect().contains(shown.label->geometry()));
    }
}

void tst_axis_dialog::label_stays_inside_the_dialog()
{
    shown_dialog shown;
    shown.dialog.set_label(QString(100, 'W') + "\n1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12\n13\n14");
    QCOMPARE(shown.label->geometry(), QRect(60, 20, 260, 220));
}

void tst_axis_dialog::label_is_never_smaller_than_in_the_form()
{
    shown_dialog shown;
    for (const int width : {100, 61, 40}) {
        shown.dialog.resize(width, 240);
        shown.dialog.set_label("X-Achse oberer Plot");
        QCOMPARE(shown.label->geometry(), QRect(60, 20, 51, 31));
    }
}

void tst_axis_dialog::values_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("expected");
    QTest::newRow("inside") << 12.5 << 12.5;
    QTest::newRow("rounded up") << 12.34567 << 12.346;
    QTest::newRow("rounded down") << 0.0004 << 0.0;
    QTest::newRow("negative") << -2.0 << 0.0;
    QTest::newRow("largest") << 1e7 << 1e7;
    QTest::newRow("too large") << 2.5e7 << 1e7;
}

void tst_axis_dialog::values()
{
    QFETCH(double, value);
    QFETCH(double, expected);
    shown_dialog shown;
    shown.dialog.set_min(value);
    QCOMPARE(shown.minimum->value(), expected);
    QCOMPARE(shown.maximum->value(), 0.0);
    shown.dialog.set_max(value);
    QCOMPARE(shown.maximum->value(), expected);
    QCOMPARE(shown.dialog.get_min(), expected);
    QCOMPARE(shown.dialog.get_max(), expected);
}

void tst_axis_dialog::range_is_read_as_it_stands()
{
    shown_dialog shown;
    shown.dialog.set_min(8);
    shown.dialog.set_max(2);
    QCOMPARE(shown.dialog.get_min_max_vals(), (numbers{8, 2}));
}

void tst_axis_dialog::leaving_data()
{
    QTest::addColumn<std::function<void(shown_dialog&)>>("leave");
    QTest::addColumn<int>("result");
    const auto row = [](const char* name, const std::function<void(shown_dialog&)>& leave,
                        int result) { QTest::newRow(name) << leave << result; };
    const auto press = [](QDialogButtonBox::StandardButton which) {
        return [which](shown_dialog& shown) {
            QTest::mouseClick(shown.buttons->button(which), Qt::LeftButton);
        };
    };
    row("OK", press(QDialogButtonBox::Ok), QDialog::Accepted);
    row("Cancel", press(QDialogButtonBox::Cancel), QDialog::Rejected);
    row(
        "Escape", [](shown_dialog& shown) { QTest::keyClick(&shown.dialog, Qt::Key_Escape); },
        QDialog::Rejected);
    row(
        "Enter", [](shown_dialog& shown) { QTest::keyClick(shown.minimum, Qt::Key_Enter); },
        QDialog::Accepted);
    row("closed", [](shown_dialog& shown) { shown.dialog.close(); }, QDialog::Rejected);
}

void tst_axis_dialog::leaving()
{
    QFETCH(std::function<void(shown_dialog&)>, leave);
    QFETCH(int, result);
    shown_dialog shown;
    const QSignalSpy finished(&shown.dialog, &QDialog::finished);
    const QSignalSpy passed(&shown.dialog, SIGNAL(pass_min_max(QList<double>)));
    leave(shown);
    QVERIFY(!shown.dialog.isVisible());
    QCOMPARE(finished.size(), 1);
    QCOMPARE(shown.dialog.result(), result);
    QVERIFY(passed.isValid() && passed.isEmpty());
}

void tst_axis_dialog::log_lines()
{
    shown_dialog shown;
    const log_capture log;
    shown.dialog.set_min(-2);
    shown.dialog.set_max(2.5e7);
    QCOMPARE(log_capture::debug_lines(),
             (QStringList{"setting min:  -2", "setting max:  2.5e+07"}));
    shown.dialog.get_min();
    shown.dialog.get_max();
    QCOMPARE(log_capture::debug_lines().mid(2), (QStringList{"returning min", "returning max"}));
    shown.dialog.get_min_max_vals();
    QCOMPARE(
        log_capture::debug_lines().mid(4),
        (QStringList{"returning min", "returning max", "min: 0", "max: 1e+07", "QList(0, 1e+07)"}));
}

// "OK" reads the values once by itself; "Cancel" does not.
void tst_axis_dialog::log_of_ok()
{
    shown_dialog shown;
    const log_capture log;
    shown.dialog.reject();
    QVERIFY(log_capture::debug_lines().isEmpty());
    shown.dialog.accept();
    QCOMPARE(log_capture::debug_lines(),
             (QStringList{"returning min", "returning max", "min: 0", "max: 0", "QList(0, 0)"}));
}

void tst_axis_dialog::typed_value_counts_without_leaving_the_box()
{
    shown_dialog shown;
    type(shown.minimum, "5");
    const QString point = QLocale().decimalPoint();
    type(shown.maximum, "50" + point + "1234");
    QCOMPARE(shown.dialog.get_min_max_vals(), (numbers{5, 50.123})); // the 4th decimal is refused
    type(shown.minimum, "-");                                        // so is the sign
    QCOMPARE(shown.dialog.get_min(), 5.0);
}

void tst_axis_dialog::arrow_keys_step_by_the_power_of_ten()
{
    shown_dialog shown;
    shown.dialog.set_max(150);
    QTest::keyClick(shown.maximum, Qt::Key_Up);
    QCOMPARE(shown.maximum->value(), 160.0);
    shown.dialog.set_min(0.5);
    QTest::keyClick(shown.minimum, Qt::Key_Down);
    QCOMPARE(shown.minimum->value(), 0.49);
}

QTEST_MAIN(tst_axis_dialog)
#include "tst_axis_dialog.moc"
