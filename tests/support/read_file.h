#pragma once

#include <QFile>

/// The whole of a file. A test that cannot read it ends at once.
inline QByteArray read_file(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

/// The same as text.
inline QString read_text(const QString& path)
{
    return QString::fromUtf8(read_file(path));
}
