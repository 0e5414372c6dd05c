#include "ui/mainwindow.h"

#include "plot/korimo_plot.h"
#include "plot/reading/file_kind.h"
#include "plot/shown_text.h"
#include "ui/ui_mainwindow.h"

#include <QApplication>

#include <utility>

namespace {

void clear_titles(QwtPlot& plot)
{
    plot.setAxisTitle(QwtAxis::XBottom, QString());
    plot.setAxisTitle(QwtAxis::YLeft, QString());
    plot.setTitle(QString());
}

} // namespace

// A screen reader can press the buttons and choose the rows of a blocked window, too. A document
// must not go while its own box is open.
bool MainWindow::is_behind_a_dialog()
{
    return QApplication::activeModalWidget() != nullptr;
}

void MainWindow::listWidget_item_changed()
{
    const QListWidgetItem* const current = ui->listWidget->currentItem();
    if (!current || is_behind_a_dialog())
        return;
    clear_trigger = QStringLiteral("list_item_changed");
    const bool is_wel = file_kind_of(current->text()) == file_kind::wel;
    clear_plots(QString(clear_trigger)); // still in the mode of the file selected before
    two_step_mode = !is_wel;
    ui->pushButton->setText(idle_button_text());
}

void MainWindow::buttonClicked()
{
    if (is_behind_a_dialog())
        return;
    ui->listWidget_2->clear();
    if (ui->pushButton->text() == u"Clear") {
        clear_trigger = QStringLiteral("clear_btn");
        clear_plots(QString(clear_trigger));
        return;
    }
    const QList<QListWidgetItem*> selected = ui->listWidget->selectedItems();
    if (selected.size() != 1) {
        show_selection_error(box_buttons::ok_only);
        return;
    }
    const QString path = selected.first()->text();
    replace_document();
    document->readFile(path);
    if (two_step_mode)
        list_names(path);
    else
        plot_hydrographs();
    ui->pushButton->setText(QStringLiteral("Clear"));
    apply_kept_ranges(redraw::yes);
}

void MainWindow::clear_plots(QString trigger)
{
    if (trigger == u"list_item_changed" && document_exists)
        remember_fixed_ranges();
    else
        forget_fixed_ranges();
    destroy_document();
    clear_titles(*ui->qwtPlot);
    ui->qwtPlot->setAxisTitle(QwtAxis::XTop, QString());
    ui->qwtPlot->setAxisVisible(QwtAxis::XTop, false);
    apply_kept_ranges(redraw::no);
    ui->qwtPlot->replot();
    clear_titles(*ui->qwtPlot_2);
    ui->qwtPlot_2->replot();
    ui->listWidget_2->clear();
    ui->pushButton->setText(idle_button_text());
}

void MainWindow::plot_hydrographs()
{
    document->plot_the_curves(ui->qwtPlot, ui->qwtPlot_2);
    ui->qwtPlot->setTitle(shown_text(document->get_wel_title(), ui->qwtPlot->title()));
}

void MainWindow::list_names(const QString& path)
{
    current_file_path = path;
    offered_names = document->get_kennlinien_list();
    ui->listWidget_2->insertItems(ui->listWidget_2->count(), offered_names);
}

void MainWindow::replace_document()
{
    destroy_document();
    document = new korimo_plot(ui->qwtPlot, ui->qwtPlot_2);
    document_exists = true;
}

void MainWindow::destroy_document()
{
    delete std::exchange(document, nullptr);
    document_exists = false;
}

// An axis that is not fixed keeps its range and flag from earlier.
void MainWindow::remember_fixed_ranges()
{
    QwtPlot* const lower = ui->qwtPlot;
    if (document->get_x_bottom_status()) {
        kept_ranges[0] = document->get_x_axis_scale(lower, QStringLiteral("bottom"));
        keep_flags[0] = true;
    }
    // Deliberate: the top axis is read here, and its range is given to the bottom axis later.
    if (document->get_x_top_status()) {
        kept_ranges[1] = document->get_x_axis_scale(ui->qwtPlot_2, QStringLiteral("top"));
        keep_flags[1] = true;
    }
    if (document->get_y_bottom_status()) {
        kept_ranges[2] = document->get_y_axis_scale(lower);
        keep_flags[2] = true;
    }
    // Deliberate: the lower plot is read here, and its range is given to the upper plot later.
    if (document->get_y_top_status()) {
        kept_ranges[3] = document->get_y_axis_scale(lower);
        keep_flags[3] = true;
    }
}

void MainWindow::forget_fixed_ranges()
{
    keep_flags.fill(false);
    kept_ranges.fill({});
}

void MainWindow::apply_kept_ranges(redraw wanted)
{
    const std::pair<QwtPlot*, QwtAxisId> axes[] = {
        {ui->qwtPlot, QwtAxis::XBottom},
        {ui->qwtPlot_2, QwtAxis::XBottom},
        {ui->qwtPlot, QwtAxis::YLeft},
        {ui->qwtPlot_2, QwtAxis::YLeft},
    };
    for (std::size_t i = 0; i < std::size(axes); ++i) {
        if (!keep_flags[static_cast<qsizetype>(i)])
            continue;
        const auto [plot, axis] = axes[i];
        plot->setAxisScale(axis, kept_ranges[i][0], kept_ranges[i][1], 0);
        if (wanted == redraw::yes)
            plot->replot();
    }
}

QString MainWindow::idle_button_text() const
{
    return two_step_mode ? QStringLiteral("Read") : QStringLiteral("Plot");
}
