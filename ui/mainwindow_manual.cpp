#include "ui/mainwindow.h"

#include "docu/docudialog.h"

#include <QIcon>

// The file is looked for in the working folder. Each call opens one more dialog, which deletes
// itself when it is closed.
void MainWindow::on_action_Handbuch_triggered()
{
    auto* const manual = new DocuDialog(this);
    manual->setWindowIcon(QIcon(QStringLiteral(":/icons/look_and_feel/orvan.ico")));
    manual->loadDocument(QStringLiteral("01_Handbuch_KORIMO9.pdf"), 0);
    manual->show();
}
