// Drives the viewer with a large file, or with all files of a folder: drops what the command line
// names onto the window, selects the first row, plots or reads it, plots some of the names that it
// offers, and closes. Without an argument it closes at once. Standard output tells what the window
// shows in the end, and the boxes that came up.

#include "bench/first_paint.h"
#include "ui/mainwindow.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QTimer>
#include <QUrl>

#include <qwt_plot.h>
#include <qwt_plot_curve.h>

#include <cstdio>

namespace {

QList<QUrl> urls_of(const QString& path)
{
    QList<QUrl> urls;
    const auto files = QDir(path).entryInfoList(QDir::Files);
    for (const QFileInfo& each : files)
        urls.append(QUrl::fromLocalFile(each.filePath()));
    return urls.isEmpty() ? QList<QUrl>{QUrl::fromLocalFile(path)} : urls;
}

// The event cannot be sent: Qt hands drops over only from a drag that is on its way.
void drop(MainWindow& window, const QList<QUrl>& urls)
{
    QMimeData data;
    data.setUrls(urls);
    QDropEvent event(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    window.dropEvent(&event);
}

void close_box()
{
    if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        std::printf("box: %s\n", qPrintable(box->text()));
        box->accept();
    }
}

void plot_some_names(const MainWindow& window)
{
    for (const char* button : {"pushButton_b_start", "pushButton_f", "pushButton_f_end"}) {
        window.findChild<QPushButton*>(button)->click();
        QCoreApplication::processEvents();
    }
}

int rows_of(const MainWindow& window, const char* list)
{
    return window.findChild<QListWidget*>(list)->count();
}

// Lists, and for each curve of the lower plot how many points it has.
void tell_what_is_shown(const MainWindow& window)
{
    std::printf("%d files, %d names", rows_of(window, "listWidget"),
                rows_of(window, "listWidget_2"));
    const auto curves =
        window.findChild<QwtPlot*>("qwtPlot")->itemList(QwtPlotItem::Rtti_PlotCurve);
    for (const QwtPlotItem* const item : curves)
        std::printf(", %zu points", dynamic_cast<const QwtPlotCurve&>(*item).dataSize());
    std::printf("\n");
}

} // namespace

void first_painted(QMainWindow& shown)
{
    auto& window = dynamic_cast<MainWindow&>(shown);
    const QString path = QCoreApplication::arguments().value(1);
    if (!path.isEmpty()) {
        QTimer answer;
        QObject::connect(&answer, &QTimer::timeout, close_box);
        answer.start(1);
        drop(window, urls_of(path));
        window.findChild<QListWidget*>("listWidget")->setCurrentRow(0);
        window.findChild<QPushButton*>("pushButton")->click();
        QCoreApplication::processEvents(); // both plots are painted
        if (rows_of(window, "listWidget_2") > 0)
            plot_some_names(window);
        tell_what_is_shown(window);
    }
    window.findChild<QAction*>("action_schliessen")->trigger();
}
