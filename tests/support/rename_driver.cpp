#include "tests/support/rename_driver.h"

#include "ui/rename_dialog.h"

#include <QLineEdit>
#include <QTableWidget>
#include <QTest>

QTableWidget& table_of(const rename_dialog& dialog)
{
    return *dialog.findChild<QTableWidget*>("tableWidget");
}

QLineEdit* open_editor(const rename_dialog& dialog)
{
    const auto editors = table_of(dialog).viewport()->findChildren<QLineEdit*>();
    for (auto* const editor : editors) {
        if (editor->isVisible()) // one that was left before may still wait for its end
            return editor;
    }
    return nullptr;
}

void type_into_cell(const rename_dialog& dialog, int row, int column, const QString& text)
{
    QTableWidget& table = table_of(dialog);
    table.scrollTo(table.model()->index(row, column));
    const QPoint place = table.visualRect(table.model()->index(row, column)).center();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QLineEdit* const editor = open_editor(dialog);
    QVERIFY(editor);
    editor->selectAll();
    QTest::keyClicks(editor, text);
}

void fill_cell(const rename_dialog& dialog, int row, int column, const QString& text)
{
    type_into_cell(dialog, row, column, text);
    table_of(dialog).setCurrentItem(nullptr);
}

QStringList texts_of_column(const rename_dialog& dialog, int column)
{
    QStringList texts;
    for (int row = 0; row < table_of(dialog).rowCount(); ++row) {
        const QTableWidgetItem* const item = table_of(dialog).item(row, column);
        texts.append(item ? item->text() : QString());
    }
    return texts;
}
