#pragma once

#include <QImage>
#include <QRect>
#include <QString>

/// Writes a picture of the tour into the folder that KORIMO_TOUR names. Without that variable it
/// must be like the one that the project keeps: fails the running test if many of its pixels are
/// others. What stands in `changing`, in pixels, may be anything.
void show_picture(const QString& name, const QImage& picture, const QRect& changing = {});
