#include "ui/axis_dialog.h"

#include "ui/ui_axis_dialog.h"

#include <QDebug>

axis_dialog::axis_dialog(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::axis_dialog>())
{
    ui->setupUi(this);
    smallest_label = ui->label->size();
    connect(this, SIGNAL(accepted()), this, SLOT(get_min_max_vals()));
}

axis_dialog::~axis_dialog() = default;

// The form's label is narrower than the names of the axes: it grows with them, up to the edge of
// the dialog.
void axis_dialog::set_label(const QString& text)
{
    ui->label->setText(text);
    const QSize room(width() - ui->label->x(), height() - ui->label->y());
    ui->label->resize(ui->label->sizeHint().boundedTo(room).expandedTo(smallest_label));
}

void axis_dialog::set_min(double value)
{
    ui->doubleSpinBox->setValue(value);
    qDebug() << "setting min: " << value;
}

void axis_dialog::set_max(double value)
{
    ui->doubleSpinBox_2->setValue(value);
    qDebug() << "setting max: " << value;
}

double axis_dialog::get_min() const
{
    qDebug() << "returning min";
    return ui->doubleSpinBox->value();
}

double axis_dialog::get_max() const
{
    qDebug() << "returning max";
    return ui->doubleSpinBox_2->value();
}

QList<double> axis_dialog::get_min_max_vals()
{
    const QList<double> min_max{get_min(), get_max()};
    qDebug() << "min:" << min_max[0];
    qDebug() << "max:" << min_max[1];
    qDebug() << min_max;
    return min_max;
}
