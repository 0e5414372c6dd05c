#pragma once

#include "plot/shown_text.h"

#include <QStyledItemDelegate>

/// Shows the names in a list: of one without an end only the start, as plots do.
class name_delegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale& locale) const override
    {
        return QStyledItemDelegate::displayText(value, locale).left(longest_shown_text);
    }
};
