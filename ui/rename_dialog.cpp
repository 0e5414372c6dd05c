#include "ui/rename_dialog.h"

#include "ui/name_delegate.h"
#include "ui/ui_rename_dialog.h"

rename_dialog::rename_dialog(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::rename_dialog>())
{
    ui->setupUi(this);
    ui->tableWidget->setItemDelegate(new name_delegate(this));
    connect(ui->pushButton, SIGNAL(clicked()), this, SLOT(fetch_all_rows()));
    connect(ui->pushButton_2, SIGNAL(clicked()), this, SLOT(close()));
}

rename_dialog::~rename_dialog() = default;

void rename_dialog::fetch_all_rows()
{
    // A cell that is being edited counts with what has been typed: leaving it stores that.
    ui->tableWidget->setCurrentItem(nullptr);
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        const QTableWidgetItem* const item = ui->tableWidget->item(row, 1);
        new_names.append(item ? item->text() : QString());
    }
    close();
}

void rename_dialog::set_old_names(const QStringList& curve_names)
{
    const int rows = static_cast<int>(curve_names.size());
    ui->tableWidget->setRowCount(rows);
    for (int row = 0; row < rows; ++row)
        ui->tableWidget->setItem(row, 0, new QTableWidgetItem(curve_names[row]));
    ui->tableWidget->update();
}

void rename_dialog::clear_names()
{
    new_names.clear();
    ui->tableWidget->setRowCount(0);
}
