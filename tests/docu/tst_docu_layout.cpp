#include "docu/zoomselector.h"
#include "tests/support/docu_driver.h"

#include <QGuiApplication>
#include <QPdfPageSelector>
#include <QScreen>
#include <QStyle>
#include <QTest>
#include <QVBoxLayout>

namespace {

// What stands at one place of the tool bar.
struct tool
{
    const char* kind; // "icon", "text", "widget" or "separator"
    QString text;
    QString tool_tip;
    QKeySequence shortcut;
    bool enabled = true;
};

bool is_separator_or_icon(const QAction& action, const tool& expected)
{
    return action.isSeparator() == (QByteArrayView(expected.kind) == "separator") &&
           action.icon().isNull() == (QByteArrayView(expected.kind) != "icon");
}

// What becomes of 250 pixels for the left and the rest for the right part: the handle between them
// takes a little of what both were given.
QList<int> sizes_of_plain_splitter(const QSplitter& model)
{
    QSplitter plain;
    plain.addWidget(new QTabWidget);
    plain.addWidget(new QPdfView);
    plain.setStretchFactor(1, 10);
    plain.resize(model.size());
    plain.setSizes({250, model.width() - 250});
    plain.show();
    return plain.sizes();
}

QWidget* widget_at(const docu_driver& driver, int place)
{
    return driver.tools->widgetForAction(driver.tools->actions().at(place));
}

} // namespace

class tst_docu_layout : public QObject
{
    Q_OBJECT

private slots:
    void window();
    void size();
    void splitter();
    void side_panel();
    void thumbnails();
    void tools();
    void icons();
    void widgets_in_the_tool_bar();
    void start_of_the_view();
    void slots_of_the_dialog();
    void deleted_when_closed();
    void children_die_with_it();
};

void tst_docu_layout::window()
{
    const docu_driver driver;
    QCOMPARE(driver.dialog->windowTitle(), "Documentation");
    QVERIFY(!driver.dialog->isModal());
    QCOMPARE(driver.dialog->windowFlags(), QDialog().windowFlags());
    const auto* const column = qobject_cast<QVBoxLayout*>(driver.dialog->layout());
    QVERIFY(column);
    QCOMPARE(column->contentsMargins(), QMargins());
    QCOMPARE(column->spacing(), 0);
    QCOMPARE(column->count(), 2);
    QCOMPARE(column->itemAt(0)->widget(), driver.tools);
    QCOMPARE(column->itemAt(1)->widget(), driver.splitter);
}

void tst_docu_layout::size()
{
    const docu_driver driver;
    QCOMPARE(QGuiApplication::primaryScreen()->size(), QSize(1366, 768));
    QCOMPARE(driver.dialog->size(), QSize(956, 691)); // of 956.2 and 691.2
}

