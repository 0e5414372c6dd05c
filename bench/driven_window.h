#pragma once

#include "ui/mainwindow.h"

#include <QList>
#include <QTimer>
#include <QUrl>

#include <functional>

class QListWidget;

// What the programs that drive the viewer do with its window.
namespace bench {

/// Drops files onto the window, selects the first row, and presses "Plot" or "Read".
void open_first_of(MainWindow& window, const QList<QUrl>& files);

void press(const MainWindow& window, const char* button);
void choose(const MainWindow& window, const char* action);
QListWidget& list_of(const MainWindow& window, const char* name);

/// Closes each message box that comes up while it lives, once `look` has seen it.
class box_closer
{
public:
    explicit box_closer(std::function<void(const QMessageBox&)> look = {});

private:
    void close() const;

    std::function<void(const QMessageBox&)> look;
    QTimer watch;
};

} // namespace bench
