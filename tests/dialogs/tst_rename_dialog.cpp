#include "tests/support/rename_driver.h"
#include "ui/rename_dialog.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>

#include <functional>

namespace {

// The dialog with its widgets and the hands of a user.
struct shown_dialog
{
    shown_dialog()
        : table(dialog.findChild<QTableWidget*>("tableWidget"))
        , ok(dialog.findChild<QPushButton*>("pushButton"))
        , cancel(dialog.findChild<QPushButton*>("pushButton_2"))
    {
        dialog.show();
        dialog.activateWindow();
    }

    rename_dialog dialog{nullptr};
    QTableWidget* table;
    QPushButton* ok;
    QPushButton* cancel;
};

QStringList old_names()
{
    return {"Qein", "Qab", "V", "QG"};
}

} // namespace

class tst_rename_dialog : public QObject
{
    Q_OBJECT

private slots:
    void form_data();
    void form();
    void texts();
    void headers();
    void headers_of_an_empty_table();
    void one_row_for_each_name();
    void name_without_end();
    void old_names_can_be_edited_without_effect();
    void nothing_typed();
    void one_name_typed();
    void blanks_belong_to_a_name();
    void cell_being_edited_counts_data();
    void cell_being_edited_counts();
    void enter_in_a_cell_keeps_the_dialog_open();
    void leaving_without_ok_data();
    void leaving_without_ok();
    void typed_names_stay_for_the_next_time();
    void names_add_up_until_they_are_cleared();
    void clearing();
    void fewer_names_than_before();
    void no_names();
};

void tst_rename_dialog::form_data()
{
    QTest::addColumn<QRect>("geometry");
    QTest::newRow("tableWidget") << QRect(10, 10, 381, 231);
    QTest::newRow("pushButton") << QRect(230, 260, 80, 21);
    QTest::newRow("pushButton_2") << QRect(310, 260, 80, 21);
}

void tst_rename_dialog::form()
{
    QFETCH(QRect, geometry);
    const shown_dialog shown;
    const auto* const widget = shown.dialog.findChild<QWidget*>(QTest::currentDataTag());
    QVERIFY(widget && widget->parentWidget() == &shown.dialog);
    QCOMPARE(widget->geometry(), geometry);
    QCOMPARE(shown.dialog.size(), QSize(396, 292));
    QVERIFY(!shown.dialog.layout());
}

void tst_rename_dialog::texts()
{
    const shown_dialog shown;
    QCOMPARE(shown.dialog.objectName(), "rename_dialog");
    QCOMPARE(shown.dialog.windowTitle(), "Zeitreihen umbenennen");
    QCOMPARE(shown.ok->text(), "OK");
    QCOMPARE(shown.cancel->text(), "Cancel");
    QCOMPARE(shown.table->columnCount(), 2);
    QCOMPARE(shown.table->rowCount(), 0);
    QCOMPARE(shown.table->horizontalHeaderItem(0)->text(), "Alter Name");
    QCOMPARE(shown.table->horizontalHeaderItem(1)->text(), "Neuer Name");
}

// Cells stand below one header and beside the other, which are laid out once they are shown.
void tst_rename_dialog::headers()
{
    for (const bool shown_before : {false, true}) {
        rename_dialog dialog(nullptr);
        if (shown_before)
            dialog.show();
        dialog.set_old_names(old_names());
        dialog.show();
        const auto* const table = dialog.findChild<QTableWidget*>("tableWidget");
        const QHeaderView& columns = *table->horizontalHeader();
        const QHeaderView& rows = *table->verticalHeader();
        QTRY_VERIFY(rows.width() > 5);
        QVERIFY(columns.height() > 10);
        QCOMPARE(table->viewport()->geometry().topLeft(),
                 QPoint(rows.geometry().right() + 1, columns.geometry().bottom() + 1));
    }
}

void tst_rename_dialog::headers_of_an_empty_table()
{
    shown_dialog shown;
    for (int times = 0; times < 2; ++times) {
        const QHeaderView& columns = *shown.table->horizontalHeader();
        QVERIFY(columns.height() > 10);
        QCOMPARE(shown.table->viewport()->y(), columns.geometry().bottom() + 1);
        shown.dialog.hide();
        shown.dialog.set_old_names(old_names());
        shown.dialog.clear_names();
        shown.dialog.show();
    }
}