void tst_docu_layout::splitter()
{
    const docu_driver driver;
    QCOMPARE(driver.splitter->orientation(), Qt::Horizontal);
    QCOMPARE(driver.splitter->count(), 2);
    QCOMPARE(driver.splitter->widget(0), driver.tabs);
    QCOMPARE(driver.splitter->widget(1), driver.view);
    QCOMPARE(driver.view->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(driver.view->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(driver.tabs->sizePolicy().horizontalStretch(), 0);
    QCOMPARE(driver.view->sizePolicy().horizontalStretch(), 10);
    const QList<int> sizes = driver.splitter->sizes();
    QCOMPARE(sizes, sizes_of_plain_splitter(*driver.splitter));
    QVERIFY(qAbs(sizes[0] - 250) <= driver.splitter->handleWidth());
    QCOMPARE(sizes[0] + sizes[1] + driver.splitter->handleWidth(), driver.dialog->width());
}

void tst_docu_layout::side_panel()
{
    const docu_driver driver;
    QCOMPARE(driver.tabs->tabPosition(), QTabWidget::West);
    QCOMPARE(driver.tabs->count(), 3);
    const QStringList titles{"Bookmarks", "Pages", "Search Results"};
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(driver.tabs->tabText(i), titles[i]);
        const QLayout* const layout = driver.tabs->widget(i)->layout();
        QVERIFY(qobject_cast<const QVBoxLayout*>(layout));
        QCOMPARE(layout->contentsMargins(), QMargins(2, 2, 2, 2));
        QCOMPARE(layout->spacing(), 0);
    }
    QCOMPARE(driver.tabs->currentIndex(), 0);
    QVERIFY(driver.bookmarks->isHeaderHidden());
    QCOMPARE(driver.results->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
}

void tst_docu_layout::thumbnails()
{
    const docu_driver driver;
    QCOMPARE(driver.thumbnails->iconSize(), QSize(128, 128));
    QCOMPARE(driver.thumbnails->movement(), QListView::Static);
    QCOMPARE(driver.thumbnails->resizeMode(), QListView::Adjust);
    QCOMPARE(driver.thumbnails->viewMode(), QListView::IconMode);
}

void tst_docu_layout::tools()
{
    const docu_driver driver;
    QVERIFY(!driver.tools->isMovable() && !driver.tools->isFloatable());
    const QList<tool> expected{
        {"icon", "", "Back to previous view", {}, false},
        {"icon", "", "Forward to next view", {}, false},
        {"separator", "", "", {}},
        {"icon", "", "Previous Page (PgUp)", Qt::Key_PageUp},
        {"widget", "", "", {}},
        {"icon", "", "Next Page (PgDown)", Qt::Key_PageDown},
        {"widget", "", "", {}},
        {"separator", "", "", {}},
        {"text", "\u2212", "Zoom Out (Ctrl+-)", Qt::CTRL | Qt::Key_Minus},
        {"widget", "", "", {}},
        {"text", "+", "Zoom In (Ctrl+=)", Qt::CTRL | Qt::Key_Equal},
        {"separator", "", "", {}},
        {"text", "Continuous", "Toggle continuous / single page display", {}},
        {"separator", "", "", {}},
        {"widget", "", "", {}},
        {"icon", "", "Find Previous (Shift+F3)", Qt::SHIFT | Qt::Key_F3},
        {"icon", "", "Find Next (F3)", Qt::Key_F3},
    };
    const QList<QAction*> actions = driver.tools->actions();
    QCOMPARE(actions.size(), expected.size());
    for (qsizetype i = 0; i < expected.size(); ++i) {
        const QByteArray place = QByteArray::number(i + 1);
        QVERIFY2(is_separator_or_icon(*actions[i], expected[i]), place);
        QVERIFY2(actions[i]->text() == expected[i].text, place);
        QVERIFY2(actions[i]->toolTip() == expected[i].tool_tip, place);
        QVERIFY2(actions[i]->shortcut() == expected[i].shortcut, place);
        QVERIFY2(actions[i]->isEnabled() == expected[i].enabled, place);
        QVERIFY2(actions[i]->isCheckable() == (expected[i].text == "Continuous"), place);
    }
    QVERIFY(driver.action("Continuous")->isChecked());
}

void tst_docu_layout::icons()
{
    const docu_driver driver;
    const QList<std::pair<const char*, QStyle::StandardPixmap>> icons{
        {"Back to previous view", QStyle::SP_ArrowBack},
        {"Forward to next view", QStyle::SP_ArrowForward},
        {"Previous Page (PgUp)", QStyle::SP_ArrowLeft},
        {"Next Page (PgDown)", QStyle::SP_ArrowRight},
        {"Find Previous (Shift+F3)", QStyle::SP_ArrowUp},
        {"Find Next (F3)", QStyle::SP_ArrowDown}};
    for (const auto& [tool_tip, icon] : icons) {
        const QImage expected = driver.dialog->style()->standardIcon(icon).pixmap(24, 24).toImage();
        QVERIFY(!expected.isNull());
        QVERIFY2(driver.action(tool_tip)->icon().pixmap(24, 24).toImage() == expected, tool_tip);
    }
}

void tst_docu_layout::widgets_in_the_tool_bar()
{
    const docu_driver driver;
    QVERIFY(qobject_cast<QPdfPageSelector*>(widget_at(driver, 4)));
    QVERIFY(qobject_cast<QLabel*>(widget_at(driver, 6)));
    QCOMPARE(widget_at(driver, 9), driver.zoom);
    QCOMPARE(driver.zoom->maximumWidth(), 150);
    QCOMPARE(widget_at(driver, 14), driver.field);
    QCOMPARE(driver.field->maximumWidth(), 300);
    QCOMPARE(driver.field->placeholderText(), "Find in document");
}

void tst_docu_layout::start_of_the_view()
{
    const docu_driver driver;
    QCOMPARE(driver.zoom->currentText(), "100%");
    QCOMPARE(driver.view->zoomMode(), QPdfView::ZoomMode::Custom);
    QCOMPARE(driver.view->zoomFactor(), 1.0);
    QCOMPARE(driver.view->pageMode(), QPdfView::PageMode::SinglePage);
    QCOMPARE(driver.view->document(), driver.document);
    QCOMPARE(driver.view->searchModel(), driver.found);
    QCOMPARE(driver.found->document(), driver.document);
    QCOMPARE(driver.results->model(), driver.found);
    QCOMPARE(driver.document->parent(), driver.dialog.data());
    QCOMPARE(driver.found->parent(), driver.dialog.data());
}

void tst_docu_layout::slots_of_the_dialog()
{
    const QMetaObject& meta = DocuDialog::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        QCOMPARE(method.methodType(), QMetaMethod::Slot);
        QCOMPARE(method.access(), QMetaMethod::Private);
        names.append(method.methodSignature());
    }
    QCOMPARE(names,
             (QStringList{"bookmarkSelected(QModelIndex)", "pageSelected(int)",
                          "searchResultSelected(QModelIndex,QModelIndex)",
                          "thumbnailSelected(QModelIndex)", "zoomIn()", "zoomOut()",
                          "previousPage()", "nextPage()", "navigateBack()", "navigateForward()",
                          "toggleContinuousMode()", "findNext()", "findPrevious()"}));
}

void tst_docu_layout::deleted_when_closed()
{
    const docu_driver driver;
    QVERIFY(driver.dialog->testAttribute(Qt::WA_DeleteOnClose));
    driver.dialog->close();
    QTRY_VERIFY(!driver.dialog);
}

void tst_docu_layout::children_die_with_it()
{
    const docu_driver driver(numbered_pages(3));
    const QPointer<QPdfDocument> document = driver.document;
    const QPointer<QPdfView> view = driver.view;
    delete driver.dialog;
    QVERIFY(!document && !view);
}

QTEST_MAIN(tst_docu_layout)
#include "tst_docu_layout.moc"
