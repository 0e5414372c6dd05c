#pragma once

#include <qwt_text.h>

/// How many characters of a text are shown: laying out more takes seconds for each megabyte, each
/// time it is drawn.
inline constexpr qsizetype longest_shown_text = 10'000;

/// A text of a file, or of the user, as plots show it: letter by letter, in the way of `look`. By
/// itself Qwt takes some texts for mark-up, and reads the files that they name as pictures, be it a
/// device without an end. Of a text that no plot has room for, only the start is shown.
QwtText shown_text(const QString& text, QwtText look = QwtText());
