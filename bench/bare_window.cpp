// The least that shows two plots: what the start of the viewer is measured against.

#include <QApplication>
#include <QMainWindow>

#include <qwt_plot.h>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.setFixedSize(941, 848);
    QwtPlot upper(&window);
    upper.setGeometry(30, 10, 681, 200);
    QwtPlot lower(&window);
    lower.setGeometry(30, 220, 681, 381);
    window.show();
    return QApplication::exec();
}
