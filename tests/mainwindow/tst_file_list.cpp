#include "plot/korimo_plot.h"
#include "tests/support/modal_boxes.h"
#include "tests/support/window_driver.h"

#include <qwt_interval.h>
#include <qwt_plot.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QListView>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QUrl>

namespace {

// Runs `act` on the file dialog as soon as it is open. A dialog that stays open is closed later, so
// that the test goes on to fail.
template <class action>
void with_file_dialog(QObject& rescue, const action& act)
{
    QTimer::singleShot(20000, &rescue, [] {
        if (auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget()))
            dialog->reject();
    });
    QTimer::singleShot(0, [act] {
        QFileDialog* dialog = nullptr;
        const auto comes_up = [&] {
            dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            return dialog != nullptr;
        };
        QTRY_VERIFY(comes_up());
        act(*dialog);
    });
}

QStringList listed_files(const QFileDialog& dialog)
{
    const auto* const view = dialog.findChild<QListView*>("listView");
    QStringList names;
    for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row)
        names.append(view->model()->index(row, 0, view->rootIndex()).data().toString());
    names.sort();
    return names;
}

} // namespace

class tst_file_list : public QObject
{
    Q_OBJECT

private slots:
    void drag_enter();
    void drops_data();
    void drops();
    void dropped_twice();
    void ten_thousand_files();
    void drop_is_a_copy();
    void drop_without_urls();
    void dialog_lists_the_three_kinds_data();
    void dialog_lists_the_three_kinds();
    void dialog_adds_in_order_and_once();
    void dialog_cancelled();
    void remove_from_empty_list();
    void remove_without_selection();
    void remove_selected_data();
    void remove_selected();
    void remove_the_only_file();
    void remove_forgets_fixed_ranges_data();
    void remove_forgets_fixed_ranges();
};

void tst_file_list::drag_enter()
{
    window_driver driver;
    QMimeData text;
    text.setText("file:///a/b.wel");
    QVERIFY(!driver.drag(text));
    QMimeData urls;
    urls.setUrls({QUrl("https://example.org/picture.png")});
    QVERIFY(driver.drag(urls));
    QVERIFY(driver.drag(urls, Qt::MoveAction | Qt::CopyAction));
}

void tst_file_list::drops_data()
{
    QTest::addColumn<QStringList>("urls");
    QTest::addColumn<QStringList>("rows");
    using list = QStringList;
    QTest::newRow("the three kinds")
        << list{"file:///a/x.wel", "file:///a/y.BEK", "file:///a/z.Dkl"}
        << list{"/a/x.wel", "/a/y.BEK", "/a/z.Dkl"};
    QTest::newRow("other kinds") << list{"file:///a/x.txt", "file:///a/x.wel.bak", "file:///a/"}
                                 << list{};
    QTest::newRow("no dot") << list{"file:///a/xwel"} << list{"/a/xwel"};
    QTest::newRow("not local") << list{"https://example.org/x.wel", "wel"} << list{};
    QTest::newRow("umlauts and blanks")
        << list{"file:///a/Döbeln%20Süd.wel"} << list{"/a/Döbeln Süd.wel"};
    QTest::newRow("text of the URL, not the path")
        << list{"file:///a/x.txt?y.wel", "file:///a/x.wel#1"} << list{"/a/x.txt"};
    QTest::newRow("case matters") << list{"file:///a/x.wel", "file:///a/X.wel"}
                                  << list{"/a/x.wel", "/a/X.wel"};
}

void tst_file_list::drops()
{
    QFETCH(QStringList, urls);
    QFETCH(QStringList, rows);
    window_driver driver;
    QList<QUrl> dropped;
    for (const QString& url : urls)
        dropped.append(QUrl(url));
    driver.drop(dropped);
    QCOMPARE(driver.files(), rows);
    QVERIFY(driver.list->selectedItems().isEmpty());
}

void tst_file_list::dropped_twice()
{
    window_driver driver;
    const QList<QUrl> urls{QUrl("file:///a/x.wel"), QUrl("file:///a/x.wel")};
    driver.drop(urls);
    driver.drop(urls);
    QCOMPARE(driver.files(), QStringList{"/a/x.wel"});
}

