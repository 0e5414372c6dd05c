#include "ui/mainwindow.h"

#include "ui/application_icon.h"
#include "ui/image_file_name.h"
#include "ui_mainwindow.h"

#include <QFileInfo>
#include <QPainter>
#include <QPixmap>
#include <QSaveFile>

#include <qwt_plot_renderer.h>

#include <algorithm>

namespace {

QPixmap picture_of(QwtPlot& plot)
{
    QPixmap picture(plot.size());
    QPainter painter(&picture);
    QwtPlotRenderer().render(&plot, &painter, QRectF(plot.rect()));
    return picture;
}

// As on the screen: the upper plot above the lower one.
QPixmap stacked(const QPixmap& upper, const QPixmap& lower)
{
    QPixmap both(std::max(upper.width(), lower.width()), upper.height() + lower.height());
    QPainter painter(&both);
    painter.drawPixmap(0, 0, upper);
    painter.drawPixmap(0, upper.height(), lower);
    return both;
}

// At once and whole, so that no other viewer that saves or shows the same picture meets half of it.
// Where that is impossible (a device, a very long name, a folder that is closed), as it comes.
void save(const QPixmap& picture, const QString& file)
{
    const QFileInfo place(file);
    QSaveFile whole(file);
    const bool can_be_replaced = place.isFile() || !place.exists();
    if (!can_be_replaced || !whole.open(QIODevice::WriteOnly) || !picture.save(&whole, "PNG") ||
        !whole.commit())
        picture.save(file, "PNG");
}

} // namespace

bool MainWindow::has_curves(QwtPlot* plot)
{
    return !plot->itemList(QwtPlotItem::Rtti_PlotCurve).isEmpty();
}

void MainWindow::on_action_speicher_triggered()
{
    const QListWidgetItem* const current = ui->listWidget->currentItem();
    if (!document_exists || !current)
        return;
    const QPixmap lower = picture_of(*ui->qwtPlot);
    const QPixmap picture =
        has_curves(ui->qwtPlot_2) ? stacked(picture_of(*ui->qwtPlot_2), lower) : lower;
    const QString path = current->text();
    const QString file = two_step_mode ? image_file_of_curve(path, selected_item_name)
                                       : image_file_of_hydrograph(path);
    // Deliberate: the box names the file that was meant, whatever became of it.
    save(picture, file);
    QMessageBox box;
    box.setWindowIcon(application_icon());
    box.setText(QStringLiteral("File saved to ") + file);
    box.exec();
}
