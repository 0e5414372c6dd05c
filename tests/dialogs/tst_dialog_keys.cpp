#include "tests/support/focus_walk.h"
#include "tests/support/rename_driver.h"
#include "ui/axis_dialog.h"
#include "ui/rename_dialog.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

/// The dialogs, used with keys alone.
class tst_dialog_keys : public QObject
{
    Q_OBJECT

private slots:
    void axis_dialog_goes_round();
    void axis_dialog_tells_its_boxes_apart();
    void tab_goes_through_the_cells_and_out_data();
    void tab_goes_through_the_cells_and_out();
    void a_table_just_shown_is_left_behind_its_last_cell();
    void tab_in_an_open_cell_opens_the_next();
    void new_name_by_keys();
};

namespace {

void wait_for_the_focus(QWidget& dialog)
{
    dialog.show();
    dialog.activateWindow();
    QTRY_VERIFY(dialog.focusWidget() && QApplication::focusWidget() == dialog.focusWidget());
}

QString text_or_name_of(const QWidget& widget)
{
    const auto* const button = qobject_cast<const QPushButton*>(&widget);
    return button ? button->text() : widget.objectName();
}

// A cell by its row and column, a button by its text.
QString place_of(const QWidget& widget)
{
    const auto* const table = qobject_cast<const QTableWidget*>(&widget);
    return table ? QString("%1,%2").arg(table->currentRow()).arg(table->currentColumn())
                 : text_or_name_of(widget);
}

} // namespace

void tst_dialog_keys::axis_dialog_goes_round()
{
    axis_dialog dialog(nullptr);
    wait_for_the_focus(dialog);
    QCOMPARE(text_or_name_of(*dialog.focusWidget()), "OK");
    QCOMPARE(walk(Qt::Key_Tab, 4, text_or_name_of),
             (QStringList{"Cancel", "doubleSpinBox", "doubleSpinBox_2", "OK"}));
    QCOMPARE(walk(Qt::Key_Backtab, 4, text_or_name_of),
             (QStringList{"doubleSpinBox_2", "doubleSpinBox", "Cancel", "OK"}));
}

void tst_dialog_keys::axis_dialog_tells_its_boxes_apart()
{
    const axis_dialog dialog(nullptr);
    QCOMPARE(spoken_name_of(*dialog.findChild<QWidget*>("doubleSpinBox")), "Minimum");
    QCOMPARE(spoken_name_of(*dialog.findChild<QWidget*>("doubleSpinBox_2")), "Maximum");
}

void tst_dialog_keys::tab_goes_through_the_cells_and_out_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QStringList>("places");
    const QStringList two{"a", "b"};
    QTest::newRow("on") << two << Qt::Key_Tab << "OK"
                        << QStringList{"Cancel", "0,0", "0,1", "1,0", "1,1", "OK"};
    QTest::newRow("back") << two << Qt::Key_Backtab << "Cancel"
                          << QStringList{"OK", "0,0", "Cancel"};
    QTest::newRow("on, one row") << QStringList{"a"} << Qt::Key_Tab << "OK"
                                 << QStringList{"Cancel", "0,0", "0,1", "OK"};
    QTest::newRow("on, no rows") << QStringList() << Qt::Key_Tab << "OK"
                                 << QStringList{"Cancel", "-1,-1", "OK"};
    QTest::newRow("back, no rows")
        << QStringList() << Qt::Key_Backtab << "OK" << QStringList{"-1,-1", "Cancel", "OK"};
}

void tst_dialog_keys::tab_goes_through_the_cells_and_out()
{
    QFETCH(QStringList, names);
    QFETCH(Qt::Key, key);
    QFETCH(QString, from);
    QFETCH(QStringList, places);
    rename_dialog dialog(nullptr);
    dialog.set_old_names(names);
    wait_for_the_focus(dialog);
    const auto buttons = dialog.findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        if (button->text() == from)
            button->setFocus();
    }
    QCOMPARE(walk(key, places.size(), place_of), places);
}

void tst_dialog_keys::a_table_just_shown_is_left_behind_its_last_cell()
{
    rename_dialog dialog(nullptr);
    dialog.set_old_names({"a", "b"});
    wait_for_the_focus(dialog);
    QCOMPARE(place_of(*dialog.focusWidget()), "0,0");
    QCOMPARE(walk(Qt::Key_Tab, 4, place_of), (QStringList{"0,1", "1,0", "1,1", "OK"}));
    QVERIFY(table_of(dialog).tabKeyNavigation());
    press_key(Qt::Key_Backtab);
    QCOMPARE(walk(Qt::Key_Backtab, 4, place_of), (QStringList{"1,0", "0,1", "0,0", "Cancel"}));
}

// As in any table.
void tst_dialog_keys::tab_in_an_open_cell_opens_the_next()
{
    rename_dialog dialog(nullptr);
    dialog.set_old_names({"a", "b"});
    wait_for_the_focus(dialog);
    press_key(Qt::Key_Right);
    press_key(Qt::Key_Q);
    QVERIFY(open_editor(dialog));
    press_key(Qt::Key_Tab);
    QTRY_COMPARE(table_of(dialog).currentRow(), 1);
    QVERIFY(open_editor(dialog));
    QCOMPARE(texts_of_column(dialog, 1).at(0), "q");
}

void tst_dialog_keys::new_name_by_keys()
{
    rename_dialog dialog(nullptr);
    dialog.set_old_names({"a", "b"});
    wait_for_the_focus(dialog);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Q, Qt::Key_Return})
        press_key(key);
    QTRY_VERIFY(!open_editor(dialog));
    QTRY_COMPARE(QApplication::focusWidget(), &table_of(dialog));
    press_key(Qt::Key_Tab);
    press_key(Qt::Key_Space);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.get_new_names(), (QStringList{"", "q"}));
}

QTEST_MAIN(tst_dialog_keys)
#include "tst_dialog_keys.moc"
