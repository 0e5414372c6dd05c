#pragma once

#include "ui/mainwindow.h"

#include <QPixmap>

#include <functional>

/// A main window with example files, led by hand through the scenes of the manual.
class stage
{
public:
    stage();

    /// Lists example files by their names; the last one is selected.
    void list(const QStringList& names);
    /// Presses a button by its object name.
    void press(const char* button);
    /// Selects a row of the right-hand list.
    void pick(int row);
    /// Triggers an action by its object name. What comes up for it is shown to `look` and closed.
    void trigger(const char* action, const std::function<void(QWidget&)>& look = {});
    /// Shows what comes up when a button is pressed to `look`, and closes it.
    void press_and_look(const char* button, const std::function<void(QWidget&)>& look);

    QPixmap whole();
    /// Both plots with their legends.
    QPixmap plots();

    MainWindow window;

private:
    static void settle();
    void look_at_modal(const std::function<void(QWidget&)>& look);
};
