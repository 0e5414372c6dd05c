#pragma once

#include <QTableWidget>

/// A table of old and new names that lays out its headers only once it is shown. Any other does so
/// with each column that it gets: the bold font for that, which nothing in the main window needs,
/// takes longer to load than a whole dialog to build.
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
};
