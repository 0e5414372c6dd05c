#pragma once

#include "plot/series_store.h"

#include <QStringList>

class QIODevice;

/// What reading one file must give, worked out step by step from the rules of the formats with
/// nothing but Qt's own text stream, splitting and number conversion. It shares no code with the
/// readers: it is what they are measured against.
struct literal_reading
{
    int plot_mode = -1;
    QString wel_title;
    QStringList kennlinien_list;
    series_store series;
    QStringList log;
};

literal_reading read_literally(const QString& path);

/// The same for a device, which must be open in text mode; `path` is where the file would lie.
literal_reading read_literally(QIODevice& text, const QString& path);
