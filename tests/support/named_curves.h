#pragma once

#include "tests/support/window_driver.h"

#include <QList>

class QwtPlotCurve;

/// A BEK file with the basins B1 to B4. The outlet of basin n discharges n m³/s at its first level.
QByteArray basin_table();

/// A DKL file with four curves. The nth discharges n m³/s at its first level.
QByteArray throttle_curves();

/// One of these two, as the ending of the name says.
QByteArray named_curves(const QString& file_name);

QList<const QwtPlotCurve*> curves_of(const QwtPlot* plot);

/// Which of the four is drawn, counted from 1; 0 if none is.
int drawn_number(const window_driver& driver);

/// The row that is selected in the right-hand list, or -1.
int selected_row(const window_driver& driver);

/// The button with this text: "|<", "<", ">" or ">|".
QPushButton* navigation_button(const window_driver& driver, const QString& text);
