#include "docu/zoomselector.h"
#include "tests/support/docu_driver.h"
#include "tests/support/focus_walk.h"

#include <QApplication>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

/// The viewer of the manual, used with keys alone, and what a screen reader says of it.
class tst_docu_keys : public QObject
{
    Q_OBJECT

private slots:
    void order_data();
    void order();
    void where_the_focus_is_at_first();
    void clicks_on_the_tool_bar_keep_the_focus();
    void back_and_forward();
    void pages();
    void zoom();
    void continuous();
    void search();
    void side_panel();
    void tool_bar_too_narrow();
    void side_panel_and_zoom_are_named();
};

namespace {

QStringList order_at_first()
{
    return {"Document",         "Bookmarks",     "Bookmarks", "Previous Page", "Page",
            "Next Page",        "Zoom Out",      "100%",      "Zoom In",       "Continuous",
            "Find in document", "Find Previous", "Find Next"};
}

void wait_for_the_focus(const docu_driver& driver)
{
    driver.dialog->activateWindow();
    QTRY_VERIFY(QApplication::focusWidget());
}

bool press_tool(const QString& name)
{
    if (!tab_to(name, spoken_name_of))
        return false;
    press_key(Qt::Key_Space);
    return true;
}

} // namespace

void tst_docu_keys::order_data()
{
    QTest::addColumn<int>("jumps");
    QTest::addColumn<QStringList>("places");
    QTest::newRow("nothing to go back to") << 0 << order_at_first();
    QStringList with_back = order_at_first();
    with_back.insert(3, "Back to previous view");
    QTest::newRow("a page behind") << 1 << with_back;
    QStringList with_both = with_back;
    with_both.insert(4, "Forward to next view");
    QTest::newRow("pages behind and before") << 2 << with_both;
}

void tst_docu_keys::order()
{
    QFETCH(int, jumps);
    QFETCH(QStringList, places);
    const docu_driver driver(numbered_pages(4));
    wait_for_the_focus(driver);
    for (int i = 0; i < jumps; ++i)
        QTest::keyClick(driver.dialog, Qt::Key_PageDown);
    if (jumps == 2)
        driver.action("Back to previous view")->trigger();
    driver.view->setFocus();
    places.append(places.takeFirst());
    QCOMPARE(walk(Qt::Key_Tab, places.size(), spoken_name_of), places);
}

void tst_docu_keys::where_the_focus_is_at_first()
{
    const docu_driver driver(numbered_pages(4));
    wait_for_the_focus(driver);
    QCOMPARE(QApplication::focusWidget(), driver.view);
}

void tst_docu_keys::clicks_on_the_tool_bar_keep_the_focus()
{
    const docu_driver driver(numbered_pages(4));
    wait_for_the_focus(driver);
    const auto buttons = driver.tools->findChildren<QToolButton*>(Qt::FindDirectChildrenOnly);
    for (QToolButton* button : buttons)
        QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(QApplication::focusWidget(), driver.view);
}

void tst_docu_keys::back_and_forward()
{
    const docu_driver driver(numbered_pages(4));
    wait_for_the_focus(driver);
    QTest::keyClick(driver.dialog, Qt::Key_PageDown);
    QVERIFY(press_tool("Back to previous view"));
    QTRY_COMPARE(driver.page(), 0);
    QVERIFY(press_tool("Forward to next view"));
    QTRY_COMPARE(driver.page(), 1);
}

void tst_docu_keys::pages()
{
    const docu_driver driver(numbered_pages(4));
    wait_for_the_focus(driver);
    QVERIFY(press_tool("Next Page"));
    press_key(Qt::Key_Space);
    QCOMPARE(driver.page(), 2);
    QVERIFY(press_tool("Previous Page"));
    QCOMPARE(driver.page(), 1);
    QVERIFY(tab_to("Page", spoken_name_of));
    press_key(Qt::Key_4);
    press_key(Qt::Key_Return);
    QTRY_COMPARE(driver.page(), 3);
}

void tst_docu_keys::zoom()
{
    const docu_driver driver(numbered_pages(4));
    wait_for_the_focus(driver);
    QVERIFY(press_tool("Zoom In"));
    QCOMPARE(driver.view->zoomFactor(), 1.41);
    QVERIFY(press_tool("Zoom Out"));
    QCOMPARE(driver.view->zoomFactor(), 1.0);
    QVERIFY(tab_to("100%", spoken_name_of));
    press_key(Qt::Key_Up); // to the entry above
    QCOMPARE(driver.view->zoomFactor(), 0.75);
}

void tst_docu_keys::continuous()
{
    const docu_driver driver(numbered_pages(4));
    wait_for_the_focus(driver);
    QVERIFY(press_tool("Continuous"));
    press_key(Qt::Key_Space);
    QCOMPARE(driver.view->pageMode(), QPdfView::PageMode::MultiPage);
}

void tst_docu_keys::search()
{
    const docu_driver driver(numbered_pages(4));
    wait_for_the_focus(driver);
    QVERIFY(tab_to("Find in document", spoken_name_of));
    for (const Qt::Key key : {Qt::Key_P, Qt::Key_A, Qt::Key_G, Qt::Key_E})
        press_key(key);
    QTRY_COMPARE(driver.found->rowCount({}), 4);
    QVERIFY(press_tool("Find Next"));
    QCOMPARE(driver.result_row(), 0);
    QVERIFY(press_tool("Find Previous"));
    QCOMPARE(driver.result_row(), 3);
    QVERIFY(tab_to("Search Results", spoken_name_of)); // the tab
    press_key(Qt::Key_Tab);
    press_key(Qt::Key_Up);
    QCOMPARE(driver.result_row(), 2);
}

void tst_docu_keys::side_panel()
{
    pdf_file file = numbered_pages(4);
    file.bookmarks = {{"one", 0}, {"three", 2}};
    const docu_driver driver(file);
    wait_for_the_focus(driver);
    QVERIFY(tab_to("Bookmarks", spoken_name_of)); // the tab, and then the tree
    press_key(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), driver.bookmarks);
    press_key(Qt::Key_Down);
    press_key(Qt::Key_Return);
    QTRY_COMPARE(driver.page(), 2);
    press_key(Qt::Key_Backtab);
    press_key(Qt::Key_Right); // to the next tab, which is below
    QCOMPARE(driver.tabs->currentIndex(), 1);
    press_key(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), driver.thumbnails);
    press_key(Qt::Key_End);
    press_key(Qt::Key_Return);
    QTRY_COMPARE(driver.page(), 3);
}

// What does not fit is behind a button at the end, which can be reached, too.
void tst_docu_keys::tool_bar_too_narrow()
{
    const docu_driver driver(numbered_pages(4));
    wait_for_the_focus(driver);
    driver.dialog->resize(400, 600);
    auto* const more = driver.tools->findChild<QToolButton*>("qt_toolbar_ext_button");
    QTRY_VERIFY(more->isVisible());
    QVERIFY(tab_to("qt_toolbar_ext_button"));
}

void tst_docu_keys::side_panel_and_zoom_are_named()
{
    const docu_driver driver;
    QCOMPARE(driver.bookmarks->accessibleName(), "Bookmarks");
    QCOMPARE(driver.thumbnails->accessibleName(), "Pages");
    QCOMPARE(driver.results->accessibleName(), "Search Results");
    QCOMPARE(driver.zoom->accessibleName(), "Zoom");
    QCOMPARE(driver.zoom->accessibleDescription(), "Zoom");
}

QTEST_MAIN(tst_docu_keys)
#include "tst_docu_keys.moc"
