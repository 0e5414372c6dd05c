#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QString>

/// The drawing in a square of `size` pixels; a null image if the file is no drawing.
QImage drawn_icon(const QString& svg_file, int size);

/// The bytes of a Windows icon file that holds these pictures, uncompressed: the program reads all
/// of them at each start, and unpacking would take longer than the few bytes more.
QByteArray ico_of(const QList<QImage>& pictures);
