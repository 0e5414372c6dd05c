#include "tests/support/focus_walk.h"
#include "tests/support/window_driver.h"

#include <QAccessible>
#include <QPushButton>
#include <QTest>

#include <qwt_plot.h>

/// What a screen reader says of the window's parts.
class tst_spoken_names : public QObject
{
    Q_OBJECT

private slots:
    void names_and_roles_data();
    void names_and_roles();
    void canvases();
    void button_of_many_texts();
};

void tst_spoken_names::names_and_roles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("role");
    const auto row = [](const char* widget, const char* name, QAccessible::Role role) {
        QTest::newRow(widget) << QString::fromUtf8(name) << int(role);
    };
    row("pushButton_b_start", "Erster Name", QAccessible::Button);
    row("pushButton_b", "Voriger Name", QAccessible::Button);
    row("pushButton_f", "Nächster Name", QAccessible::Button);
    row("pushButton_f_end", "Letzter Name", QAccessible::Button);
    row("pushButton_2", "Plot Kennlinie DKL/BEK", QAccessible::Button);
    row("pushButton_3", "Remove File", QAccessible::Button);
    row("listWidget", "Dateiliste", QAccessible::List);
    row("listWidget_2", "Liste der Kennlinien", QAccessible::List);
    row("qwtPlot", "Unteres Diagramm", QAccessible::Border);
    row("qwtPlot_2", "Oberes Diagramm", QAccessible::Border);
}

void tst_spoken_names::names_and_roles()
{
    QFETCH(QString, name);
    QFETCH(int, role);
    const window_driver driver;
    auto* const widget = driver.window.findChild<QWidget*>(QTest::currentDataTag());
    QCOMPARE(spoken_name_of(*widget), name);
    QCOMPARE(int(QAccessible::queryAccessibleInterface(widget)->role()), role);
}

// The canvas has the focus, not the plot around it.
void tst_spoken_names::canvases()
{
    const window_driver driver;
    QCOMPARE(spoken_name_of(*driver.lower->canvas()), "Unteres Diagramm");
    QCOMPARE(spoken_name_of(*driver.upper->canvas()), "Oberes Diagramm");
}

// A name of its own would hide what the button does next.
void tst_spoken_names::button_of_many_texts()
{
    window_driver driver;
    QCOMPARE(spoken_name_of(*driver.button), "Plot");
    driver.open("x_K1.wel", node_file(3));
    QCOMPARE(spoken_name_of(*driver.button), "Clear");
    driver.add("x.dkl", "");
    driver.select(1);
    QCOMPARE(spoken_name_of(*driver.button), "Read");
}

QTEST_MAIN(tst_spoken_names)
#include "tst_spoken_names.moc"
