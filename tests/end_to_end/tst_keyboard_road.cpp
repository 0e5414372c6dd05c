#include "tests/end_to_end/road.h"

#include <QFile>
#include <QImage>
#include <QTest>

/// The program, used without a mouse.
class tst_keyboard_road : public road
{
    Q_OBJECT

private slots:
    void hydrograph();
    void characteristic_curves();

private:
    void press(const QStringList& keys) const;
    void tab(int times) const;
    void add_by_keys(const QStringList& names);
    void set_values(const QString& minimum, const QString& maximum) const;
    void rename_first_curve(const QString& name) const;
    void save_by_keys(const QString& picture) const;
    void read_manual() const;
};

void tst_keyboard_road::press(const QStringList& keys) const
{
    for (const QString& key : keys)
        program->key(key);
}

void tst_keyboard_road::tab(int times) const
{
    press(QStringList(times, "Tab"));
}

void tst_keyboard_road::add_by_keys(const QStringList& names)
{
    QString text;
    for (const QString& name : names) {
        QVERIFY(program->bring(name));
        text += "\"" + name + "\" ";
    }
    press({"Alt_L", "Down", "Return"});
    QVERIFY(viewer::sees_window(window_title::files));
    QTest::qWait(500);
    program->type(text.trimmed());
    press({"Return"});
    QTRY_VERIFY(program->sees(first_file_row, Qt::black) > 20);
}

// "OK" has the focus at first.
void tst_keyboard_road::set_values(const QString& minimum, const QString& maximum) const
{
    QVERIFY(viewer::sees_window(window_title::range));
    QTest::qWait(500);
    keep_screenshot("range_by_keys");
    press({"Tab", "Tab", "ctrl+a"});
    program->type(minimum);
    press({"Tab", "ctrl+a"});
    program->type(maximum);
    press({"Return"});
    QVERIFY(viewer::sees_no_window(window_title::range));
}

// To type opens the cell, the first Enter key closes it and the second the dialog.
void tst_keyboard_road::rename_first_curve(const QString& name) const
{
    QVERIFY(viewer::sees_window(window_title::names));
    QTest::qWait(500);
    press({"Right"});
    program->type(name);
    keep_screenshot("new_name_by_keys");
    press({"Return", "Return"});
    QVERIFY(viewer::sees_no_window(window_title::names));
}

void tst_keyboard_road::save_by_keys(const QString& picture) const
{
    press({"Alt_L", "Down", "Down", "Return"});
    QTRY_VERIFY(QFile::exists(program->path_of(picture)));
    QTest::qWait(500);
    press({"Return"});
}

// Goes to a bookmark and, with the first button of the tool bar, back again.
void tst_keyboard_road::read_manual() const
{
    const auto page = [] { return screenshot().copy(500, 150, 500, 700); };
    press({"Alt_L", "Right", "Right", "Down", "Return"});
    QVERIFY(viewer::sees_window(window_title::manual));
    QTest::qWait(1000); // until the first page has been drawn
    const QImage first = page();
    tab(2);
    press({"Down", "Down", "Down", "Return"});
    QTRY_VERIFY(page() != first);
    tab(1);
    keep_screenshot("manual_by_keys");
    press({"space"});
    QTRY_COMPARE(page(), first);
    press({"Escape"});
    QVERIFY(viewer::sees_no_window(window_title::manual));
}

void tst_keyboard_road::hydrograph()
{
    QVERIFY(program->bring_manual());
    add_by_keys({"Erlenbach_K1.wel", "Erlenbach_B1.wel"});
    press({"shift+Tab", "Down", "Up"}); // to the list of files, and in it
    press({"Tab", "space"});            // "Plot"
    QTRY_VERIFY(program->sees(place::lower_plot, blue) > 100);
    const QImage lower = program->look(place::lower_plot);
    const QImage upper = program->look(place::upper_plot);
    tab(8); // to the lower plot
    press({"minus"});
    QVERIFY(program->look(place::lower_plot) != lower);
    QVERIFY(program->look(place::upper_plot) != upper);
    const QImage axis = program->look(place::lower_left_axis);
    tab(1); // to the first button of the tool bar
    keep_screenshot("tool_bar_by_keys");
    press({"space"});
    set_values("2", "20.5");
    QVERIFY(program->look(place::lower_left_axis) != axis);
    const QImage legend = program->look(place::lower_legend);
    tab(5); // to the last one
    press({"space"});
    rename_first_curve("Zufluss");
    QVERIFY(program->look(place::lower_legend) != legend);
    keep_screenshot("renamed_by_keys");
    save_by_keys("Erlenbach_K1.png");
    QCOMPARE(QImage(program->path_of("Erlenbach_K1.png")).size(), QSize(681, 581));
    read_manual();
    press({"Alt_L", "Down", "Down", "Down", "Return"}); // "Schließen"
    QCOMPARE(program->exit_code(), 0);
}

void tst_keyboard_road::characteristic_curves()
{
    add_by_keys({"Erlenbach.bek"});
    press({"shift+Tab", "space"});
    press({"Tab", "space"}); // "Read"
    QTRY_VERIFY(program->sees(place::names, Qt::black) > 20);
    tab(2); // to the names
    press({"Down"});
    press({"Tab", "space"}); // "Plot Kennlinie DKL/BEK"
    QTRY_VERIFY(program->sees(place::lower_plot, blue) > 100);
    const QImage second = program->look(place::lower_plot);
    press({"Tab", "space"}); // "|<"
    QTRY_VERIFY(program->look(place::lower_plot) != second);
    press({"Tab", "Tab", "space"}); // ">"
    QTRY_COMPARE(program->look(place::lower_plot), second);
    keep_screenshot("basin_by_keys");
    press(QStringList(5, "shift+Tab")); // back to "Remove File"
    press({"space"});
    QTRY_COMPARE(program->sees(first_file_row, Qt::black), 0);
    QTRY_COMPARE(program->sees(place::names, Qt::black), 0);
}

QTEST_APPLESS_MAIN(tst_keyboard_road)
#include "tst_keyboard_road.moc"