void tst_rename_dialog::one_row_for_each_name()
{
    shown_dialog shown;
    shown.dialog.set_old_names(old_names());
    QCOMPARE(texts_of_column(shown.dialog, 0), old_names());
    QCOMPARE(texts_of_column(shown.dialog, 1), QStringList(4, ""));
    QCOMPARE(shown.table->item(0, 0)->flags(), QTableWidgetItem().flags());
    QCOMPARE(shown.table->item(0, 0)->type(), 0);
}

// To lay out all of it would take seconds, each time it is drawn; only its start is shown.
void tst_rename_dialog::name_without_end()
{
    shown_dialog shown;
    const QString name(20'000, 'x');
    shown.dialog.set_old_names({name.first(10'000)});
    shown.table->resizeColumnToContents(0);
    const int width = shown.table->columnWidth(0);
    QVERIFY(width > 10'000);
    shown.dialog.set_old_names({name});
    shown.table->resizeColumnToContents(0);
    QCOMPARE(shown.table->columnWidth(0), width);
    QCOMPARE(shown.table->item(0, 0)->text(), name);
}

void tst_rename_dialog::old_names_can_be_edited_without_effect()
{
    shown_dialog shown;
    shown.dialog.set_old_names(old_names());
    fill_cell(shown.dialog, 1, 0, "edited");
    QCOMPARE(texts_of_column(shown.dialog, 0).at(1), "edited");
    QTest::mouseClick(shown.ok, Qt::LeftButton);
    QCOMPARE(shown.dialog.get_new_names(), QStringList(4, ""));
}

void tst_rename_dialog::nothing_typed()
{
    shown_dialog shown;
    const QSignalSpy passed(&shown.dialog, SIGNAL(pass_curve_names(QStringList)));
    shown.dialog.set_old_names(old_names());
    QTest::mouseClick(shown.ok, Qt::LeftButton);
    QVERIFY(!shown.dialog.isVisible());
    QCOMPARE(shown.dialog.get_new_names(), QStringList(4, ""));
    QVERIFY(passed.isValid() && passed.isEmpty());
}

void tst_rename_dialog::one_name_typed()
{
    shown_dialog shown;
    shown.dialog.set_old_names(old_names());
    fill_cell(shown.dialog, 1, 1, "Q Überlauf");
    QTest::mouseClick(shown.ok, Qt::LeftButton);
    QCOMPARE(shown.dialog.get_new_names(), (QStringList{"", "Q Überlauf", "", ""}));
}

void tst_rename_dialog::blanks_belong_to_a_name()
{
    shown_dialog shown;
    shown.dialog.set_old_names(old_names());
    fill_cell(shown.dialog, 0, 1, "  Q  ");
    QTest::mouseClick(shown.ok, Qt::LeftButton);
    QCOMPARE(shown.dialog.get_new_names().at(0), "  Q  ");
}

void tst_rename_dialog::cell_being_edited_counts_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("by_mouse");
    for (const int row : {0, 3}) {
        QTest::addRow("row %d, clicked", row) << row << true;
        QTest::addRow("row %d, without the mouse", row) << row << false;
    }
}

void tst_rename_dialog::cell_being_edited_counts()
{
    QFETCH(int, row);
    QFETCH(bool, by_mouse);
    shown_dialog shown;
    shown.dialog.set_old_names(old_names());
    type_into_cell(shown.dialog, row, 1, "still open");
    if (by_mouse)
        QTest::mouseClick(shown.ok, Qt::LeftButton);
    else
        shown.ok->click(); // takes no focus away from the cell
    QCOMPARE(shown.dialog.get_new_names().at(row), "still open");
}

void tst_rename_dialog::enter_in_a_cell_keeps_the_dialog_open()
{
    shown_dialog shown;
    shown.dialog.set_old_names(old_names());
    type_into_cell(shown.dialog, 2, 1, "new");
    QTest::keyClick(open_editor(shown.dialog), Qt::Key_Return);
    QTRY_VERIFY(!open_editor(shown.dialog));
    QVERIFY(shown.dialog.isVisible());
    QCOMPARE(texts_of_column(shown.dialog, 1), (QStringList{"", "", "new", ""}));
}

void tst_rename_dialog::leaving_without_ok_data()
{
    QTest::addColumn<std::function<void(shown_dialog&)>>("leave");
    const auto row = [](const char* name, const std::function<void(shown_dialog&)>& leave) {
        QTest::newRow(name) << leave;
    };
    row("Cancel", [](shown_dialog& shown) { QTest::mouseClick(shown.cancel, Qt::LeftButton); });
    row("Escape", [](shown_dialog& shown) { QTest::keyClick(&shown.dialog, Qt::Key_Escape); });
    row("closed", [](shown_dialog& shown) { shown.dialog.close(); });
}

void tst_rename_dialog::leaving_without_ok()
{
    QFETCH(std::function<void(shown_dialog&)>, leave);
    shown_dialog shown;
    shown.dialog.set_old_names(old_names());
    fill_cell(shown.dialog, 1, 1, "new");
    leave(shown);
    QVERIFY(!shown.dialog.isVisible());
    QVERIFY(shown.dialog.get_new_names().isEmpty());
    QCOMPARE(shown.table->rowCount(), 4);
    QCOMPARE(texts_of_column(shown.dialog, 1).at(1), "new");
}

void tst_rename_dialog::typed_names_stay_for_the_next_time()
{
    shown_dialog shown;
    shown.dialog.set_old_names(old_names());
    fill_cell(shown.dialog, 1, 1, "new");
    QTest::mouseClick(shown.cancel, Qt::LeftButton);
    shown.dialog.set_old_names({"a", "b", "c"});
    shown.dialog.show();
    QCOMPARE(texts_of_column(shown.dialog, 0), (QStringList{"a", "b", "c"}));
    QCOMPARE(texts_of_column(shown.dialog, 1), (QStringList{"", "new", ""}));
    QTest::mouseClick(shown.ok, Qt::LeftButton);
    QCOMPARE(shown.dialog.get_new_names(), (QStringList{"", "new", ""}));
}

void tst_rename_dialog::names_add_up_until_they_are_cleared()
{
    shown_dialog shown;
    shown.dialog.set_old_names({"a", "b"});
    fill_cell(shown.dialog, 0, 1, "new");
    shown.dialog.fetch_all_rows();
    shown.dialog.fetch_all_rows();
    QCOMPARE(shown.dialog.get_new_names(), (QStringList{"new", "", "new", ""}));
}

void tst_rename_dialog::clearing()
{
    shown_dialog shown;
    shown.dialog.set_old_names(old_names());
    fill_cell(shown.dialog, 0, 1, "new");
    QTest::mouseClick(shown.ok, Qt::LeftButton);
    shown.dialog.clear_names();
    QVERIFY(shown.dialog.get_new_names().isEmpty());
    QCOMPARE(shown.table->rowCount(), 0);
    shown.dialog.set_old_names(old_names());
    QCOMPARE(texts_of_column(shown.dialog, 1), QStringList(4, ""));
}

void tst_rename_dialog::fewer_names_than_before()
{
    shown_dialog shown;
    shown.dialog.set_old_names(old_names());
    fill_cell(shown.dialog, 3, 1, "new");
    shown.dialog.set_old_names({"a", "b"});
    shown.dialog.set_old_names(old_names());
    QCOMPARE(texts_of_column(shown.dialog, 1), QStringList(4, ""));
}

void tst_rename_dialog::no_names()
{
    shown_dialog shown;
    shown.dialog.set_old_names({});
    QTest::mouseClick(shown.ok, Qt::LeftButton);
    QVERIFY(!shown.dialog.isVisible());
    QVERIFY(shown.dialog.get_new_names().isEmpty());
}

QTEST_MAIN(tst_rename_dialog)
#include "tst_rename_dialog.moc"
