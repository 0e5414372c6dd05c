// What a program finds in the module that it loads to show the manual.

#include "docu/open_manual.h"

#include <QtGlobal>

extern "C" Q_DECL_EXPORT void korimo_open_manual(QWidget* parent, const QIcon& icon,
                                                 const QString& file_name)
{
    open_manual(parent, icon, file_name);
}
