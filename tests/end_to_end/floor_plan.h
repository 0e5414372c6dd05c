#pragma once

#include "ui/mainwindow.h"

#include <QRect>
#include <QString>

/// Where things whose size hangs on the font are in the window: looked up in a window of the same
/// kind that never comes on the screen.
class floor_plan
{
public:
    floor_plan();

    /// The tool button with this text, in the window.
    QRect tool_button(const QString& text) const;
    /// The title of a menu in the menu bar, in the window.
    QRect menu(const QString& title) const;

private:
    MainWindow window;
};
