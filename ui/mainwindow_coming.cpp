#include "ui/mainwindow.h"

// Commands that stand in the menus and in the tool bar, but do nothing yet.

void MainWindow::on_action_speicher_triggered() {}
void MainWindow::on_action_Orvan_Information_triggered() {}
void MainWindow::on_action_Qt_Licensing_Information_triggered() {}
void MainWindow::on_action_LGPLv3_triggered() {}
void MainWindow::on_action_Handbuch_triggered() {}
void MainWindow::set_min_max(QList<double> /*min_max*/) {}
void MainWindow::on_action_y_achse_unten_triggered() {}
void MainWindow::on_actionx_Achse_unten_triggered() {}
void MainWindow::on_actiony_Achse_oben_triggered() {}
void MainWindow::on_actionx_Achse_oben_triggered() {}
void MainWindow::on_action2_X_Achse_unten_triggered() {}
void MainWindow::on_actionZeitreihe_change_names_triggered() {}
