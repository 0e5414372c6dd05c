#include "tests/end_to_end/viewer.h"

#include "tests/end_to_end/desktop.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <chrono>

namespace {

using namespace std::chrono_literals;

constexpr int patience = 10'000; // ms

int scale()
{
    static const int factor = qMax(1, qEnvironmentVariableIntValue("QT_SCALE_FACTOR"));
    return factor;
}

// Waits until the program has handled its input, and the screen stands still.
void settle()
{
    const QDeadlineTimer deadline(3s);
    QTest::qWait(200);
    QImage before;
    QImage now = screenshot();
    do {
        before = now;
        QTest::qWait(80);
        now = screenshot();
    } while (now != before && !deadline.hasExpired());
}

QStringList place_words(const QPoint& point)
{
    return {QString::number(point.x()), QString::number(point.y())};
}

// Of what is inside the frame, on the screen.
QRect geometry_of(const QString& window)
{
    const QString text = xdotool({"getwindowgeometry", "--shell", window});
    const auto number = [&](const QString& name) {
        const QRegularExpression line("^" + name + "=(-?\\d+)$",
                                      QRegularExpression::MultilineOption);
        return line.match(text).captured(1).toInt();
    };
    return {number("X"), number("Y"), number("WIDTH"), number("HEIGHT")};
}

QStringList visible_windows(const QString& title)
{
    return xdotool({"search", "--onlyvisible", "--name", "^" + title + "$"})
        .split('\n', Qt::SkipEmptyParts);
}

} // namespace

viewer::viewer(const viewer_start& start)
{
    if (start.folder.isEmpty())
        temporary = std::make_unique<QTemporaryDir>();
    folder.setPath(temporary ? temporary->path() : start.folder);
    QProcessEnvironment environment = start.environment;
    environment.insert("QT_QPA_PLATFORM", "xcb");
    program.setProcessEnvironment(environment);
    program.setWorkingDirectory(folder.path());
    program.setStandardErrorFile(folder.filePath("log"));
    program.start(start.command.first(), start.command.mid(1));
}

viewer::~viewer()
{
    if (program.state() != QProcess::NotRunning) {
        program.kill();
        program.waitForFinished();
    }
}

bool viewer::is_shown()
{
    const QDeadlineTimer deadline(20s);
    while (!deadline.hasExpired()) {
        const auto candidates = visible_windows("plot_korimo");
        for (const QString& candidate : candidates) {
            if (geometry_of(candidate).size() != QSize(941, 848) * scale())
                continue;
            xdotool({"windowmove", "--sync", candidate, "100", "60"});
            settle();
            inside = QPoint(100, 60);
            frame = geometry_of(candidate).topLeft() - inside;
            origin = inside + QPoint(0, central_widget_top());
            return true;
        }
        QTest::qWait(100);
    }
    return false;
}

// Menu and tool bar are as high as their font; the grey of the window begins below them.
int viewer::central_widget_top() const
{
    const QImage screen = screenshot();
    int top = 0;
    while (top < 200 * scale() && screen.pixelColor(inside + QPoint(5, top)) != QColor(0xc9c7c7))
        ++top;
    return top;
}

bool viewer::bring(const QString& example) const
{
    return QFile::copy(QString(EXAMPLES_DIR) + "/" + example, folder.filePath(example));
}

bool viewer::bring_manual() const
{
    return QFile::copy(MANUAL, folder.filePath("01_Handbuch_KORIMO9.pdf"));
}

void viewer::close_main_window() const
{
    click_in_window(QPoint(931, -10)); // in its frame
}

void viewer::close_by_key()
{
    xdotool({"search", "--onlyvisible", "--name", "^plot_korimo$", "windowactivate", "--sync", "%1",
             "key", "alt+F4"});
}

QPoint viewer::on_screen(const QPoint& place) const
{
    return origin + place * scale();
}

QRect viewer::on_screen(const QRect& area) const
{
    return {on_screen(area.topLeft()), area.size() * scale()};
}

void viewer::click_on_screen(const QPoint& point) const
{
    xdotool(QStringList{"mousemove"} + place_words(point) + QStringList{"click", "1"});
    settle();
}

void viewer::click(const QPoint& point) const
{
    click_on_screen(on_screen(point));
}

void viewer::click_in_window(const QPoint& point) const
{
    click_on_screen(inside + point * scale());
}

void viewer::click_in_dialog(const QString& title, const QPoint& point, int times)
{
    xdotool(QStringList{"mousemove", "--window", visible_windows(title).value(0)} +
            place_words(point * scale()) +
            QStringList{"click", "--repeat", QString::number(times), "--delay", "80", "1"});
    settle();
}

int viewer::height_of(const QString& title)
{
    return geometry_of(visible_windows(title).value(0)).height();
}

QImage viewer::picture_of(const QString& title) const
{
    settle();
    return screenshot().copy(geometry_of(visible_windows(title).value(0)).translated(-frame));
}

void viewer::wheel(const QPoint& point, int notches, const QString& modifier) const
{
    xdotool(QStringList{"mousemove"} + place_words(on_screen(point)));
    if (!modifier.isEmpty())
        xdotool({"keydown", modifier});
    xdotool({"click", "--repeat", QString::number(qAbs(notches)), "--delay", "60",
             notches > 0 ? "4" : "5"});
    settle();
    if (!modifier.isEmpty())
        xdotool({"keyup", modifier});
}

void viewer::drag_right(const QPoint& from, const QPoint& to) const
{
    xdotool(QStringList{"mousemove"} + place_words(on_screen(from)) +
            QStringList{"mousedown", "3"});
    const QPoint middle = (from + to) / 2;
    for (const QPoint& point : {middle, to}) {
        xdotool(QStringList{"mousemove"} + place_words(on_screen(point)));
        QTest::qWait(50);
    }
    xdotool({"mouseup", "3"});
    settle();
}

void viewer::type(const QString& text) const
{
    xdotool({"type", "--delay", "5", text});
    settle();
}

void viewer::key(const QString& name) const
{
    xdotool({"key", name});
    settle();
}

void viewer::choose_file_entry(int entry) const
{
    click_in_window(QPoint(25, 10));
    for (int i = 0; i <= entry; ++i)
        key("Down");
    key("Return");
}

bool viewer::sees_window(const QString& title)
{
    return QTest::qWaitFor([&] { return !visible_windows(title).isEmpty(); }, patience);
}

bool viewer::sees_no_window(const QString& title)
{
    return QTest::qWaitFor([&] { return visible_windows(title).isEmpty(); }, patience);
}

QImage viewer::look(const QRect& area) const
{
    return screenshot().copy(on_screen(area));
}

int viewer::sees(const QRect& area, const QColor& colour) const
{
    return pixels_of(screenshot(), on_screen(area), colour);
}

int viewer::exit_code()
{
    const bool ended = program.state() == QProcess::NotRunning || program.waitForFinished(patience);
    return ended && program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
}
