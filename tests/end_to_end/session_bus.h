#pragma once

#include <QProcess>
#include <QTemporaryDir>

/// A session bus of its own, which starts what the accessibility bus needs. Programs find it by the
/// variable DBUS_SESSION_BUS_ADDRESS, which the constructor sets for this process and its children.
class session_bus
{
public:
    session_bus();
    ~session_bus();

    session_bus(const session_bus&) = delete;
    session_bus& operator=(const session_bus&) = delete;

    bool is_ready() const { return ready; }

private:
    QTemporaryDir sockets;
    QProcess session;
    bool ready = false;
};
