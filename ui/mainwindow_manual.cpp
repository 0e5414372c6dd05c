#include "ui/mainwindow.h"

#include "docu/docudialog.h"
#include "ui/application_icon.h"

// The file is looked for in the working folder. Each call opens one more dialog, which deletes
// itself when it is closed.
void MainWindow::on_action_Handbuch_triggered()
{
    auto* const manual = new DocuDialog(this);
    manual->setWindowIcon(application_icon());
    manual->loadDocument(QStringLiteral("01_Handbuch_KORIMO9.pdf"), 0);
    manual->show();
}
