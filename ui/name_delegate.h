#pragma once

#include <QStyledItemDelegate>

/// Shows the names in a list: of one without an end only the start, since laying out all of it
/// takes seconds for each megabyte, each time it is drawn.
class name_delegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale& locale) const override
    {
        constexpr qsizetype longest = 10'000;
        return QStyledItemDelegate::displayText(value, locale).left(longest);
    }
};
