#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class axis_dialog;
}

/// Shows the range of one axis and lets the user change it.
class axis_dialog : public QDialog
{
    Q_OBJECT

public:
    explicit axis_dialog(QWidget* parent);
    ~axis_dialog() override;

private:
    std::unique_ptr<Ui::axis_dialog> ui;
};