// The time grows with the number of files, not with its square.
void tst_file_list::ten_thousand_files()
{
    window_driver driver;
    QList<QUrl> urls;
    for (int i = 0; i < 10'000; ++i)
        urls.append(QUrl(QString("file:///a/%1.wel").arg(i)));
    QElapsedTimer clock;
    clock.start();
    driver.drop(urls);
    driver.drop(urls);
    QVERIFY2(clock.elapsed() < 20'000, QByteArray::number(clock.elapsed()));
    QCOMPARE(driver.list->count(), 10'000);
    QCOMPARE(driver.list->item(9'999)->text(), "/a/9999.wel");
}

void tst_file_list::drop_is_a_copy()
{
    window_driver driver;
    const QList<QUrl> urls{QUrl("file:///a/x.wel")};
    constexpr auto both = Qt::MoveAction | Qt::CopyAction;
    QCOMPARE(driver.drop(urls, both), Qt::CopyAction);
    QCOMPARE(driver.drop(urls, both, Qt::ShiftModifier), Qt::CopyAction); // which asks for a move
    QCOMPARE(driver.drop(urls, Qt::MoveAction), Qt::IgnoreAction);
    QCOMPARE(driver.list->count(), 1);
}

void tst_file_list::drop_without_urls()
{
    window_driver driver;
    QMimeData data;
    data.setText("/a/x.wel");
    driver.drop(data);
    QCOMPARE(driver.list->count(), 0);
}

void tst_file_list::dialog_lists_the_three_kinds_data()
{
    QTest::addColumn<bool>("choose_filter_again");
    QTest::newRow("as opened") << false;
    QTest::newRow("filter chosen again") << true;
}

void tst_file_list::dialog_lists_the_three_kinds()
{
    QFETCH(bool, choose_filter_again);
    window_driver driver;
    for (const char* name : {"a.wel", "b.BEK", "c.dkl", "d.txt", "ewel", "fbek"})
        driver.add(name, "");
    driver.list->clear();
    QStringList found;
    QString caption;
    QString filter;
    bool is_of_qt = false;
    with_file_dialog(driver.window, [&](QFileDialog& dialog) {
        is_of_qt = QApplication::testAttribute(Qt::AA_DontUseNativeDialogs);
        caption = dialog.windowTitle();
        filter = dialog.nameFilters().join("|");
        dialog.setDirectory(driver.folder.path());
        if (choose_filter_again) {
            auto* const filters = dialog.findChild<QComboBox*>("fileTypeCombo");
            filters->showPopup();
            QTest::keyClick(filters->view(), Qt::Key_Return);
        }
        QTRY_VERIFY(listed_files(dialog).contains("a.wel"));
        QTRY_COMPARE(listed_files(dialog), (QStringList{"a.wel", "b.BEK", "c.dkl", "fbek"}));
        found = listed_files(dialog);
        dialog.reject();
    });
    driver.window.selectFiles();
    QVERIFY(is_of_qt); // any other dialog takes the patterns for one
    QVERIFY(!QApplication::testAttribute(Qt::AA_DontUseNativeDialogs));
    QCOMPARE(found.size(), 4);
    QCOMPARE(caption, "Auswahl der Datei zum Plotten");
    QCOMPARE(filter, "*bek;*.wel;*dkl");
    QCOMPARE(driver.list->count(), 0);
}

void tst_file_list::dialog_adds_in_order_and_once()
{
    window_driver driver;
    const QString first = driver.add("a.wel", "");
    const QString second = driver.add("b.bek", "");
    driver.list->clear();
    for (int run = 0; run < 2; ++run) {
        with_file_dialog(driver.window, [&](QFileDialog& dialog) {
            dialog.setDirectory(driver.folder.path());
            QTRY_COMPARE(listed_files(dialog), (QStringList{"a.wel", "b.bek"}));
            auto* const view = dialog.findChild<QListView*>("listView");
            for (const int row : {1, 0}) {
                const QModelIndex index = view->model()->index(row, 0, view->rootIndex());
                QTest::mouseClick(view->viewport(), Qt::LeftButton,
                                  row == 0 ? Qt::ControlModifier : Qt::NoModifier,
                                  view->visualRect(index).center());
            }
            const auto* const buttons = dialog.findChild<QDialogButtonBox*>("buttonBox");
            QTest::mouseClick(buttons->button(QDialogButtonBox::Open), Qt::LeftButton);
        });
        driver.window.findChild<QAction*>("action_oeffnen")->trigger();
        QCOMPARE(driver.files(), (QStringList{second, first}));
    }
    QVERIFY(driver.list->selectedItems().isEmpty());
    QCOMPARE(driver.button->text(), "Plot");
}

void tst_file_list::dialog_cancelled()
{
    window_driver driver;
    with_file_dialog(driver.window,
                     [](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    driver.window.on_action_oeffenen_triggered();
    QCOMPARE(driver.list->count(), 0);
}

void tst_file_list::remove_from_empty_list()
{
    window_driver driver;
    const modal_boxes boxes;
    driver.press(driver.remove);
    QVERIFY(boxes.shown().isEmpty());
}

void tst_file_list::remove_without_selection()
{
    window_driver driver;
    driver.add("x_K.wel", node_file(3));
    const modal_boxes boxes;
    driver.press(driver.remove);
    QCOMPARE(boxes.shown().size(), 1);
    QCOMPARE(boxes.shown()[0].title, "Error");
    QCOMPARE(boxes.shown()[0].text, "Pleae select one file");
    QCOMPARE(boxes.shown()[0].detailed_text, "");
    QCOMPARE(boxes.shown()[0].icon, QMessageBox::NoIcon);
    QVERIFY(boxes.shown()[0].has_window_icon && boxes.shown()[0].was_modal);
    QCOMPARE(driver.list->count(), 1);
}

void tst_file_list::remove_selected_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("button");
    QTest::newRow("first") << 0 << "Read";
    QTest::newRow("middle") << 1 << "Plot";
    QTest::newRow("last") << 2 << "Read";
}

// Taking a row out makes its neighbour the current row, and the commands follow that one.
void tst_file_list::remove_selected()
{
    QFETCH(int, row);
    QFETCH(QString, button);
    window_driver driver;
    QStringList paths{driver.add("a_K.wel", node_file(3)), driver.add("b.bek", ""),
                      driver.add("c_K.wel", node_file(3))};
    driver.select(row);
    driver.press(driver.button);
    QVERIFY(driver.window.shown_document());
    driver.press(driver.remove);
    paths.removeAt(row);
    QCOMPARE(driver.files(), paths);
    QCOMPARE(driver.button->text(), button);
    QVERIFY(!driver.window.shown_document());
    QVERIFY(driver.lower->itemList().isEmpty() && driver.upper->itemList().isEmpty());
}

void tst_file_list::remove_the_only_file()
{
    window_driver driver;
    driver.open("a_K.wel", node_file(3));
    driver.press(driver.remove);
    QCOMPARE(driver.files(), QStringList());
    QCOMPARE(driver.button->text(), "Plot");
    QVERIFY(!driver.window.shown_document());
    QVERIFY(driver.lower->itemList().isEmpty() && driver.upper->itemList().isEmpty());
}

// The selection changes twice, and the second time there is no document to keep ranges of.
void tst_file_list::remove_forgets_fixed_ranges_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("first") << 0;
    QTest::newRow("last") << 1;
}

void tst_file_list::remove_forgets_fixed_ranges()
{
    QFETCH(int, row);
    window_driver driver;
    driver.add("a_K.wel", node_file(3));
    driver.add("b_K.wel", node_file(3));
    driver.select(row);
    driver.press(driver.button);
    driver.window.shown_document()->set_x_axis_scale(driver.lower, {5, 50}, "bottom");
    driver.lower->replot();
    driver.press(driver.remove);
    driver.select(0);
    driver.press(driver.button);
    QCOMPARE(driver.lower->axisInterval(QwtAxis::XBottom), QwtInterval(0, 72));
}

QTEST_MAIN(tst_file_list)
#include "tst_file_list.moc"
