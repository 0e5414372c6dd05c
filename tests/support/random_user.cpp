#include "tests/support/random_user.h"

#include "docu/docudialog.h"
#include "tests/support/named_curves.h"
#include "tests/support/random_choice.h"
#include "tests/support/rename_driver.h"
#include "ui/axis_dialog.h"
#include "ui/rename_dialog.h"

#include <qwt_plot.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QWheelEvent>

namespace {

constexpr int most_files = 12;

void click(QWidget* widget, const QPoint& place)
{
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, place);
}

void click_any_row(QListWidget& list, QRandomGenerator& random)
{
    if (list.count() == 0)
        return;
    QListWidgetItem* const item = list.item(random.bounded(list.count()));
    list.scrollToItem(item);
    click(list.viewport(), list.visualItemRect(item).center());
}

void click_any_button(QWidget& parent, QRandomGenerator& random)
{
    QList<QPushButton*> shown;
    const auto buttons = parent.findChildren<QPushButton*>();
    for (auto* const button : buttons) {
        if (button->isVisible())
            shown.append(button);
    }
    QPushButton* const button = any_of(shown, random);
    click(button, button->rect().center());
}

void fill(const axis_dialog& dialog, QRandomGenerator& random)
{
    static const QStringList values{"0", "0.001", "1", "5", "72", "1000.5", "10000000", "x", ""};
    const auto boxes = dialog.findChildren<QDoubleSpinBox*>();
    for (auto* const box : boxes) {
        box->setFocus();
        if (once_in(3, random)) {
            QTest::keyClick(box, once_in(2, random) ? Qt::Key_Up : Qt::Key_Down);
        } else {
            box->selectAll();
            QTest::keyClicks(box, any_of(values, random));
        }
    }
}

// The last cell may stay open.
void fill(const rename_dialog& dialog, QRandomGenerator& random)
{
    for (int row = 0; row < table_of(dialog).rowCount(); ++row) {
        if (once_in(2, random))
            type_into_cell(dialog, row, random.bounded(2), once_in(3, random) ? " " : "Name");
    }
}

// Types the name of a file, and confirms or not.
void fill(const QFileDialog& dialog, const QString& folder, QRandomGenerator& random)
{
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files);
    auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
    name->setText(once_in(5, random) ? QString("none") : any_of(files, random).filePath());
}

} // namespace

random_user::random_user(window_driver& driver, quint32 seed)
    : driver(driver)
    , random(seed)
{
    QObject::connect(&watch, &QTimer::timeout, &watch, [this] { answer(); });
    watch.start(0);
}

const QList<random_user::choice>& random_user::choices()
{
    static const QList<choice> all{
        {"drop a file", &random_user::drop_file, 4},
        {"choose files", &random_user::choose_files, 1},
        {"select a file", &random_user::select_file, 6},
        {"remove a file", &random_user::remove_file, 2},
        {"press the button", &random_user::press_button, 20},
        {"pick a name", &random_user::pick_name, 8},
        {"plot a name", &random_user::plot_name, 6},
        {"navigate", &random_user::navigate, 12},
        {"fix an axis", &random_user::fix_axis, 10},
        {"rename", &random_user::rename, 5},
        {"save", &random_user::save, 1},
        {"inform", &random_user::inform, 2},
        {"read the manual", &random_user::read_manual, 1},
        {"close and come back", &random_user::close_and_come_back, 1},
        {"zoom", &random_user::zoom, 5},
        {"pan", &random_user::pan, 3},
        {"press a key", &random_user::press_key, 10},
    };
    return all;
}

qsizetype random_user::kinds_of_action()
{
    return choices().size();
}

QString random_user::act()
{
    int sum = 0;
    for (const choice& each : choices())
        sum += each.weight;
    int which = random.bounded(sum);
    auto chosen = choices().begin();
    for (; which >= chosen->weight; ++chosen)
        which -= chosen->weight;
    (this->*chosen->what)();
    QCoreApplication::processEvents();
    return chosen->name;
}

bool random_user::may_add() const
{
    return driver.list->count() < most_files;
}

void random_user::drop_file()
{
    const QFileInfoList files = QDir(driver.folder.path()).entryInfoList(QDir::Files);
    if (!may_add())
        return;
    driver.drop({QUrl::fromLocalFile(any_of(files, random).filePath())});
}

