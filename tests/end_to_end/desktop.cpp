#include "tests/end_to_end/desktop.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QThread>

#include <chrono>

namespace {

using namespace std::chrono_literals;

constexpr int seconds = 1000;

// The server chooses a free display number and writes it to its standard output. It must not start
// anew when its last client leaves, as the first one may: it would refuse the next one meanwhile.
QByteArray start_server(QProcess& server, const QSize& size)
{
    const QString screen = QStringLiteral("%1x%2x24").arg(size.width()).arg(size.height());
    server.start("Xvfb",
                 {"-displayfd", "1", "-screen", "0", screen, "-nolisten", "tcp", "-noreset"});
    QByteArray number;
    while (!number.endsWith('\n') && server.waitForReadyRead(20 * seconds))
        number += server.readAllStandardOutput();
    return number.trimmed();
}

// The window of a program that comes up before the manager answers requests may never be shown. The
// manager has more than one desktop at first.
bool manager_answers()
{
    const QDeadlineTimer deadline(20s);
    do {
        xdotool({"set_num_desktops", "1"});
        if (xdotool({"get_num_desktops"}) == "1")
            return true;
        QThread::msleep(20);
    } while (!deadline.hasExpired());
    return false;
}

} // namespace

desktop::desktop(const QSize& size)
{
    const QByteArray number = start_server(server, size);
    if (number.isEmpty())
        return;
    qputenv("DISPLAY", ":" + number);
    manager.start("openbox", QStringList());
    ready = manager_answers();
}

desktop::~desktop()
{
    manager.kill();
    manager.waitForFinished();
    server.terminate();
    server.waitForFinished();
}

QString xdotool(const QStringList& words)
{
    QProcess process;
    process.start("xdotool", words);
    process.waitForFinished(20 * seconds);
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

void start_xdotool(const QStringList& words)
{
    QProcess::startDetached("xdotool", words);
}

QImage screenshot()
{
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage().convertToFormat(
        QImage::Format_RGB32);
}

int pixels_of(const QImage& image, const QRect& area, const QColor& colour)
{
    int count = 0;
    const QRect inside = area.intersected(image.rect());
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x)
            count += image.pixelColor(x, y) == colour ? 1 : 0;
    }
    return count;
}
