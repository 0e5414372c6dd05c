#include "ui/mainwindow.h"

// The command that stands in the menu, but does nothing yet.

void MainWindow::on_action_Handbuch_triggered() {}
