#pragma once

#include <QStringList>

#include <functional>

class QWidget;

/// How a test calls a widget.
using widget_naming = std::function<QString(const QWidget&)>;

/// The object's name; where it has none of its own, that of its action, or else that of its parent.
QString object_name_of(const QWidget& widget);

/// What a screen reader calls it.
QString spoken_name_of(const QWidget& widget);

/// Presses the key so often, each time where the focus is, and tells where it is after each press.
QStringList walk(Qt::Key key, qsizetype presses, const widget_naming& naming);

/// Presses Tab until what has the focus is called so; false if it never is.
bool tab_to(const QString& name, const widget_naming& naming = object_name_of);

/// Presses a key where the focus is.
void press_key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
