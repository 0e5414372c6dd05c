#include "docu/zoomselector.h"
#include "tests/support/docu_driver.h"

#include <QLineEdit>
#include <QPdfBookmarkModel>
#include <QPdfPageSelector>
#include <QScrollBar>
#include <QTest>

namespace {

pdf_file with_bookmarks()
{
    pdf_file file = numbered_pages(5);
    file.title = "Handbuch für alle";
    file.bookmarks = {
        {"Einführung", 0, 0}, {"Bedienung", 2, 0}, {"Maus", 3, 1}, {"Rad", 3, 2}, {"Ende", 4, 0}};
    return file;
}

QModelIndex bookmark(const docu_driver& driver, int row, int below = -1)
{
    const QAbstractItemModel* const model = driver.bookmarks->model();
    const QModelIndex top = model->index(below < 0 ? row : below, 0);
    return below < 0 ? top : model->index(row, 0, top);
}

} // namespace

class tst_docu_navigation : public QObject
{
    Q_OBJECT

private slots:
    void title_data();
    void title();
    void first_page_shown();
    void bookmarks();
    void bookmark_selected();
    void bookmark_that_is_none();
    void thumbnail_selected();
    void page_selector();
    void next_and_previous();
    void page_keys();
    void back_and_forward();
    void zoom_is_kept_by_jumps();
    void zoom_steps();
    void zoom_keys();
    void zoom_selector_sets_the_view();
    void typed_zoom();
    void continuous();
    void another_document();
};

void tst_docu_navigation::title_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("expected");
    QTest::newRow("of the metadata") << "Handbuch für alle" << "Handbuch für alle";
    QTest::newRow("none") << "" << "Documentation";
}

void tst_docu_navigation::title()
{
    QFETCH(QString, title);
    QFETCH(QString, expected);
    pdf_file file = numbered_pages(2);
    file.title = title;
    const docu_driver driver(file);
    QCOMPARE(driver.dialog->windowTitle(), expected);
}

void tst_docu_navigation::first_page_shown()
{
    const docu_driver first(numbered_pages(5));
    QCOMPARE(first.page(), 0);
    QCOMPARE(first.label(), " 1 / 5");
    const docu_driver second(numbered_pages(5), 1);
    QCOMPARE(second.page(), 1);
    QCOMPARE(second.label(), " 2 / 5");
}

void tst_docu_navigation::bookmarks()
{
    const docu_driver driver(with_bookmarks());
    QCOMPARE(driver.bookmarks->model()->rowCount(), 3);
    const int title = static_cast<int>(QPdfBookmarkModel::Role::Title);
    QCOMPARE(bookmark(driver, 0).data(title).toString(), "Einführung");
    QCOMPARE(bookmark(driver, 0, 1).data(title).toString(), "Maus");
    QVERIFY(driver.bookmarks->isExpanded(bookmark(driver, 1)));
    QVERIFY(driver.bookmarks->isExpanded(bookmark(driver, 0, 1)));
}

void tst_docu_navigation::bookmark_selected()
{
    const docu_driver driver(with_bookmarks());
    driver.bookmarks->setCurrentIndex(bookmark(driver, 0, 1));
    QCOMPARE(driver.page(), 0); // current is not yet activated
    QTest::keyClick(driver.bookmarks, Qt::Key_Return);
    QCOMPARE(driver.page(), 3);
    QCOMPARE(driver.label(), " 4 / 5");
    emit driver.bookmarks->activated(bookmark(driver, 1));
    QCOMPARE(driver.page(), 2);
}

void tst_docu_navigation::bookmark_that_is_none()
{
    const docu_driver driver(with_bookmarks(), 2);
    emit driver.bookmarks->activated(QModelIndex());
    QCOMPARE(driver.page(), 2);
}

void tst_docu_navigation::thumbnail_selected()
{
    const docu_driver driver(numbered_pages(5));
    driver.tabs->setCurrentIndex(1);
    QCOMPARE(driver.thumbnails->model(), driver.document->pageModel());
    driver.thumbnails->setCurrentIndex(driver.thumbnails->model()->index(3, 0));
    QTest::keyClick(driver.thumbnails, Qt::Key_Return);
    QCOMPARE(driver.page(), 3);
}

void tst_docu_navigation::page_selector()
{
    const docu_driver driver(numbered_pages(5));
    auto* const selector = driver.tools->findChild<QPdfPageSelector*>();
    QCOMPARE(selector->document(), driver.document);
    selector->setCurrentPage(4);
    QCOMPARE(driver.page(), 4);
    driver.action("Previous Page")->trigger();
    QCOMPARE(selector->currentPage(), 3);
}

void tst_docu_navigation::next_and_previous()
{
    const docu_driver driver(numbered_pages(3));
    const auto press = [&](const char* tool_tip) {
        driver.action(tool_tip)->trigger();
        return driver.page();
    };
    QCOMPARE(press("Previous Page"), 0);
    QCOMPARE(press("Next Page"), 1);
    QCOMPARE(press("Next Page"), 2);
    QCOMPARE(press("Next Page"), 2);
    QCOMPARE(driver.label(), " 3 / 3");
    QCOMPARE(press("Previous Page"), 1);
}