void random_user::choose_files()
{
    driver.window.findChild<QAction*>("action_oeffnen")->trigger();
}

void random_user::select_file()
{
    click_any_row(*driver.list, random);
}

void random_user::remove_file()
{
    driver.press(driver.remove);
}

// "Clear" more seldom than the others, since it leaves nothing to do.
void random_user::press_button()
{
    if (driver.button->text() != "Clear" || once_in(4, random))
        driver.press(driver.button);
}

void random_user::pick_name()
{
    click_any_row(*driver.names, random);
}

void random_user::plot_name()
{
    driver.press(driver.plot_name);
}

void random_user::navigate()
{
    static const QStringList buttons{"|<", "<", ">", ">|"};
    driver.press(navigation_button(driver, any_of(buttons, random)));
}

void random_user::fix_axis()
{
    static const QStringList actions{"action_y_achse_unten", "actionx_Achse_unten",
                                     "action2_X_Achse_unten", "actiony_Achse_oben",
                                     "actionx_Achse_oben"};
    driver.window.findChild<QAction*>(any_of(actions, random))->trigger();
}

void random_user::rename()
{
    driver.window.findChild<QAction*>("actionZeitreihe_change_names")->trigger();
}

void random_user::save()
{
    driver.window.findChild<QAction*>("action_speicher")->trigger();
}

void random_user::inform()
{
    static const QStringList actions{"actionOrvan_Information", "actionQt_Licensing_Information",
                                     "actionLGPLv3"};
    driver.window.findChild<QAction*>(any_of(actions, random))->trigger();
}

// Opens one more, or closes one.
void random_user::read_manual()
{
    const QList<DocuDialog*> open = driver.window.findChildren<DocuDialog*>();
    if (open.size() < 3)
        driver.window.findChild<QAction*>("actionHandbuch")->trigger();
    else
        any_of(open, random)->close();
}

void random_user::close_and_come_back()
{
    driver.window.findChild<QAction*>("action_schliessen")->trigger();
    driver.window.show();
}

void random_user::zoom()
{
    QWidget* const canvas = (once_in(4, random) ? driver.upper : driver.lower)->canvas();
    const QPointF place(random.bounded(canvas->width()), random.bounded(canvas->height()));
    const Qt::KeyboardModifiers modifiers = once_in(3, random) ? Qt::ShiftModifier : Qt::NoModifier;
    QWheelEvent event(place, canvas->mapToGlobal(place), QPoint(),
                      QPoint(0, once_in(2, random) ? 120 : -120), Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(canvas, &event);
}

void random_user::pan()
{
    QWidget* const canvas = driver.lower->canvas();
    const QPoint from = canvas->rect().center();
    QTest::mousePress(canvas, Qt::RightButton, Qt::NoModifier, from);
    const QPoint to = from + QPoint(random.bounded(-90, 90), random.bounded(-90, 90));
    QTest::mouseMove(canvas, to);
    QTest::mouseRelease(canvas, Qt::RightButton, Qt::NoModifier, to);
}

void random_user::press_key()
{
    static const QList<Qt::Key> keys{Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Up,    Qt::Key_Down,
                                     Qt::Key_End, Qt::Key_Home,    Qt::Key_Space, Qt::Key_Return,
                                     Qt::Key_E,   Qt::Key_Escape,  Qt::Key_PageUp};
    QWidget* const focus = driver.window.focusWidget();
    QTest::keyClick(focus ? focus : &driver.window, any_of(keys, random));
}

void random_user::answer()
{
    QWidget* const shown = QApplication::activeModalWidget();
    if (!shown || !shown->isVisible())
        return;
    if (auto* const files = qobject_cast<QFileDialog*>(shown); files && may_add())
        fill(*files, driver.folder.path(), random);
    if (auto* const range = qobject_cast<axis_dialog*>(shown))
        fill(*range, random);
    if (auto* const names = qobject_cast<rename_dialog*>(shown))
        fill(*names, random);
    answer_box(*shown);
}

void random_user::answer_box(QWidget& box)
{
    switch (random.bounded(5)) {
    case 0:
        QTest::keyClick(&box, Qt::Key_Escape);
        break;
    case 1:
        box.close();
        break;
    case 2:
        QTest::keyClick(&box, Qt::Key_Return);
        break;
    default:
        click_any_button(box, random);
    }
}
