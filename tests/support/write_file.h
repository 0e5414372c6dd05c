#pragma once

#include <QFile>

/// Writes a file of a test. A test that cannot write ends at once.
///
/// An earlier file of that name goes first: where one is cut to nothing and written anew, some file
/// systems wait for the disk, which takes a test of many files a hundred times as long.
inline void write_file(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    file.remove();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write a temporary file");
}
