// What the program opens the manual with, instead of the library's own docu/open_manual.cpp.

#include "docu/open_manual.h"

#include "app/manual_loader.h"

#include <QCoreApplication>

void open_manual(QWidget* parent, const QIcon& icon, const QString& file_name)
{
    open_manual_of(QCoreApplication::applicationDirPath(), parent, icon, file_name);
}
