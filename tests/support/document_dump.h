#pragma once

#include <QString>

class korimo_plot;

/// All that a reader puts into a document, as text: one line for the mode, the title, the names and
/// every series that holds values. Numbers are written so that two doubles have the same text only
/// if they are the same.
QString dump(const korimo_plot& document);
