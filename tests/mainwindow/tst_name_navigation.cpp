#include "plot/korimo_plot.h"
#include "tests/support/modal_boxes.h"
#include "tests/support/named_curves.h"

#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QTest>

// The four buttons that step through the right-hand list.
class tst_name_navigation : public QObject
{
    Q_OBJECT

private slots:
    void navigation_data();
    void navigation();
    void navigation_without_names_data();
    void navigation_without_names();
    void navigation_without_a_current_name();
    void end_that_does_nothing_draws_nothing();
    void end_that_draws_again();
    void all_names_there_and_back_data();
    void all_names_there_and_back();
};

void tst_name_navigation::navigation_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    const auto row = [](const char* button, int from, int to) {
        QTest::addRow("%s from %d", button, from) << QString(button) << from << to;
    };
    row("|<", 2, 0);
    row("|<", 0, 0);
    row("<", 3, 2);
    row("<", 1, 0);
    row(">", 0, 1);
    row(">", 2, 3);
    row(">|", 1, 3);
    row(">|", 3, 3);
}

void tst_name_navigation::navigation()
{
    QFETCH(QString, button);
    QFETCH(int, from);
    QFETCH(int, to);
    for (const char* name : {"x.bek", "x.dkl"}) {
        window_driver driver;
        driver.open(name, named_curves(name));
        driver.pick(from);
        const modal_boxes boxes;
        driver.press(navigation_button(driver, button));
        QCOMPARE(driver.names->currentRow(), to);
        QCOMPARE(selected_row(driver), to);
        QCOMPARE(drawn_number(driver), to + 1);
        QVERIFY(boxes.shown().isEmpty());
    }
}

void tst_name_navigation::navigation_without_names_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("boxes");
    QTest::newRow("to the start") << "|<" << 1;
    QTest::newRow("back") << "<" << 1;
    QTest::newRow("forward") << ">" << 0;
    QTest::newRow("to the end") << ">|" << 1;
}

void tst_name_navigation::navigation_without_names()
{
    QFETCH(QString, button);
    QFETCH(int, boxes);
    window_driver driver;
    const modal_boxes seen;
    driver.press(navigation_button(driver, button));
    QCOMPARE(seen.shown().size(), boxes);
    for (const shown_box& box : seen.shown())
        QVERIFY(is_selection_error(box));
    QVERIFY(!driver.window.shown_document());
}

// After "Read" no name is current: ">" goes to the first, "<" nowhere.
void tst_name_navigation::navigation_without_a_current_name()
{
    window_driver driver;
    driver.open("x.bek", basin_table());
    QCOMPARE(driver.names->currentRow(), -1);
    const modal_boxes boxes;
    driver.press(navigation_button(driver, "<"));
    QCOMPARE(boxes.shown().size(), 1);
    QVERIFY(is_selection_error(boxes.shown()[0]));
    QCOMPARE(drawn_number(driver), 0);
    driver.press(navigation_button(driver, ">"));
    QCOMPARE(boxes.shown().size(), 1);
    QCOMPARE(drawn_number(driver), 1);
}

void tst_name_navigation::end_that_does_nothing_draws_nothing()
{
    window_driver driver;
    driver.open("x.bek", basin_table());
    const modal_boxes boxes;
    for (const auto& [to_the_end, button] : {std::pair("|<", "<"), std::pair(">|", ">")}) {
        driver.press(navigation_button(driver, to_the_end));
        const QPointer<korimo_plot> document = driver.window.shown_document();
        driver.press(navigation_button(driver, button));
        QVERIFY(document);
        QCOMPARE(driver.window.shown_document(), document.data());
    }
    QVERIFY(boxes.shown().isEmpty());
}

void tst_name_navigation::end_that_draws_again()
{
    window_driver driver;
    driver.open("x.bek", basin_table());
    for (const char* button : {"|<", ">|"}) {
        driver.press(navigation_button(driver, button));
        const QPointer<korimo_plot> document = driver.window.shown_document();
        driver.press(navigation_button(driver, button));
        QVERIFY(!document);
        QVERIFY(drawn_number(driver) > 0);
    }
}

void tst_name_navigation::all_names_there_and_back_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("basins") << "x.bek";
    QTest::newRow("throttles") << "x.dkl";
}

void tst_name_navigation::all_names_there_and_back()
{
    QFETCH(QString, name);
    window_driver driver;
    driver.open(name, named_curves(name));
    const modal_boxes boxes;
    QList<int> drawn;
    for (const char* button : {"|<", ">", ">", ">", ">", "<", "<", "<", "<"}) {
        driver.press(navigation_button(driver, button));
        drawn.append(drawn_number(driver));
    }
    QCOMPARE(drawn, (QList<int>{1, 2, 3, 4, 4, 3, 2, 1, 1}));
    QVERIFY(boxes.shown().isEmpty());
}

QTEST_MAIN(tst_name_navigation)
#include "tst_name_navigation.moc"
