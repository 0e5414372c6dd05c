#include "tests/end_to_end/floor_plan.h"

#include <QAction>
#include <QMenuBar>
#include <QToolBar>

namespace {

template <class bar>
QRect rect_of(const bar& parent, const QString& text)
{
    for (QAction* action : parent.actions()) {
        if (action->text() == text)
            return parent.actionGeometry(action).translated(parent.pos());
    }
    return {};
}

} // namespace

floor_plan::floor_plan()
{
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
}

QRect floor_plan::tool_button(const QString& text) const
{
    return rect_of(*window.findChild<QToolBar*>("toolBar"), text);
}

QRect floor_plan::menu(const QString& title) const
{
    return rect_of(*window.menuBar(), title);
}
