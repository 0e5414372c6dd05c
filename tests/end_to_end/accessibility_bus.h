#pragma once

#include <QDBusConnection>
#include <QList>
#include <QString>

/// What a part of a window is, as the protocol numbers it.
enum class spoken_role
{
    list = 31,
    panel = 39,
    push_button = 43,
};

/// A part of a window, as a screen reader learns of it.
struct spoken_part
{
    QString name;
    spoken_role role;
    bool has_focus = false;
};

/// The bus on which programs tell screen readers what they show. The session's bus starts it.
class accessibility_bus
{
public:
    accessibility_bus();

    bool is_ready() const { return bus.isConnected(); }
    /// All parts of the window with this title, each before what it contains; none while there is
    /// no such window on the bus.
    QList<spoken_part> parts_of(const QString& window) const;

private:
    QDBusConnection bus;
};
