#include "docu/docudialog.h"
#include "tests/support/log_capture.h"
#include "tests/support/named_curves.h"
#include "tests/support/pdf_file.h"
#include "tests/support/rename_driver.h"
#include "tests/support/working_folder.h"
#include "tests/support/write_file.h"
#include "ui/rename_dialog.h"

#include <qwt_plot.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <functional>
#include <optional>

namespace {

void trigger(const window_driver& driver, const char* action)
{
    driver.window.findChild<QAction*>(action)->trigger();
}

void draw(window_driver& driver)
{
    driver.open("x_K.wel", node_file(9));
}

void list_names(window_driver& driver)
{
    driver.open("x.dkl", throttle_curves());
}

void draw_name(window_driver& driver)
{
    list_names(driver);
    driver.pick(1);
    driver.press(driver.plot_name);
}

// Draws a file and calls a command; if that shows a dialog, the call stays in it.
std::function<void(window_driver&)> command(const char* action)
{
    return [action](window_driver& driver) {
        draw(driver);
        trigger(driver, action);
    };
}

// Opens the dialog of names and leaves a cell open.
void edit_a_name(window_driver& driver)
{
    QTimer::singleShot(100, &driver.window, [] {
        const auto* const dialog = qobject_cast<rename_dialog*>(QApplication::activeModalWidget());
        if (dialog)
            type_into_cell(*dialog, 0, 1, "neu");
    });
    draw(driver);
    trigger(driver, "actionZeitreihe_change_names");
}

void unfold_the_licence(window_driver& driver)
{
    QTimer::singleShot(100, &driver.window, [] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->findChild<QPushButton*>()->click();
    });
    trigger(driver, "actionLGPLv3");
}

void ask_for_a_selection(window_driver& driver)
{
    driver.press(driver.button);
}

// Plots or reads a file that is not there; the call stays in the box that tells so.
std::function<void(window_driver&)> unreadable(const char* path)
{
    return [path](window_driver& driver) {
        driver.list->addItem(path);
        driver.select(0);
        driver.press(driver.button);
    };
}

// The names stay, and the drawing goes on when the box has been closed.
void report_a_curve_whose_file_is_gone(window_driver& driver)
{
    draw_name(driver);
    QFile::remove(driver.folder.filePath("x.dkl"));
    driver.press(driver.plot_name);
}

void report_what_cannot_be_plotted(window_driver& driver)
{
    driver.open("x.wel", node_file(9));
}

void open_manuals(window_driver& driver)
{
    draw(driver);
    for (int i = 0; i < 3; ++i)
        trigger(driver, "actionHandbuch");
}

void search_in_a_manual(window_driver& driver)
{
    open_manuals(driver);
    auto* const manual = driver.window.findChild<DocuDialog*>();
    const auto fields = manual->findChildren<QLineEdit*>();
    for (auto* const field : fields)
        QTest::keyClicks(field, "page");
    manual->findChild<QComboBox*>()->showPopup();
}

void open_manual_and_box(window_driver& driver)
{
    open_manuals(driver);
    trigger(driver, "actionOrvan_Information");
}

// The drag is over the window, and neither leaves nor drops.
void hover(window_driver& driver)
{
    static QMimeData data;
    data.setUrls({QUrl("file:///a/x.wel")});
    driver.drag(data);
}

// The button stays down.
void pan(window_driver& driver)
{
    draw(driver);
    QWidget* const canvas = driver.lower->canvas();
    QTest::mousePress(canvas, Qt::RightButton, Qt::NoModifier, QPoint(50, 50));
    QTest::mouseMove(canvas, QPoint(80, 60));
}

void open_a_menu(window_driver& driver)
{
    QAction* const first = driver.window.menuBar()->actions().constFirst();
    driver.window.menuBar()->setActiveAction(first);
    first->menu()->popup(driver.window.mapToGlobal(QPoint(5, 25)));
}

using way = std::function<void(MainWindow&)>;

void choose_close(MainWindow& window)
{
    window.findChild<QAction*>("action_schliessen")->trigger();
}

// As the window's own button does.
void close_by_the_frame(MainWindow& window)
{
    window.windowHandle()->close();
}

// As the end of the session does.
void quit(MainWindow& /*window*/)
{
    QCoreApplication::quit();
}

