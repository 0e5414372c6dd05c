#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class rename_dialog;
}

/// Lets the user give the plotted curves new names.
class rename_dialog : public QDialog
{
    Q_OBJECT

public:
    explicit rename_dialog(QWidget* parent);
    ~rename_dialog() override;

private:
    std::unique_ptr<Ui::rename_dialog> ui;
};
