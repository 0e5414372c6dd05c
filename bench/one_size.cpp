// Drives the viewer with a large file, or with all files of a folder: drops what the command line
// names onto the window, selects the first row, plots or reads it, plots some of the names that it
// offers, and closes. Without an argument it closes at once. Standard output tells what the window
// shows in the end, and the boxes that came up.

#include "bench/driven_window.h"
#include "bench/first_paint.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QListWidget>
#include <QMessageBox>

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

void tell(const QMessageBox& box)
{
    std::printf("box: %s\n", qPrintable(box.text()));
}

void plot_some_names(const MainWindow& window)
{
    for (const char* button : {"pushButton_b_start", "pushButton_f", "pushButton_f_end"}) {
        bench::press(window, button);
        QCoreApplication::processEvents();
    }
}

int rows_of(const MainWindow& window, const char* list)
{
    return bench::list_of(window, list).count();
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
        const bench::box_closer closer(tell);
        bench::open_first_of(window, urls_of(path));
        QCoreApplication::processEvents(); // both plots are painted
        if (rows_of(window, "listWidget_2") > 0)
            plot_some_names(window);
        tell_what_is_shown(window);
    }
    bench::choose(window, "action_schliessen");
}
