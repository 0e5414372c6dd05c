#include "ui/mainwindow.h"

#include "plot/korimo_plot.h"
#include "ui/axis_dialog.h"
#include "ui/ui_mainwindow.h"

#include <QDebug>

#include <algorithm>

struct MainWindow::axis_command
{
    axis_slot slot;
    const char* log;
    QStringView label;
    QwtPlot* Ui::MainWindow::* plot;
    QStringView x_axis; ///< empty for the y axis
};

const MainWindow::axis_command& MainWindow::axis_command_of(axis_slot slot)
{
    // clang-format off
    static const axis_command commands[] = {
        {&MainWindow::on_action_y_achse_unten_triggered, "on_action_y_achse unten triggered",
         u"Y-Achse unterer Plot", &Ui::MainWindow::qwtPlot,   u""},
        {&MainWindow::on_actionx_Achse_unten_triggered,  "on_action_x_achse unten triggered",
         u"X-Achse unterer Plot", &Ui::MainWindow::qwtPlot,   u"bottom"},
        {&MainWindow::on_actiony_Achse_oben_triggered,   "on_action_y_achse oben triggered",
         u"Y-Achse oberer Plot",  &Ui::MainWindow::qwtPlot_2, u""},
        {&MainWindow::on_actionx_Achse_oben_triggered,   "on_action_x_achse oben triggered",
         u"X-Achse oberer Plot",  &Ui::MainWindow::qwtPlot_2, u"bottom"},
        // Deliberate: the second axis of the lower plot has the texts of the axis above.
        {&MainWindow::on_action2_X_Achse_unten_triggered, "on_action_x_achse oben triggered",
         u"X-Achse oberer Plot",  &Ui::MainWindow::qwtPlot,   u"top"},
    };
    // clang-format on
    return *std::ranges::find(commands, slot, &axis_command::slot);
}

void MainWindow::on_action_y_achse_unten_triggered()
{
    ask_for_range(&MainWindow::on_action_y_achse_unten_triggered);
}

void MainWindow::on_actionx_Achse_unten_triggered()
{
    ask_for_range(&MainWindow::on_actionx_Achse_unten_triggered);
}

void MainWindow::on_actiony_Achse_oben_triggered()
{
    ask_for_range(&MainWindow::on_actiony_Achse_oben_triggered);
}

void MainWindow::on_actionx_Achse_oben_triggered()
{
    ask_for_range(&MainWindow::on_actionx_Achse_oben_triggered);
}

void MainWindow::on_action2_X_Achse_unten_triggered()
{
    ask_for_range(&MainWindow::on_action2_X_Achse_unten_triggered);
}

void MainWindow::ask_for_range(axis_slot slot)
{
    if (!document_exists)
        return;
    const axis_command& command = axis_command_of(slot);
    qDebug() << command.log;
    QwtPlot* const plot = ui->*command.plot;
    const QString x_axis = command.x_axis.toString();
    const QList<double> shown = x_axis.isEmpty() ? document->get_y_axis_scale(plot)
                                                 : document->get_x_axis_scale(plot, x_axis);
    range_dialog->set_min(shown[0]);
    range_dialog->set_max(shown[1]);
    range_dialog->set_label(command.label.toString());
    // Deliberate: what stands in the dialog counts after "Cancel", too.
    range_dialog->exec();
    applied_range = range_dialog->get_min_max_vals();
    if (x_axis.isEmpty())
        document->set_y_axis_scale(plot, applied_range);
    else
        document->set_x_axis_scale(plot, applied_range, x_axis);
    plot->replot();
}

void MainWindow::set_min_max(QList<double> min_max)
{
    qDebug() << "min max into set: " << min_max;
    applied_range = min_max;
}
