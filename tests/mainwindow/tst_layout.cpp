#include "tests/support/log_capture.h"
#include "ui/axis_dialog.h"
#include "ui/mainwindow.h"
#include "ui/rename_dialog.h"

#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QMenuBar>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QToolBar>

#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_scale_draw.h>

namespace {

QStringList names_of(const QList<QAction*>& actions)
{
    QStringList names;
    for (const QAction* action : actions)
        names.append(action->objectName());
    return names;
}

QStringList slots_of(const QMetaObject& meta)
{
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names.append(meta.method(i).methodSignature());
    return names;
}

struct close_counter : QObject
{
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        count += event->type() == QEvent::Close ? 1 : 0;
        return false;
    }

    int count = 0;
};

} // namespace

class tst_layout : public QObject
{
    Q_OBJECT

private slots:
    void window();
    void widgets_data();
    void widgets();
    void actions_data();
    void actions();
    void action_order();
    void menus_and_tool_bar();
    void slots_in_order();
    void five_warnings_and_no_more();
    void plots();
    void lists();
    void closing_data();
    void closing();
    void dialogs();
    void connections_data();
    void connections();
};

void tst_layout::window()
{
    MainWindow window;
    QCOMPARE(window.objectName(), "MainWindow");
    QCOMPARE(window.windowTitle(), "plot_korimo");
    QCOMPARE(window.size(), QSize(941, 848));
    QCOMPARE(window.minimumSize(), QSize(941, 848));
    QCOMPARE(window.maximumSize(), QSize(941, 848));
    QCOMPARE(window.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(window.sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    QVERIFY(window.acceptDrops());
    QVERIFY(!window.windowIcon().isNull());
    window.show();
    window.resize(1200, 1000);
    QCOMPARE(window.size(), QSize(941, 848));
    window.showMaximized();
    QCOMPARE(window.size(), QSize(941, 848));
}

void tst_layout::widgets_data()
{
    QTest::addColumn<QByteArray>("class_name");
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* type, const QRect& place, const char* text) {
        QTest::newRow(name) << QByteArray(type) << place << QString(text);
    };
    row("qwtPlot_2", "QwtPlot", {30, 50, 681, 200}, "");
    row("qwtPlot", "QwtPlot", {30, 260, 681, 381}, "");
    row("listWidget_2", "QListWidget", {725, 51, 191, 591}, "");
    row("listWidget", "QListWidget", {80, 660, 541, 121}, "");
    row("pushButton_b_start", "QPushButton", {730, 650, 21, 21}, "|<");
    row("pushButton_b", "QPushButton", {750, 650, 21, 21}, "<");
    row("pushButton_f", "QPushButton", {770, 650, 21, 21}, ">");
    row("pushButton_f_end", "QPushButton", {790, 650, 21, 21}, ">|");
    row("pushButton", "QPushButton", {630, 710, 81, 23}, "Plot");
    row("pushButton_3", "QPushButton", {630, 740, 81, 23}, "Remove File");
    row("pushButton_2", "QPushButton", {730, 710, 181, 23}, "Plot Kennlinie DKL/BEK");
}

void tst_layout::widgets()
{
    QFETCH(QByteArray, class_name);
    QFETCH(QRect, geometry);
    QFETCH(QString, text);
    MainWindow window;
    auto* const widget = window.findChild<QWidget*>(QTest::currentDataTag());
    QVERIFY(widget);
    QCOMPARE(QByteArray(widget->metaObject()->className()), class_name);
    QCOMPARE(widget->parentWidget(), window.centralWidget());
    QCOMPARE(widget->geometry(), geometry);
    QCOMPARE(widget->property("text").toString(), text);
    window.show();
    QCOMPARE(widget->geometry(), geometry);
}

void tst_layout::actions_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("tool_tip");
    const auto row = [](const char* name, const char* text, const char* tip) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(tip);
    };
    row("action_oeffnen", "Daten auswählen", "Daten auswählen");
    row("action_speicher", "Plot Speichern", "Plot Speichern");
    row("action_schliessen", "Schließen", "Schließen");
    row("action_y_achse_unten", "y-Achse_unten", "Beschriftung, Minimum und Maximum festlegen");
    row("actionx_Achse_unten", "x-Achse_unten", "x-Achse_unten");
    row("actiony_Achse_oben", "y-Achse_oben", "y-Achse_oben");
    row("actionx_Achse_oben", "x-Achse_oben", "x-Achse_oben");
    row("action2_X_Achse_unten", "2. X-Achse_unten", "2. X-Achse_unten");
    row("actionZeitreihe_change_names", "Zeitreihen umbenennen", "Zeitreihen umbenennen");
    row("actionQt_Licensing_Information", "Qt Licensing Information", "Qt Licensing Information");
    row("actionOrvan_Information", "Orvan Information", "Orvan Information");
    row("actionLGPLv3", "LGPLv3", "LGPLv3");
    row("actionHandbuch", "Handbuch", "Handbuch");
}

