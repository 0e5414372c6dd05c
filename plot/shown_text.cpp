#include "plot/shown_text.h"

namespace {

constexpr qsizetype longest = 10'000; // laying out more takes seconds for each megabyte

} // namespace

QwtText shown_text(const QString& text, QwtText look)
{
    look.setText(text.left(longest), QwtText::PlainText);
    return look;
}
