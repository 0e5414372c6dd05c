#include "tests/support/modal_boxes.h"

#include <QApplication>
#include <QIcon>
#include <QTest>

bool is_selection_error(const shown_box& box)
{
    return box.title == "Error" && box.text == "Pleae select one file" &&
           box.detailed_text.isEmpty() && box.buttons == QMessageBox::Ok &&
           box.icon == QMessageBox::NoIcon && box.has_window_icon && box.was_modal;
}

QMessageBox* shared_box()
{
    QMessageBox* found = nullptr;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* const box = qobject_cast<QMessageBox*>(widget))
            found = box;
    }
    return found;
}

modal_boxes::modal_boxes()
{
    QObject::connect(&watch, &QTimer::timeout, &watch, [this] { answer(); });
    watch.start(5);
}

void modal_boxes::answer()
{
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box || !box->isVisible())
        return;
    boxes.append({box->windowTitle(), box->text(), box->detailedText(), box->standardButtons(),
                  box->icon(), !box->windowIcon().isNull(), box->isModal(),
                  box->testAttribute(Qt::WA_SetWindowIcon), box});
    QTest::keyClick(box, Qt::Key_Return);
}
