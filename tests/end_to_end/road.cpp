#include "tests/end_to_end/road.h"

#include <QApplication>
#include <QFile>
#include <QTest>

namespace {

bool screenshots_are_wanted()
{
    return qEnvironmentVariableIsSet("KORIMO_SCREENSHOTS");
}

} // namespace

road::road(const QSize& screen_size)
    : screen(screen_size)
{
}

road::~road() = default;

void road::initTestCase()
{
    QVERIFY2(screen.is_ready(), "Xvfb and openbox are needed");
    QVERIFY2(!xdotool({"version"}).isEmpty(), "xdotool is needed");
    static int count = 1;
    static char name[] = "end_to_end";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "xcb");
    application = std::make_unique<QApplication>(count, arguments);
    plan = std::make_unique<floor_plan>();
}

void road::init()
{
    program = std::make_unique<viewer>();
    QVERIFY(program->is_shown());
}

void road::cleanup()
{
    if (QTest::currentTestFailed() || screenshots_are_wanted())
        screenshot().save(QString("screenshot_%1.png").arg(QTest::currentTestFunction()));
    program.reset();
}

void road::cleanupTestCase()
{
    plan.reset();
    application.reset();
}

void road::add_by_typing(const QStringList& names)
{
    QString text;
    for (const QString& name : names) {
        QVERIFY(program->bring(name));
        text += "\"" + name + "\" ";
    }
    program->choose_file_entry(0);
    QVERIFY(viewer::sees_window(window_title::files));
    QTest::qWait(500);
    program->type(text.trimmed());
    program->key("Return");
    QTRY_VERIFY(program->sees(first_file_row, Qt::black) > 20);
}

void road::select_row(int row) const
{
    program->click(place::files.topLeft() + QPoint(100, 9 + 16 * row));
}

QImage road::save_picture(const QString& name)
{
    program->choose_file_entry(1);
    const bool saved = QTest::qWaitFor([&] { return QFile::exists(program->path_of(name)); });
    keep_screenshot("saved");
    program->key("Return");
    return saved ? QImage(program->path_of(name)) : QImage();
}

void road::open_manual(const QString& title)
{
    program->click_in_window(plan->menu("Dokumentation").center());
    program->key("Down");
    program->key("Return");
    QVERIFY(viewer::sees_window(title));
    QTest::qWait(1000); // until the first page has been drawn
}

void road::keep_screenshot(const QString& name)
{
    keep_picture(screenshot(), name);
}

void road::keep_picture(const QImage& picture, const QString& name)
{
    if (screenshots_are_wanted())
        picture.save(QString("screenshot_%1.png").arg(name));
}
