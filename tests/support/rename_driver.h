#pragma once

#include <QString>
#include <QStringList>

class QLineEdit;
class QTableWidget;
class rename_dialog;

// The hands of a user on the rename dialog.

QTableWidget& table_of(const rename_dialog& dialog);

/// The editor of the cell that is being edited, or null.
QLineEdit* open_editor(const rename_dialog& dialog);

/// Opens a cell by a double click and types, without leaving it.
void type_into_cell(const rename_dialog& dialog, int row, int column, const QString& text);

/// The same, and leaves the cell.
void fill_cell(const rename_dialog& dialog, int row, int column, const QString& text);

/// The texts of a column, empty where there is no item.
QStringList texts_of_column(const rename_dialog& dialog, int column);
