// Reads four columns over time from a node's file and draws them: qcustomplot_road FILE PICTURE

#include "columns.h"
#include "curves.h"

#include <QApplication>

namespace {

QPixmap stacked(const QPixmap& upper, const QPixmap& lower)
{
    QPixmap both(upper.width(), upper.height() + lower.height());
    QPainter painter(&both);
    painter.drawPixmap(0, 0, upper);
    painter.drawPixmap(0, upper.height(), lower);
    return both;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    if (argc < 3)
        return 2;
    const std::vector<QVector<double>> columns = read_columns(argv[1], {1, 2, 4, 9, 10});
    QWidget window;
    window.resize(681, 581);
    QCustomPlot upper(&window);
    upper.setGeometry(0, 0, 681, 200);
    add_curve(upper, "hN", Qt::blue, columns[0], columns[1]);
    add_curve(upper, "heff", Qt::red, columns[0], columns[2]);
    finish(upper, "Zeit [h]", "P [mm]");
    QCustomPlot lower(&window);
    lower.setGeometry(0, 200, 681, 381);
    add_curve(lower, "Qb", Qt::blue, columns[0], columns[3]);
    add_curve(lower, "Qges", Qt::green, columns[0], columns[4]);
    finish(lower, "Zeit [h]", "Q [m3/s]");
    window.show();
    QCoreApplication::processEvents(); // painted
    return stacked(upper.toPixmap(), lower.toPixmap()).save(argv[2], "PNG") ? 0 : 1;
}
