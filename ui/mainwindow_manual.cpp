#include "ui/mainwindow.h"

#include "docu/open_manual.h"
#include "ui/application_icon.h"

// The file is looked for in the working folder. Each call opens one more dialog.
void MainWindow::on_action_Handbuch_triggered()
{
    open_manual(this, application_icon(), QStringLiteral("01_Handbuch_KORIMO9.pdf"));
}
