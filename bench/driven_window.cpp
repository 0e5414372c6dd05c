#include "bench/driven_window.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QListWidget>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>

#include <utility>

namespace bench {

namespace {

// The event cannot be sent: Qt hands drops over only from a drag that is on its way.
void drop(MainWindow& window, const QList<QUrl>& files)
{
    QMimeData data;
    data.setUrls(files);
    QDropEvent event(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    window.dropEvent(&event);
}

} // namespace

void open_first_of(MainWindow& window, const QList<QUrl>& files)
{
    drop(window, files);
    list_of(window, "listWidget").setCurrentRow(0);
    press(window, "pushButton");
}

void press(const MainWindow& window, const char* button)
{
    window.findChild<QPushButton*>(button)->click();
}

void choose(const MainWindow& window, const char* action)
{
    window.findChild<QAction*>(action)->trigger();
}

QListWidget& list_of(const MainWindow& window, const char* name)
{
    return *window.findChild<QListWidget*>(name);
}

box_closer::box_closer(std::function<void(const QMessageBox&)> look)
    : look(std::move(look))
{
    QObject::connect(&watch, &QTimer::timeout, &watch, [this] { close(); });
    watch.start(1);
}

void box_closer::close() const
{
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box)
        return;
    if (look)
        look(*box);
    box->accept();
}

} // namespace bench
