#include "ui/mainwindow.h"

#include "plot/korimo_plot.h"
#include "ui/rename_dialog.h"
#include "ui/ui_mainwindow.h"

void MainWindow::on_actionZeitreihe_change_names_triggered()
{
    if (!document_exists)
        return;
    names_dialog->set_old_names(document->get_curve_names());
    names_dialog->exec();
    const QStringList new_names = names_dialog->get_new_names();
    // Left without "OK" (or without rows): what was typed stays for the next time.
    if (new_names.isEmpty())
        return;
    names_dialog->clear_names();
    document->set_curve_names(new_names);
    ui->qwtPlot->replot();
    ui->qwtPlot_2->replot();
}
