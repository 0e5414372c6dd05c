#include "ui/mainwindow.h"

#include "ui/ui_mainwindow.h"

#include <QToolButton>

// The form orders its own widgets, beginning with the one that has the focus at first. What it
// cannot name stands between the commands for names and the file list.
void MainWindow::complete_tab_order()
{
    QWidget* last = ui->pushButton_f_end;
    const auto append = [&last](QWidget* next) {
        setTabOrder(last, next);
        last = next;
    };
    // Qt orders only what can have the focus: as the canvas will, once the plot can be zoomed.
    QWidget* const canvas = ui->qwtPlot->canvas();
    canvas->setFocusPolicy(Qt::WheelFocus);
    append(canvas);
    const auto buttons = ui->toolBar->findChildren<QToolButton*>(Qt::FindDirectChildrenOnly);
    for (QToolButton* button : buttons) {
        button->setFocusPolicy(Qt::TabFocus); // not by a click, which leaves the focus where it is
        append(button);
    }
    canvas->setFocusPolicy(Qt::NoFocus);
}

// The canvas is what gets the focus, and a screen reader tells the name of that.
void MainWindow::name_canvases()
{
    for (QwtPlot* plot : {ui->qwtPlot, ui->qwtPlot_2})
        plot->canvas()->setAccessibleName(plot->accessibleName());
}
