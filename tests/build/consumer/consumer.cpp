#include "app/theme_probe.h"
#include "plot/korimo_plot.h"
#include "ui/axis_dialog.h"
#include "ui/mainwindow.h"
#include "ui/rename_dialog.h"

#include <QApplication>
#include <QFile>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const MainWindow window;
    QwtPlot lower;
    QwtPlot upper;
    const korimo_plot document(&lower, &upper);
    const bool is_whole = QFile::exists(":/icons/look_and_feel/orvan.ico") && !desktop_is_dark() &&
                          !window.windowIcon().isNull() && document.plot_mode == -1;
    return is_whole ? 0 : 1;
}
