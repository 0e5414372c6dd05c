#include "tests/end_to_end/session_bus.h"

namespace {

constexpr int patience = 20'000; // ms

} // namespace

// The session lasts as long as the command that runs in it, which waits for the end of its input.
session_bus::session_bus()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_RUNTIME_DIR", sockets.path());
    session.setProcessEnvironment(environment);
    session.start("dbus-run-session",
                  {"--", "sh", "-c", "echo \"$DBUS_SESSION_BUS_ADDRESS\"; exec cat"});
    QByteArray address;
    while (!address.endsWith('\n') && session.waitForReadyRead(patience))
        address += session.readAllStandardOutput();
    ready = !address.isEmpty();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address.trimmed());
}

session_bus::~session_bus()
{
    session.closeWriteChannel();
    session.waitForFinished(patience);
}
