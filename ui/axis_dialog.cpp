#include "ui/axis_dialog.h"

#include "ui_axis_dialog.h"

axis_dialog::axis_dialog(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::axis_dialog>())
{
    ui->setupUi(this);
}

axis_dialog::~axis_dialog() = default;
