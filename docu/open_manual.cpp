#include "docu/open_manual.h"

#include "docu/docudialog.h"

void open_manual(QWidget* parent, const QIcon& icon, const QString& file_name)
{
    auto* const manual = new DocuDialog(parent);
    manual->setWindowIcon(icon);
    manual->loadDocument(file_name, 0);
    manual->show();
}
