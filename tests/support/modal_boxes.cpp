#include "tests/support/modal_boxes.h"

#include <QApplication>
#include <QIcon>
#include <QTest>

namespace {

bool is_error(const shown_box& box, const QString& text)
{
    return box.title == "Error" && box.text == text && box.detailed_text.isEmpty() &&
           box.buttons == QMessageBox::Ok && box.icon == QMessageBox::NoIcon && box.was_modal;
}

} // namespace

bool is_selection_error(const shown_box& box)
{
    return is_error(box, "Pleae select one file") && box.has_window_icon;
}

bool is_read_error(const shown_box& box)
{
    return is_error(box, "Could not open or read file");
}

QMessageBox* shared_box()
{
    QMessageBox* found = nullptr;
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
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
    // No key reaches a box before it is active; until then another button may be the default one.
    if (!box || !box->isActiveWindow())
        return;
    shown_box seen;
    seen.title = box->windowTitle();
    seen.text = box->text();
    seen.detailed_text = box->detailedText();
    seen.buttons = box->standardButtons();
    seen.icon = box->icon();
    seen.has_window_icon = !box->windowIcon().isNull();
    seen.was_modal = box->isModal();
    seen.own_window_icon = box->testAttribute(Qt::WA_SetWindowIcon);
    seen.has_parent = box->parentWidget() != nullptr;
    seen.informative_text = box->informativeText();
    seen.text_format = box->textFormat();
    seen.object = box;
    boxes.append(seen);
    QTest::keyClick(box, Qt::Key_Return);
}