void tst_layout::actions()
{
    QFETCH(QString, text);
    QFETCH(QString, tool_tip);
    const MainWindow window;
    const auto* const action = window.findChild<QAction*>(QTest::currentDataTag());
    QVERIFY(action);
    QCOMPARE(action->parent(), &window);
    QCOMPARE(action->text(), text);
    QCOMPARE(action->toolTip(), tool_tip); // the text where none is set
    QVERIFY(action->icon().isNull());
    QVERIFY(action->shortcut().isEmpty());
}

void tst_layout::action_order()
{
    const MainWindow window;
    QStringList names;
    const auto actions = window.findChildren<QAction*>(Qt::FindDirectChildrenOnly);
    for (const QAction* action : actions)
        names.append(action->objectName());
    QCOMPARE(names,
             (QStringList{"action_oeffnen", "action_speicher", "action_schliessen",
                          "action_y_achse_unten", "actionx_Achse_unten", "actiony_Achse_oben",
                          "actionx_Achse_oben", "action2_X_Achse_unten",
                          "actionZeitreihe_change_names", "actionQt_Licensing_Information",
                          "actionOrvan_Information", "actionLGPLv3", "actionHandbuch"}));
}

void tst_layout::menus_and_tool_bar()
{
    const MainWindow window;
    const auto* const bar = window.findChild<QMenuBar*>("menubar");
    QCOMPARE(bar->parent(), &window);
    QStringList menus;
    QStringList titles;
    QList<QStringList> entries;
    const auto actions = bar->actions();
    for (const QAction* action : actions) {
        menus.append(action->menu()->objectName());
        titles.append(action->menu()->title());
        entries.append(names_of(action->menu()->actions()));
    }
    QCOMPARE(menus, (QStringList{"menuDatei_ffnen", "menuInfo", "menuDokumentation"}));
    QCOMPARE(titles, (QStringList{"Datei", "Info", "Dokumentation"}));
    QCOMPARE(entries,
             (QList<QStringList>{
                 {"action_oeffnen", "action_speicher", "action_schliessen"},
                 {"actionOrvan_Information", "actionQt_Licensing_Information", "actionLGPLv3"},
                 {"actionHandbuch"}}));

    auto* const tools = window.findChild<QToolBar*>("toolBar");
    QCOMPARE(tools->windowTitle(), "toolBar");
    QCOMPARE(window.toolBarArea(tools), Qt::TopToolBarArea);
    QCOMPARE(
        names_of(tools->actions()),
        (QStringList{"action_y_achse_unten", "actionx_Achse_unten", "action2_X_Achse_unten",
                     "actiony_Achse_oben", "actionx_Achse_oben", "actionZeitreihe_change_names"}));
    const auto* const status = window.findChild<QStatusBar*>("statusbar");
    QCOMPARE(status->parent(), &window);
    QCOMPARE(status->currentMessage(), "");
}

void tst_layout::slots_in_order()
{
    QCOMPARE(slots_of(MainWindow::staticMetaObject),
             (QStringList{"selectFiles()",
                          "buttonClicked()",
                          "plotDKl_Clicked()",
                          "back_to_start_clicked()",
                          "back_one_clicked()",
                          "forward_one_clicked()",
                          "forward_to_end_clicked()",
                          "listWidget_item_changed()",
                          "on_action_oeffenen_triggered()",
                          "on_action_speicher_triggered()",
                          "on_action_schliessen_triggered()",
                          "on_action_Orvan_Information_triggered()",
                          "on_action_Qt_Licensing_Information_triggered()",
                          "on_action_LGPLv3_triggered()",
                          "on_action_Handbuch_triggered()",
                          "clear_plots(QString)",
                          "set_min_max(QList<double>)",
                          "on_action_y_achse_unten_triggered()",
                          "on_actionx_Achse_unten_triggered()",
                          "on_actiony_Achse_oben_triggered()",
                          "on_actionx_Achse_oben_triggered()",
                          "on_action2_X_Achse_unten_triggered()",
                          "on_actionZeitreihe_change_names_triggered()",
                          "dragEnterEvent(QDragEnterEvent*)",
                          "dropEvent(QDropEvent*)",
                          "remove_file_clicked()"}));
}

void tst_layout::five_warnings_and_no_more()
{
    const log_capture log;
    const MainWindow window;
    QStringList names;
    const auto lines = log_capture::warning_lines();
    for (const QString& line : lines) {
        QVERIFY2(line.startsWith("QMetaObject::connectSlotsByName: No matching signal for "),
                 qPrintable(line));
        names.append(line.section(' ', -1));
    }
    QCOMPARE(names, (QStringList{
                        "on_action_oeffenen_triggered()", "on_action_Orvan_Information_triggered()",
                        "on_action_Qt_Licensing_Information_triggered()",
                        "on_action_LGPLv3_triggered()", "on_action_Handbuch_triggered()"}));
}

