#pragma once

#include <QDialog>
#include <QStringList>

#include <memory>

namespace Ui {
class rename_dialog;
}

/// Lets the user give the plotted curves new names: a table with the old names in its first column,
/// and the new ones to be typed into the second.
class rename_dialog : public QDialog
{
    Q_OBJECT

public:
    explicit rename_dialog(QWidget* parent);
    ~rename_dialog() override;

    /// Makes one row for each name. Texts already typed into the second column stay.
    void set_old_names(const QStringList& curve_names);
    /// What "OK" has collected since `clear_names`: one entry for each row, empty where nothing was
    /// typed. None if there are no rows, or the dialog was left by other ways.
    QStringList get_new_names() const { return new_names; }
    /// Forgets what was collected, and all rows.
    void clear_names();

signals:
    /// Nothing emits this; whoever shows the dialog asks for the names.
    void pass_curve_names(QStringList curve_names);

public slots:
    /// Collects the second column and closes the dialog.
    void fetch_all_rows();

private:
    std::unique_ptr<Ui::rename_dialog> ui;
    QStringList new_names;
};
