#include "manual/pictures/stage.h"

#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>

stage::stage()
{
    window.show();
    QCoreApplication::processEvents();
}

void stage::list(const QStringList& names)
{
    auto* const files = window.findChild<QListWidget*>("listWidget");
    for (const QString& name : names)
        files->addItem("Erlenbach/" + name);
    files->setCurrentRow(files->count() - 1);
}

void stage::press(const char* button)
{
    window.findChild<QPushButton*>(button)->click();
    QCoreApplication::processEvents();
}

void stage::pick(int row)
{
    window.findChild<QListWidget*>("listWidget_2")->setCurrentRow(row);
}

void stage::look_at_modal(const std::function<void(QWidget&)>& look)
{
    QTimer::singleShot(50, &window, [look] {
        QWidget* const shown = QApplication::activeModalWidget();
        if (look && shown)
            look(*shown);
        if (shown)
            shown->close();
    });
}

void stage::trigger(const char* action, const std::function<void(QWidget&)>& look)
{
    look_at_modal(look);
    window.findChild<QAction*>(action)->trigger();
    QCoreApplication::processEvents();
}

void stage::press_and_look(const char* button, const std::function<void(QWidget&)>& look)
{
    look_at_modal(look);
    press(button);
}

// Layouts that ask for layouts need more than one turn.
void stage::settle()
{
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
}

QPixmap stage::whole()
{
    settle();
    return window.grab();
}

QPixmap stage::plots()
{
    settle();
    QWidget* const middle = window.centralWidget();
    return middle->grab(QRect(25, 45, 691, 600));
}
