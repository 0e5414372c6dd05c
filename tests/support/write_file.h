#pragma once

#include <QFile>

/// Writes a file of a test. A test that cannot write ends at once.
inline void write_file(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write a temporary file");
}
