#pragma once

#include <QByteArray>
#include <QString>

namespace bench {

/// Writes a WEL file of the element kind named B, KN, V, T, E or P, with rows five minutes apart
/// and rain now and then. The same call writes the same bytes. Ends the program if it cannot be
/// written.
void write_wel_file(const QString& path, qsizetype rows, const QByteArray& kind);

} // namespace bench
