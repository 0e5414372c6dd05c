#include "tests/support/docu_driver.h"

#include <QTest>

namespace {

// The word stands on pages 2, 4 and 5 of five.
pdf_file with_words()
{
    pdf_file file = numbered_pages(5);
    for (const int page : {1, 3, 4})
        file.pages[page] += " Rückhaltebecken";
    return file;
}

// Counts how often a widget is painted.
class paint_counter : public QObject
{
public:
    explicit paint_counter(QWidget* widget) { widget->installEventFilter(this); }

    int count = 0;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

} // namespace

class tst_docu_search : public QObject
{
    Q_OBJECT

private slots:
    void typing_finds();
    void set_text_does_not_search();
    void next_wraps_around();
    void previous_wraps_around();
    void from_no_current_result();
    void without_results();
    void result_on_another_page();
    void result_on_the_same_page();
    void keys();
    void find_key();
    void hits_are_painted_as_they_come();
    void late_hit_is_painted();
    void hits_are_highlighted();
};

void tst_docu_search::typing_finds()
{
    const docu_driver driver(with_words());
    QCOMPARE(driver.tabs->currentIndex(), 0);
    driver.search("Rückhaltebecken", 3);
    QCOMPARE(driver.tabs->currentIndex(), 2);
    QCOMPARE(driver.found->searchString(), "Rückhaltebecken");
    QCOMPARE(driver.result_row(), -1);
    driver.tabs->setCurrentIndex(0);
    driver.search("page", 5);
    QCOMPARE(driver.tabs->currentIndex(), 2);
}

void tst_docu_search::set_text_does_not_search()
{
    const docu_driver driver(with_words());
    driver.field->setText("page");
    QCOMPARE(driver.found->searchString(), "");
    QCOMPARE(driver.tabs->currentIndex(), 0);
}

void tst_docu_search::next_wraps_around()
{
    const docu_driver driver(with_words());
    driver.search("Rückhaltebecken", 3);
    QList<int> rows;
    QList<int> pages;
    for (int i = 0; i < 4; ++i) {
        driver.action("Find Next")->trigger();
        rows.append(driver.result_row());
        pages.append(driver.page());
    }
    QCOMPARE(rows, (QList<int>{0, 1, 2, 0}));
    QCOMPARE(pages, (QList<int>{1, 3, 4, 1}));
}

void tst_docu_search::previous_wraps_around()
{
    const docu_driver driver(with_words());
    driver.search("Rückhaltebecken", 3);
    driver.action("Find Next")->trigger();
    QList<int> rows;
    for (int i = 0; i < 3; ++i) {
        driver.action("Find Previous")->trigger();
        rows.append(driver.result_row());
    }
    QCOMPARE(rows, (QList<int>{2, 1, 0}));
}

void tst_docu_search::from_no_current_result()
{
    const docu_driver next(with_words());
    next.search("Rückhaltebecken", 3);
    next.action("Find Next")->trigger();
    QCOMPARE(next.result_row(), 0);
    const docu_driver previous(with_words());
    previous.search("Rückhaltebecken", 3);
    previous.action("Find Previous")->trigger();
    QCOMPARE(previous.result_row(), 2);
}

void tst_docu_search::without_results()
{
    const docu_driver driver(with_words());
    driver.search("nirgends", 0);
    for (const char* which : {"Find Next", "Find Previous"}) {
        driver.action(which)->trigger();
        QCOMPARE(driver.result_row(), -1);
        QCOMPARE(driver.page(), 0);
    }
}

// Going to another page, the page box comes after the hit and asks for the top of the page.
void tst_docu_search::result_on_another_page()
{
    const docu_driver driver(with_words());
    driver.search("Rückhaltebecken", 3);
    driver.action("Find Next")->trigger();
    QCOMPARE(driver.page(), 1);
    QCOMPARE(driver.view->pageNavigator()->currentLocation(), QPointF());
    QCOMPARE(driver.label(), " 2 / 5");
}

void tst_docu_search::result_on_the_same_page()
{
    const docu_driver driver(with_words(), 1);
    driver.search("Rückhaltebecken", 3);
    driver.view->pageNavigator()->jump(1, QPointF(), 0.5);
    driver.action("Find Next")->trigger();
    const QModelIndex hit = driver.results->currentIndex();
    const QPointF place = hit.data(static_cast<int>(QPdfSearchModel::Role::Location)).toPointF();
    QCOMPARE(driver.page(), 1);
    QVERIFY(place != QPointF());
    QCOMPARE(driver.view->pageNavigator()->currentLocation(), place);
    QCOMPARE(driver.view->pageNavigator()->currentZoom(), 0.5); // a zoom of 0 keeps it
}

void tst_docu_search::keys()
{
    const docu_driver driver(with_words());
    driver.search("Rückhaltebecken", 3);
    QTest::keyClick(driver.field, Qt::Key_F3);
    QCOMPARE(driver.result_row(), 0);
    QTest::keyClick(driver.field, Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(driver.result_row(), 2);
}

void tst_docu_search::find_key()
{
    const docu_driver driver(with_words());
    for (QWidget* const from :
         {static_cast<QWidget*>(driver.view), static_cast<QWidget*>(driver.bookmarks)}) {
        from->setFocus();
        QVERIFY(!driver.field->hasFocus());
        driver.field->setText("word");
        QTest::keyClick(from, Qt::Key_F, Qt::ControlModifier);
        QVERIFY(driver.field->hasFocus());
        QCOMPARE(driver.field->selectedText(), "word"); // as a shortcut does it, not a click
    }
}

// The view is painted again when results come in, without anybody touching it.
void tst_docu_search::hits_are_painted_as_they_come()
{
    pdf_file file = with_words();
    file.pages[0] += " Rückhaltebecken";
    const docu_driver driver(file);
    QTest::qWait(300); // until the page has been drawn
    driver.field->setFocus();
    const paint_counter painted(driver.view->viewport());
    int painted_before = -1; // the last hits came
    connect(driver.found, &QAbstractItemModel::rowsInserted, this,
            [&] { painted_before = painted.count; });
    driver.found->setSearchString("Rückhaltebecken"); // as typing does, but the tabs stay
    QTRY_COMPARE(driver.found->rowCount({}), 4);
    QVERIFY(painted_before >= 0);
    QTRY_VERIFY(painted.count > painted_before);
    QTest::qWait(100);
    const int with_hits = painted.count;
    driver.found->setSearchString("nirgends");
    QTRY_COMPARE(driver.found->rowCount({}), 0);
    QTRY_VERIFY(painted.count > with_hits); // and when they go again
}

// The view has long been painted without it.
void tst_docu_search::late_hit_is_painted()
{
    pdf_file file = numbered_pages(12);
    file.pages.last() += " Rückhaltebecken";
    const docu_driver driver(file);
    QTest::qWait(300);
    driver.field->setFocus();
    const paint_counter painted(driver.view->viewport());
    int before_the_hit = -1;
    connect(driver.found, &QAbstractItemModel::rowsInserted, this,
            [&] { before_the_hit = painted.count; });
    driver.found->setSearchString("Rückhaltebecken");
    QTRY_COMPARE(driver.found->rowCount({}), 1);
    QVERIFY(before_the_hit > 0);
    QTRY_VERIFY(painted.count > before_the_hit);
}

void tst_docu_search::hits_are_highlighted()
{
    pdf_file file = with_words();
    file.pages[0] += " Rückhaltebecken";
    const docu_driver driver(file);
    QTest::qWait(300);
    const QImage before = driver.view->viewport()->grab().toImage();
    driver.search("Rückhaltebecken", 4);
    driver.tabs->setCurrentIndex(0);
    QTRY_VERIFY(driver.view->viewport()->grab().toImage() != before);
}

QTEST_MAIN(tst_docu_search)
#include "tst_docu_search.moc"
