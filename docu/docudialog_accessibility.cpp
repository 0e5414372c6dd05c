#include "docu/docudialog.h"

#include "docu/zoomselector.h"

#include <QAction>
#include <QLineEdit>
#include <QListView>
#include <QPdfPageSelector>
#include <QPdfView>
#include <QSpinBox>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>

namespace {

// A button with a picture or a sign is called after its tool tip, without the key that stands
// there.
void nameAfterToolTip(QToolButton& button)
{
    const QAction* const action = button.defaultAction();
    if (action && action->text().size() < 2)
        button.setAccessibleName(action->toolTip().section(QStringLiteral(" ("), 0, 0));
}

} // namespace

// For the keyboard and for screen readers: Qt gives the buttons of a tool bar no focus.
void DocuDialog::makeAccessible()
{
    const auto buttons = toolBar->findChildren<QToolButton*>(Qt::FindDirectChildrenOnly);
    for (QToolButton* button : buttons) {
        button->setFocusPolicy(Qt::TabFocus);
        nameAfterToolTip(*button);
    }
    const std::pair<QWidget*, QString> names[] = {
        {pdfView, tr("Document")},
        {bookmarkView, tabWidget->tabText(0)},
        {thumbnailsView, tabWidget->tabText(1)},
        {searchResultsView, tabWidget->tabText(2)},
        {pageSelector->findChild<QSpinBox*>(), tr("Page")},
        {zoomSelector, tr("Zoom")},
        {searchField, searchField->placeholderText()},
    };
    for (const auto& [widget, name] : names) {
        if (widget)
            widget->setAccessibleName(name);
    }
    // Where a combo box is called after its text, as on Linux, this still tells what it is.
    zoomSelector->setAccessibleDescription(zoomSelector->accessibleName());
}
