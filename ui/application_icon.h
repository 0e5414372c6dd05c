#pragma once

#include <QIcon>

/// The icon of the application, which the commands give to what they open.
inline QIcon application_icon()
{
    return QIcon(QStringLiteral(":/icons/look_and_feel/orvan.ico"));
}