void tst_docu_navigation::page_keys()
{
    const docu_driver driver(numbered_pages(3));
    QTest::keyClick(driver.dialog, Qt::Key_PageDown);
    QCOMPARE(driver.page(), 1);
    QTest::keyClick(driver.dialog, Qt::Key_PageUp);
    QCOMPARE(driver.page(), 0);
}

void tst_docu_navigation::back_and_forward()
{
    const docu_driver driver(numbered_pages(5));
    QAction* const back = driver.action("Back to previous view");
    QAction* const forward = driver.action("Forward to next view");
    QVERIFY(!back->isEnabled() && !forward->isEnabled());
    emit driver.thumbnails->activated(driver.thumbnails->model()->index(3, 0));
    QVERIFY(back->isEnabled() && !forward->isEnabled());
    back->trigger();
    QCOMPARE(driver.page(), 0);
    QVERIFY(!back->isEnabled() && forward->isEnabled());
    forward->trigger();
    QCOMPARE(driver.page(), 3);
    QVERIFY(back->isEnabled() && !forward->isEnabled());
}

void tst_docu_navigation::zoom_is_kept_by_jumps()
{
    const docu_driver driver(with_bookmarks());
    driver.zoom->setCurrentText("50%");
    const QPdfPageNavigator& navigator = *driver.view->pageNavigator();
    driver.view->pageNavigator()->jump(0, QPointF(5, 5), 0.5);
    driver.action("Next Page")->trigger();
    QCOMPARE(navigator.currentZoom(), 0.5);
    emit driver.bookmarks->activated(bookmark(driver, 1));
    QCOMPARE(navigator.currentZoom(), 0.5);
    emit driver.thumbnails->activated(driver.thumbnails->model()->index(3, 0));
    QCOMPARE(navigator.currentZoom(), 0.5);
    QCOMPARE(driver.view->zoomFactor(), 0.5);
    QCOMPARE(driver.zoom->currentText(), "50%");
}

// Each step is rounded to a whole percentage.
void tst_docu_navigation::zoom_steps()
{
    const docu_driver driver(numbered_pages(1));
    driver.action("Zoom In")->trigger();
    QCOMPARE(driver.view->zoomFactor(), 1.41);
    QCOMPARE(driver.zoom->currentText(), "141%");
    driver.action("Zoom In")->trigger();
    QCOMPARE(driver.view->zoomFactor(), 1.99);
    driver.zoom->reset();
    driver.action("Zoom Out")->trigger();
    QCOMPARE(driver.view->zoomFactor(), 0.71);
    QCOMPARE(driver.zoom->currentText(), "71%");
    for (int i = 0; i < 20; ++i)
        driver.action("Zoom Out")->trigger();
    QVERIFY(driver.view->zoomFactor() <= 0.01); // there is no lower bound
}

void tst_docu_navigation::zoom_keys()
{
    const docu_driver driver(numbered_pages(1));
    QTest::keyClick(driver.dialog, Qt::Key_Equal, Qt::ControlModifier);
    QCOMPARE(driver.view->zoomFactor(), 1.41);
    QTest::keyClick(driver.dialog, Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(driver.view->zoomFactor(), 1.0);
}

void tst_docu_navigation::zoom_selector_sets_the_view()
{
    const docu_driver driver(numbered_pages(1));
    driver.zoom->setCurrentIndex(0);
    QCOMPARE(driver.view->zoomMode(), QPdfView::ZoomMode::FitToWidth);
    driver.zoom->setCurrentIndex(1);
    QCOMPARE(driver.view->zoomMode(), QPdfView::ZoomMode::FitInView);
    driver.zoom->setCurrentIndex(3);
    QCOMPARE(driver.view->zoomMode(), QPdfView::ZoomMode::Custom);
    QCOMPARE(driver.view->zoomFactor(), 0.25);
}

void tst_docu_navigation::typed_zoom()
{
    const docu_driver driver(numbered_pages(1));
    driver.zoom->lineEdit()->selectAll();
    QTest::keyClicks(driver.zoom->lineEdit(), "80");
    QTest::keyClick(driver.zoom->lineEdit(), Qt::Key_Return);
    QCOMPARE(driver.view->zoomFactor(), 0.8);
}

// The action starts checked on a view of single pages: the first click only unchecks it.
void tst_docu_navigation::continuous()
{
    const docu_driver driver(numbered_pages(4));
    QAction* const action = driver.action("Continuous");
    const int height_of_one = driver.view->verticalScrollBar()->maximum();
    action->trigger();
    QVERIFY(!action->isChecked());
    QCOMPARE(driver.view->pageMode(), QPdfView::PageMode::SinglePage);
    action->trigger();
    QVERIFY(action->isChecked());
    QCOMPARE(driver.view->pageMode(), QPdfView::PageMode::MultiPage);
    QVERIFY(driver.view->verticalScrollBar()->maximum() > height_of_one + 500);
}

void tst_docu_navigation::another_document()
{
    const docu_driver driver(with_bookmarks(), 3);
    driver.dialog->loadDocument(driver.write(numbered_pages(2).bytes()), 0);
    QCOMPARE(driver.dialog->windowTitle(), "Documentation");
    QCOMPARE(driver.bookmarks->model()->rowCount(), 0);
    QVERIFY(driver.label().endsWith(" / 2"));
}

QTEST_MAIN(tst_docu_navigation)
#include "tst_docu_navigation.moc"
