#include "ui/rename_dialog.h"

#include "ui_rename_dialog.h"

rename_dialog::rename_dialog(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::rename_dialog>())
{
    ui->setupUi(this);
}

rename_dialog::~rename_dialog() = default;
