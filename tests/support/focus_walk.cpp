#include "tests/support/focus_walk.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QTest>
#include <QToolButton>

namespace {

// More than any window has places for the focus.
constexpr int round_trip = 40;

} // namespace

QString object_name_of(const QWidget& widget)
{
    const auto* const button = qobject_cast<const QToolButton*>(&widget);
    if (button && button->defaultAction())
        return button->defaultAction()->objectName();
    if (widget.objectName() == "QwtPlotCanvas" || widget.objectName().isEmpty())
        return widget.parent()->objectName();
    return widget.objectName();
}

QString spoken_name_of(const QWidget& widget)
{
    auto* const spoken = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget));
    return spoken ? spoken->text(QAccessible::Name) : QString();
}

QStringList walk(Qt::Key key, qsizetype presses, const widget_naming& naming)
{
    QStringList places;
    while (places.size() < presses && QApplication::focusWidget()) {
        press_key(key);
        places.append(naming(*QApplication::focusWidget()));
    }
    return places;
}

bool tab_to(const QString& name, const widget_naming& naming)
{
    for (int i = 0; i < round_trip && QApplication::focusWidget(); ++i) {
        if (naming(*QApplication::focusWidget()) == name)
            return true;
        press_key(Qt::Key_Tab);
    }
    return false;
}

void press_key(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}
