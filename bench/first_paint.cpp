#include "bench/first_paint.h"

#include <QApplication>
#include <QEvent>

namespace {

// Waits for the first paint event of a main window. The window is on the screen, its children
// painted, as soon as the event loop goes on.
class paint_watch : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* const window = qobject_cast<QMainWindow*>(watched);
        if (event->type() == QEvent::Paint && window) {
            QCoreApplication::instance()->removeEventFilter(this);
            QMetaObject::invokeMethod(
                window, [window] { first_painted(*window); }, Qt::QueuedConnection);
        }
        return false;
    }
};

void watch_first_paint()
{
    QCoreApplication* const application = QCoreApplication::instance();
    application->installEventFilter(new paint_watch(application));
}

} // namespace

// So the program's main stays as it is.
Q_COREAPP_STARTUP_FUNCTION(watch_first_paint)