void tst_layout::plots()
{
    const MainWindow window;
    for (const char* name : {"qwtPlot", "qwtPlot_2"}) {
        const auto* const plot = window.findChild<QwtPlot*>(name);
        QCOMPARE(plot->canvasBackground(), QBrush(Qt::white));
        QCOMPARE(plot->axisScaleDraw(QwtAxis::YLeft)->minimumExtent(), 60.0);
        QVERIFY(!plot->isAxisVisible(QwtAxis::XTop));
    }
}

void tst_layout::lists()
{
    const MainWindow window;
    for (const char* name : {"listWidget", "listWidget_2"}) {
        const auto* const list = window.findChild<QListWidget*>(name);
        QCOMPARE(list->selectionMode(), QAbstractItemView::SingleSelection);
    }
    QVERIFY(!window.findChild<QListWidget*>("listWidget")->acceptDrops());
}

void tst_layout::closing_data()
{
    QTest::addColumn<bool>("from_menu");
    QTest::newRow("Schließen") << true;
    QTest::newRow("close button") << false;
}

void tst_layout::closing()
{
    QFETCH(bool, from_menu);
    MainWindow window;
    window.show();
    QTimer::singleShot(0, &window, [&] {
        if (from_menu)
            window.findChild<QAction*>("action_schliessen")->trigger();
        else
            window.close();
    });
    // A loop that closing the window does not end is ended with another result.
    QTimer::singleShot(5000, &window, [] { QCoreApplication::exit(1); });
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(!window.isVisible());
}

// The dialogs have no parent; they live and die with the window all the same.
void tst_layout::dialogs()
{
    QList<QPointer<QWidget>> dialogs;
    {
        const MainWindow window;
        const auto widgets = QApplication::topLevelWidgets();
        for (QWidget* widget : widgets) {
            if (qobject_cast<axis_dialog*>(widget) || qobject_cast<rename_dialog*>(widget))
                dialogs.append(widget);
        }
        QCOMPARE(dialogs.size(), 2);
        for (const QWidget* dialog : dialogs)
            QVERIFY(!dialog->parent() && !dialog->windowIcon().isNull() && !dialog->isVisible());
    }
    QVERIFY(!dialogs[0] && !dialogs[1]);
}

void tst_layout::connections_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<int>("times");
    const auto row = [](const char* sender, const char* signal, const char* slot, int times = 1) {
        QTest::newRow(sender) << QByteArray(signal) << QByteArray(slot) << times;
    };
    const char* const clicked = SIGNAL(clicked());
    const char* const triggered = SIGNAL(triggered());
    row("pushButton", clicked, SLOT(buttonClicked()));
    row("pushButton_3", clicked, SLOT(remove_file_clicked()));
    row("pushButton_2", clicked, SLOT(plotDKl_Clicked()));
    row("pushButton_b_start", clicked, SLOT(back_to_start_clicked()));
    row("pushButton_b", clicked, SLOT(back_one_clicked()));
    row("pushButton_f", clicked, SLOT(forward_one_clicked()));
    row("pushButton_f_end", clicked, SLOT(forward_to_end_clicked()));
    row("listWidget", SIGNAL(itemSelectionChanged()), SLOT(listWidget_item_changed()));
    row("action_oeffnen", triggered, SLOT(on_action_oeffenen_triggered()));
    row("action_schliessen", triggered, SLOT(on_action_schliessen_triggered()), 2);
    row("actionQt_Licensing_Information", triggered,
        SLOT(on_action_Qt_Licensing_Information_triggered()));
    row("actionOrvan_Information", triggered, SLOT(on_action_Orvan_Information_triggered()));
    row("actionLGPLv3", triggered, SLOT(on_action_LGPLv3_triggered()));
    row("actionHandbuch", triggered, SLOT(on_action_Handbuch_triggered()));
    row("action_speicher", triggered, SLOT(on_action_speicher_triggered()));
    row("action_y_achse_unten", triggered, SLOT(on_action_y_achse_unten_triggered()));
    row("actionx_Achse_unten", triggered, SLOT(on_actionx_Achse_unten_triggered()));
    row("actiony_Achse_oben", triggered, SLOT(on_actiony_Achse_oben_triggered()));
    row("actionx_Achse_oben", triggered, SLOT(on_actionx_Achse_oben_triggered()));
    row("action2_X_Achse_unten", triggered, SLOT(on_action2_X_Achse_unten_triggered()));
    row("actionZeitreihe_change_names", triggered,
        SLOT(on_actionZeitreihe_change_names_triggered()));
}

// What is connected can be disconnected. The one command that is connected twice closes twice.
void tst_layout::connections()
{
    QFETCH(QByteArray, signal);
    QFETCH(QByteArray, slot);
    QFETCH(int, times);
    MainWindow window;
    auto* const sender = window.findChild<QObject*>(QTest::currentDataTag());
    QVERIFY(sender);
    close_counter closes;
    window.installEventFilter(&closes);
    if (auto* const action = qobject_cast<QAction*>(sender); action && times == 2) {
        action->trigger();
        QCOMPARE(closes.count, times);
    }
    QVERIFY(QObject::disconnect(sender, signal, &window, slot));
}

QTEST_MAIN(tst_layout)
#include "tst_layout.moc"
