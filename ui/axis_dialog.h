#pragma once

#include <QDialog>
#include <QList>

#include <memory>

namespace Ui {
class axis_dialog;
}

/// Shows the range of one axis and lets the user change it. The values are those of the axis, in
/// its own unit, between 0 and 10000000 with three decimals: what lies outside is shown as the
/// nearest of these.
class axis_dialog : public QDialog
{
    Q_OBJECT

public:
    explicit axis_dialog(QWidget* parent);
    ~axis_dialog() override;

    /// Says which axis is shown.
    void set_label(const QString& text);
    void set_min(double value);
    void set_max(double value);
    double get_min() const;
    double get_max() const;

public slots:
    /// The range as it stands in the dialog, minimum first. A minimum above the maximum is allowed.
    QList<double> get_min_max_vals();

signals:
    /// Nothing emits this; whoever shows the dialog asks for the values.
    void pass_min_max(QList<double> min_max);

private:
    std::unique_ptr<Ui::axis_dialog> ui;
    QSize smallest_label;
};
