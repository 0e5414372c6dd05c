#include "tests/end_to_end/accessibility_bus.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusReply>

namespace {

// Of the states, which the protocol numbers.
constexpr uint focused = 1U << 12;

// Where an object lives: the name of its program on the bus, and its path there.
struct place
{
    QString service;
    QString path;
};

QDBusMessage call(const QDBusConnection& bus, const place& object, const QString& interface,
                  const QString& method, const QVariantList& arguments = {})
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(object.service, object.path, interface, method);
    message.setArguments(arguments);
    return bus.call(message);
}

QDBusMessage ask(const QDBusConnection& bus, const place& object, const QString& method)
{
    return call(bus, object, "org.a11y.atspi.Accessible", method);
}

QString name_of(const QDBusConnection& bus, const place& object)
{
    const QDBusReply<QVariant> reply = call(bus, object, "org.freedesktop.DBus.Properties", "Get",
                                            {"org.a11y.atspi.Accessible", "Name"});
    return reply.value().toString();
}

QList<place> children_of(const QDBusConnection& bus, const place& object)
{
    QList<place> children;
    const QDBusMessage reply = ask(bus, object, "GetChildren");
    if (reply.arguments().isEmpty())
        return children;
    const auto list = reply.arguments().constFirst().value<QDBusArgument>();
    for (list.beginArray(); !list.atEnd();) {
        place child;
        QDBusObjectPath path;
        list.beginStructure();
        list >> child.service >> path;
        list.endStructure();
        child.path = path.path();
        children.append(child);
    }
    return children;
}

bool has_focus(const QDBusConnection& bus, const place& object)
{
    const QDBusReply<QList<uint>> states = ask(bus, object, "GetState");
    return states.isValid() && (states.value().value(0) & focused) != 0;
}

void gather(const QDBusConnection& bus, const place& object, QList<spoken_part>& parts)
{
    const QDBusReply<uint> role = ask(bus, object, "GetRole");
    parts.append({name_of(bus, object), spoken_role(role.value()), has_focus(bus, object)});
    const QList<place> children = children_of(bus, object);
    for (const place& child : children)
        gather(bus, child, parts);
}

} // namespace

accessibility_bus::accessibility_bus()
    : bus(QDBusConnection::connectToBus(
          QDBusReply<QString>(call(QDBusConnection::sessionBus(), {"org.a11y.Bus", "/org/a11y/bus"},
                                   "org.a11y.Bus", "GetAddress"))
              .value(),
          "accessibility"))
{
    qDBusRegisterMetaType<QList<uint>>();
}

QList<spoken_part> accessibility_bus::parts_of(const QString& window) const
{
    QList<spoken_part> parts;
    const place registry{"org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"};
    const QList<place> programs = children_of(bus, registry);
    for (const place& program : programs) {
        const QList<place> windows = children_of(bus, program);
        for (const place& each : windows) {
            if (name_of(bus, each) == window)
                gather(bus, each, parts);
        }
    }
    return parts;
}
