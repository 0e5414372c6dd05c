#include "curves.h"

void add_curve(QCustomPlot& plot, const QString& name, Qt::GlobalColor colour,
               const QVector<double>& x, const QVector<double>& y)
{
    QCPGraph* const graph = plot.addGraph();
    graph->setName(name);
    graph->setPen(QPen(colour, 2.0));
    graph->setAntialiased(false);
    graph->setData(x, y, true);
}

void finish(QCustomPlot& plot, const QString& x_title, const QString& y_title)
{
    plot.xAxis->setLabel(x_title);
    plot.yAxis->setLabel(y_title);
    plot.xAxis->grid()->setSubGridVisible(true);
    plot.yAxis->grid()->setSubGridVisible(true);
    plot.legend->setVisible(true);
    plot.rescaleAxes();
}
