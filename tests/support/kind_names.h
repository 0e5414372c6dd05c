#pragma once

#include "plot/reading/element_kinds.h"

#include <QStringList>

/// The names of WEL files of every kind of element, one for each marker.
inline QStringList names_of_every_kind()
{
    QStringList names;
    for (const element_kind& kind : element_kinds()) {
        for (const QStringView marker : kind.markers)
            names.append(u'x' + marker.toString() + QStringLiteral("1.wel"));
    }
    return names;
}
