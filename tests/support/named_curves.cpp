#include "tests/support/named_curves.h"

#include <qwt_plot.h>
#include <qwt_plot_curve.h>

#include <QHash>
#include <QListWidget>
#include <QPushButton>

QByteArray basin_table()
{
    QByteArray bytes;
    for (int n = 1; n <= 4; ++n) {
        const QByteArray first = QByteArray::number(n);
        bytes += "   B" + first + QByteArray(32, ' ') + " 101.50  " + first + ".00        0.000\n" +
                 QByteArray(37, ' ') + " 102.00  9.00  0.50  7.500\n";
    }
    return bytes;
}

QByteArray throttle_curves()
{
    QByteArray bytes;
    for (int n = 1; n <= 4; ++n) {
        const QByteArray first = QByteArray::number(n);
        bytes += " " + first + " Auslass" + first + " km " + first + ".5 GOK = 110 GW = 90\n" +
                 " Wo Qd\n 2\n 101.5 " + first + "\n 102.0 9.5\n\n";
    }
    return bytes;
}

QByteArray named_curves(const QString& file_name)
{
    return file_name.endsWith("dkl") ? throttle_curves() : basin_table();
}

QList<const QwtPlotCurve*> curves_of(const QwtPlot* plot)
{
    QList<const QwtPlotCurve*> curves;
    const auto items = plot->itemList(QwtPlotItem::Rtti_PlotCurve);
    for (const QwtPlotItem* item : items)
        curves.append(dynamic_cast<const QwtPlotCurve*>(item));
    return curves;
}

int drawn_number(const window_driver& driver)
{
    const QList<const QwtPlotCurve*> curves = curves_of(driver.lower);
    return curves.isEmpty() || curves[0]->dataSize() == 0
               ? 0
               : static_cast<int>(curves[0]->sample(0).x());
}

int selected_row(const window_driver& driver)
{
    const QList<QListWidgetItem*> selected = driver.names->selectedItems();
    return selected.size() == 1 ? driver.names->row(selected[0]) : -1;
}

QPushButton* navigation_button(const window_driver& driver, const QString& text)
{
    const QHash<QString, QString> names{{"|<", "pushButton_b_start"},
                                        {"<", "pushButton_b"},
                                        {">", "pushButton_f"},
                                        {">|", "pushButton_f_end"}};
    return driver.window.findChild<QPushButton*>(names[text]);
}
