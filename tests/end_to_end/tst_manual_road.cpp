#include "tests/end_to_end/road.h"

#include <QTest>

#include <functional>

class tst_manual_road : public road
{
    Q_OBJECT

private slots:
    void bookmarks_and_thumbnails();
    void pages_and_history();
    void page_box();
    void zoom();
    void search();
    void closed_by_keys();
    void main_window_closed_first();
    void missing_manual();

private:
    bool changes_by(const std::function<void()>& act);
    void type_zoom(const QString& text);
    QImage pages() const;
};

namespace {

// The key F3 by its code: by its name, xdotool presses Alt with it.
constexpr QLatin1StringView find_next("69");

// Places in the manual's window: the tool bar is as high as its largest item, the tabs stand at
// the left edge, and the page view fills what is right of the side panel.
constexpr int first_line = 60;
constexpr QPoint first_bookmark(120, first_line);
constexpr QPoint back_button(15, 17);
constexpr QPoint forward_button(50, 17);
constexpr QPoint page_field(120, 20);
constexpr QPoint zoom_field(300, 20);
constexpr QPoint pages_tab(13, 160);
constexpr QPoint third_thumbnail(120, 500);

} // namespace

// What the right part of the screen shows: the page, since the manual covers most of it.
QImage tst_manual_road::pages() const
{
    return screenshot().copy(500, 150, 500, 700);
}

// Whether the page shown changes; pages are drawn beside the event loop, so that takes a while.
bool tst_manual_road::changes_by(const std::function<void()>& act)
{
    const QImage before = pages();
    act();
    return QTest::qWaitFor([&] { return pages() != before; }, 3000);
}

void tst_manual_road::bookmarks_and_thumbnails()
{
    QVERIFY(program->bring_manual());
    open_manual(window_title::manual);
    keep_screenshot("manual");
    QVERIFY(changes_by([&] {
        viewer::click_in_dialog(window_title::manual, first_bookmark);
        for (int i = 0; i < 6; ++i)
            program->key("Down");
        program->key("Return");
    }));
    QVERIFY(changes_by([&] {
        viewer::click_in_dialog(window_title::manual, pages_tab);
        QTest::qWait(500);
        viewer::click_in_dialog(window_title::manual, third_thumbnail, 2);
    }));
    keep_screenshot("manual_pages");
}

void tst_manual_road::pages_and_history()
{
    QVERIFY(program->bring_manual());
    open_manual(window_title::manual);
    const QImage first = pages();
    QVERIFY(changes_by([&] { program->key("Next"); }));
    const QImage second = pages();
    QVERIFY(changes_by([&] { program->key("Next"); }));
    QVERIFY(changes_by([&] { program->key("Prior"); }));
    QTRY_COMPARE(pages(), second);
    QVERIFY(changes_by([&] { program->key("Prior"); }));
    QTRY_COMPARE(pages(), first);
    program->key("Prior");
    QCOMPARE(pages(), first);
    // The arrows at the left end of the tool bar: back, and forward again.
    QVERIFY(changes_by([&] { viewer::click_in_dialog(window_title::manual, back_button); }));
    QTRY_COMPARE(pages(), second);
    QVERIFY(changes_by([&] { viewer::click_in_dialog(window_title::manual, forward_button); }));
    QTRY_COMPARE(pages(), first);
}

void tst_manual_road::type_zoom(const QString& text)
{
    viewer::click_in_dialog(window_title::manual, zoom_field);
    program->key("ctrl+a");
    program->type(text);
    program->key("Return");
}

void tst_manual_road::page_box()
{
    QVERIFY(program->bring_manual());
    open_manual(window_title::manual);
    QVERIFY(changes_by([&] {
        viewer::click_in_dialog(window_title::manual, page_field);
        program->key("ctrl+a");
        program->type("5");
        program->key("Return");
    }));
}

void tst_manual_road::zoom()
{
    QVERIFY(program->bring_manual());
    open_manual(window_title::manual);
    program->key("Next");
    QTest::qWait(500);
    const QImage normal = pages();
    QVERIFY(changes_by([&] { program->key("ctrl+equal"); }));
    QVERIFY(changes_by([&] { program->key("ctrl+minus"); }));
    QTRY_COMPARE(pages(), normal);
    QVERIFY(changes_by([&] { type_zoom("60"); }));
    QVERIFY(changes_by([&] { type_zoom("Fit Width"); }));
    QVERIFY(changes_by([&] { type_zoom("Fit Page"); }));
    keep_screenshot("manual_zoom");
}

void tst_manual_road::search()
{
    QVERIFY(program->bring_manual());
    open_manual(window_title::manual);
    program->key("ctrl+f");
    QVERIFY(changes_by([&] {
        program->type("Pegel");
        QTest::qWait(1500);
        program->key(find_next);
    }));
    keep_screenshot("manual_search");
    QVERIFY(changes_by([&] {
        for (int i = 0; i < 6; ++i)
            program->key(find_next);
    }));
    const QImage seventh_hit = pages();
    program->key("shift+" + find_next);
    program->key(find_next);
    QTRY_COMPARE(pages(), seventh_hit);
    QVERIFY(changes_by([&] {
        for (int i = 0; i < 6; ++i)
            program->key("shift+" + find_next);
    }));
}

void tst_manual_road::closed_by_keys()
{
    QVERIFY(program->bring_manual());
    open_manual(window_title::manual);
    program->key("alt+F4");
    QVERIFY(viewer::sees_no_window(window_title::manual));
    open_manual(window_title::manual);
    program->key("Escape");
    QVERIFY(viewer::sees_no_window(window_title::manual));
}

void tst_manual_road::main_window_closed_first()
{
    QVERIFY(program->bring_manual());
    open_manual(window_title::manual);
    program->close_main_window();
    QVERIFY(viewer::sees_no_window("plot_korimo"));
    QCOMPARE(program->exit_code(), 0);
}

void tst_manual_road::missing_manual()
{
    open_manual("Documentation");
    keep_screenshot("manual_missing");
    program->key("Escape");
    QVERIFY(viewer::sees_no_window("Documentation"));
}

QTEST_APPLESS_MAIN(tst_manual_road)
#include "tst_manual_road.moc"
