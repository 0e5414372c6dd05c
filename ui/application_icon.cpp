#include "ui/application_icon.h"

#include <QCoreApplication>

namespace {

QIcon& kept_icon()
{
    static QIcon icon;
    return icon;
}

// Its pictures must not outlive the application.
void forget_icon()
{
    kept_icon() = QIcon();
}

} // namespace

QIcon application_icon()
{
    if (kept_icon().isNull()) {
        kept_icon() = QIcon(QStringLiteral(":/icons/look_and_feel/orvan.ico"));
        qAddPostRoutine(forget_icon);
    }
    return kept_icon();
}
