#include "ui/mainwindow.h"

#include "plot/korimo_plot.h"
#include "plot/reading/file_kind.h"
#include "ui/ui_mainwindow.h"

void MainWindow::plotDKl_Clicked()
{
    if (is_behind_a_dialog())
        return;
    const QList<QListWidgetItem*> selected = ui->listWidget_2->selectedItems();
    if (selected.size() != 1) {
        show_selection_error(box_buttons::ok_only);
        return;
    }
    destroy_document();
    ui->qwtPlot->replot();
    selected_item_name = selected.first()->text();
    replace_document();
    read_selected_name();
    document->plot_the_curves(ui->qwtPlot, ui->qwtPlot_2);
}

void MainWindow::read_selected_name()
{
    struct reader
    {
        file_kind kind;
        void (korimo_plot::*read)(QString path, QString name);
    };
    constexpr reader readers[] = {
        {file_kind::dkl, &korimo_plot::read_DKL},
        {file_kind::bek, &korimo_plot::read_BEK},
    };
    for (const reader& each : readers) {
        if (each.kind == file_kind_of(current_file_path))
            (document->*each.read)(current_file_path, selected_item_name);
    }
}

// A row that does not exist selects nothing, so plotting then shows the selection error.
void MainWindow::plot_name_in_row(int row)
{
    ui->listWidget_2->setCurrentRow(row);
    plotDKl_Clicked();
}

void MainWindow::back_to_start_clicked()
{
    plot_name_in_row(0);
}

void MainWindow::back_one_clicked()
{
    const int row = ui->listWidget_2->currentRow();
    if (row != 0)
        plot_name_in_row(row - 1);
}

void MainWindow::forward_one_clicked()
{
    const int row = ui->listWidget_2->currentRow();
    if (row != ui->listWidget_2->count() - 1)
        plot_name_in_row(row + 1);
}

void MainWindow::forward_to_end_clicked()
{
    plot_name_in_row(ui->listWidget_2->count() - 1);
}
