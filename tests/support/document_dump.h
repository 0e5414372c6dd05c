#pragma once

#include "plot/series_store.h"

#include <QStringList>

class korimo_plot;

/// Anything that readers fill: a document, or the result of the literal reader.
template <class type>
concept readable = requires(type value) {
    value.plot_mode;
    value.wel_title;
    value.kennlinien_list;
    value.series;
};

QString dump(int plot_mode, const QString& title, const QStringList& names,
             const series_store& series);

/// All that a reader puts into a document, as text: one line for the mode, the title, the names and
/// every series that holds values. Numbers are written so that two doubles have the same text only
/// if they are the same.
template <readable type>
QString dump(const type& read)
{
    return dump(read.plot_mode, read.wel_title, read.kennlinien_list, read.series);
}

/// Whether none of the series of a document holds a value.
bool has_no_values(const korimo_plot& document);

/// Lets `document` read the file and answers its dump, then the debug lines that reading logged,
/// each with "log " in front.
QString read_and_dump(korimo_plot& document, const QString& path);
