#include "plot/shown_text.h"

QwtText shown_text(const QString& text, QwtText look)
{
    look.setText(text.left(longest_shown_text), QwtText::PlainText);
    return look;
}