// A user who leaves as soon as the window is as it should be, and then what is still open.
class leaving_user
{
public:
    leaving_user(MainWindow& window, way leave)
        : window(window)
        , leave(std::move(leave))
    {
        QObject::connect(&watch, &QTimer::timeout, &watch, [this] { act(); });
        watch.start(200);
    }

    /// Whether a dialog, a box or a menu was open when the user left, and what was to do then.
    bool saw_dialog() const { return is_dialog_open; }
    int further_acts() const { return acts; }

private:
    void act()
    {
        if (leave) {
            is_dialog_open = QApplication::activeModalWidget() || QApplication::activePopupWidget();
            std::exchange(leave, nullptr)(window);
            watch.start(is_dialog_open ? 30 : 5000);
            return;
        }
        ++acts;
        if (QWidget* const popup = QApplication::activePopupWidget()) {
            popup->close();
        } else if (QWidget* const dialog = QApplication::activeModalWidget()) {
            QTest::keyClick(dialog, Qt::Key_Escape);
        } else {
            const auto all = QApplication::topLevelWidgets();
            for (QWidget* const rest : all)
                rest->close();
        }
    }

    MainWindow& window;
    way leave;
    QTimer watch;
    bool is_dialog_open = false;
    int acts = 0;
};

} // namespace

/// The main window is closed, or the session ended, while it is in any state: the program ends, and
/// all is given back.
class tst_closing : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void in_every_state_data();
    void in_every_state();

private:
    std::optional<working_folder> folder;
};

void tst_closing::init()
{
    folder.emplace();
    write_file("01_Handbuch_KORIMO9.pdf", numbered_pages(20).bytes());
}

void tst_closing::cleanup()
{
    folder.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget* const left : widgets)
        QVERIFY2(!left->isVisible(), left->metaObject()->className());
}

using state = std::function<void(window_driver&)>;

void tst_closing::in_every_state_data()
{
    QTest::addColumn<state>("enter");
    QTest::addColumn<way>("leave");
    QTest::addColumn<bool>("dialog"); // which the user must close as well
    struct
    {
        const char* what;
        state enter;
        bool dialog;
    } const states[] = {
        {"empty", [](window_driver&) {}, false},
        {"hydrographs", draw, false},
        {"names", list_names, false},
        {"a curve", draw_name, false},
        {"range dialog", command("actionx_Achse_unten"), true},
        {"rename dialog", command("actionZeitreihe_change_names"), true},
        {"name being edited", edit_a_name, true},
        {"file dialog", command("action_oeffnen"), true},
        {"picture saved", command("action_speicher"), true},
        {"information", command("actionOrvan_Information"), true},
        {"about Qt", command("actionQt_Licensing_Information"), true},
        {"licence", unfold_the_licence, true},
        {"selection error", ask_for_a_selection, true},
        {"unreadable file", unreadable("/nowhere/x_K.wel"), true},
        {"unreadable basins", unreadable("/nowhere/x.bek"), true},
        {"file of a curve gone", report_a_curve_whose_file_is_gone, true},
        {"plotting error", report_what_cannot_be_plotted, true},
        {"manuals", open_manuals, false},
        {"manual searched", search_in_a_manual, true},
        {"manuals and a box", open_manual_and_box, true},
        {"drag above", hover, false},
        {"panning", pan, false},
        {"menu", open_a_menu, true},
    };
    const std::pair<const char*, way> ways[] = {
        {"command", choose_close}, {"frame", close_by_the_frame}, {"session", quit}};
    for (const auto& [what, enter, dialog] : states) {
        for (const auto& [how, leave] : ways)
            QTest::addRow("%s, %s", what, how) << enter << leave << dialog;
    }
}

// What main does, with the user in it.
void tst_closing::in_every_state()
{
    QFETCH(state, enter);
    QFETCH(way, leave);
    QFETCH(bool, dialog);
    const log_capture log;
    QElapsedTimer clock;
    clock.start();
    {
        window_driver driver;
        const leaving_user user(driver.window, leave);
        QTimer::singleShot(0, &driver.window, [&] { enter(driver); });
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(!driver.window.isVisible());
        QCOMPARE(user.saw_dialog(), dialog);
        QVERIFY2(dialog || user.further_acts() == 0, QByteArray::number(user.further_acts()));
    }
    QVERIFY2(clock.elapsed() < 10'000, QByteArray::number(clock.elapsed()));
}

QTEST_MAIN(tst_closing)
#include "tst_closing.moc"
