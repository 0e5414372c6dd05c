#include "ui/mainwindow.h"

#include "plot/reading/file_kind.h"
#include "ui/choose_files.h"
#include "ui/ui_mainwindow.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QSet>
#include <QUrl>

#include <memory>

namespace {

// The copy only, whatever the source proposes: a source that is told "moved" may delete the file. A
// source that offers no copy is told, at the drop, that nothing was done.
void accept_as_copy(QDropEvent& event)
{
    event.setDropAction(Qt::CopyAction);
    if (event.type() == QEvent::Drop && event.dropAction() != Qt::CopyAction)
        event.setDropAction(Qt::IgnoreAction);
    event.accept();
}

// The text of the URL tells the kind, not the path. A URL without a local file has no path to add.
bool is_result_file(const QUrl& url)
{
    return file_kind_of(url.toString()) != file_kind::none && !url.toLocalFile().isEmpty();
}

} // namespace

void MainWindow::selectFiles()
{
    add_files(choose_result_files(this));
}

void MainWindow::on_action_oeffenen_triggered()
{
    selectFiles();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls())
        accept_as_copy(*event);
}

void MainWindow::dropEvent(QDropEvent* event)
{
    if (!event->mimeData()->hasUrls())
        return;
    accept_as_copy(*event);
    QStringList paths;
    const auto urls = event->mimeData()->urls();
    for (const QUrl& url : urls) {
        if (is_result_file(url))
            paths.append(url.toLocalFile());
    }
    add_files(paths);
}

// To search the rows for each path would take thousands of files a quarter of a minute.
void MainWindow::add_files(const QStringList& paths)
{
    QSet<QString> listed;
    for (int row = 0; row < ui->listWidget->count(); ++row)
        listed.insert(ui->listWidget->item(row)->text());
    for (const QString& path : paths) {
        if (!listed.contains(path))
            ui->listWidget->addItem(path);
        listed.insert(path);
    }
}

void MainWindow::remove_file_clicked()
{
    if (ui->listWidget->count() == 0)
        return;
    const QList<QListWidgetItem*> selected = ui->listWidget->selectedItems();
    if (selected.size() != 1) {
        show_selection_error(box_buttons::kept);
        return;
    }
    const int row = ui->listWidget->row(selected.first());
    ui->listWidget->clearSelection();
    const std::unique_ptr<QListWidgetItem> removed(ui->listWidget->takeItem(row));
}
