#pragma once

#include <QTableWidget>

/// A table of old and new names that lays out its headers only once it is shown. Any other does so
/// with each column that it gets: the bold font for that, which nothing in the main window needs,
/// takes longer to load than a whole dialog to build.
///
/// The Tab key goes from cell to cell, and behind the last one, or back before the first, out of
/// the table; in any other it goes round for ever.
class name_table : public QTableWidget
{
public:
    using QTableWidget::QTableWidget;

protected:
    void updateGeometries() override
    {
        if (isVisible())
            QTableWidget::updateGeometries();
    }

    void showEvent(QShowEvent* event) override
    {
        QTableWidget::showEvent(event);
        updateGeometries();
    }

    bool focusNextPrevChild(bool next) override
    {
        const int end = next ? rowCount() * columnCount() - 1 : 0;
        const bool leaves =
            rowCount() == 0 || currentRow() * columnCount() + currentColumn() == end;
        setTabKeyNavigation(!leaves);
        const bool moved = QTableWidget::focusNextPrevChild(next);
        setTabKeyNavigation(true);
        return moved;
    }
};
