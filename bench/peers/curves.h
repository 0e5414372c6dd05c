#pragma once

#include <qcustomplot.h>

/// Adds a curve as the viewer draws it: two pixels wide, with hard edges.
void add_curve(QCustomPlot& plot, const QString& name, Qt::GlobalColor colour,
               const QVector<double>& x, const QVector<double>& y);

/// Shows a legend, a fine grid, and all of the curves.
void finish(QCustomPlot& plot, const QString& x_title, const QString& y_title);
