#include "ui/mainwindow.h"

#include "plot/shown_text.h"
#include "ui/application_icon.h"
#include "ui/image_file_name.h"
#include "ui/ui_mainwindow.h"

#include <QDir>
#include <QFile>
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

// As on the screen: the upper plot above the lower one. Deliberate: what is beside the narrower one
// is not filled. The layout keeps them equally wide.
QPixmap stacked(const QPixmap& upper, const QPixmap& lower)
{
    QPixmap both(std::max(upper.width(), lower.width()), upper.height() + lower.height());
    QPainter painter(&both);
    painter.drawPixmap(0, 0, upper);
    painter.drawPixmap(0, upper.height(), lower);
    return both;
}

// Where a FIFO or a device stands, writing might wait for ever. A NUL, which a name may have, would
// end the path before the ".png": the data file itself may be of that name, or a link lead to it.
bool may_be_written(const QString& file, const QString& data_file)
{
    const QFileInfo place(file);
    if (file.contains(QChar(u'\0')))
        return false;
    if (!place.exists())
        return true;
    return place.isFile() &&
           place.canonicalFilePath() != QFileInfo(data_file).canonicalFilePath() &&
           QFile(file).open(QIODevice::ReadWrite);
}

// Writes at once and whole, so that no other viewer that saves or shows the same picture meets half
// of it, and answers whether that could be tried. On a full disk the earlier picture stays.
bool save_at_once(const QPixmap& picture, const QString& file)
{
    QSaveFile whole(file);
    if (!whole.open(QIODevice::WriteOnly))
        return false;
    return !picture.save(&whole, "PNG") || whole.commit() ||
           whole.error() != QFileDevice::RenameError;
}

// Where that is impossible (a very long name, a closed folder, a file that cannot be replaced), as
// it comes.
void save(const QPixmap& picture, const QString& file)
{
    if (!save_at_once(picture, file))
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
    const bool leads_elsewhere =
        two_step_mode && QDir::fromNativeSeparators(selected_item_name).contains(u'/');
    if (!leads_elsewhere && may_be_written(file, path))
        save(picture, file);
    QMessageBox box;
    box.setWindowIcon(application_icon());
    box.setTextFormat(Qt::PlainText); // names may look like mark-up
    box.setText(QStringLiteral("File saved to ") + file.left(longest_shown_text));
    box.exec();
}
