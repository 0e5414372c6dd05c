#include "tests/end_to_end/road.h"

#include <QFile>
#include <QTest>

/// The program as a package has installed it, started as a desktop starts it: from its entry.
class tst_installed_road : public road
{
    Q_OBJECT

private slots:
    void init();
    void hydrographs();
    void manual();

private:
    void add_example(const QString& name);
    QByteArray log() const;
};

void tst_installed_road::init()
{
    program = std::make_unique<viewer>(
        viewer_start{.command = {"gio", "launch", "/usr/share/applications/plot_korimo.desktop"}});
    QVERIFY(program->is_shown());
}

// The dialog opens where the entry starts the program: the examples lie in a folder there.
void tst_installed_road::add_example(const QString& name)
{
    program->choose_file_entry(0);
    QVERIFY(viewer::sees_window(window_title::files));
    QTest::qWait(500);
    program->type("examples/" + name);
    program->key("Return");
    QTRY_VERIFY(program->sees(first_file_row, Qt::black) > 20);
}

QByteArray tst_installed_road::log() const
{
    QFile file(program->path_of("log"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no log");
}

void tst_installed_road::hydrographs()
{
    add_example("Erlenbach_K1.wel");
    select_row(0);
    program->click(place::plot_button.center());
    QTRY_VERIFY(program->sees(place::lower_plot, blue) > 200);
    QTRY_VERIFY(program->sees(place::upper_plot, blue) > 100);
    keep_screenshot("installed_plot");
    const QImage before = program->look(place::lower_plot);
    program->wheel(place::lower_plot.center(), 5);
    QTRY_VERIFY(program->look(place::lower_plot) != before);
    program->click(place::plot_button.center()); // it says "Clear" now
    QTRY_COMPARE(program->sees(place::lower_plot, blue), 0);
    program->close_main_window();
    QVERIFY(viewer::sees_no_window("plot_korimo"));
    QVERIFY(log().contains("connectSlotsByName")); // a warning of Qt
    QVERIFY(!log().contains("true"));              // rows, which the entry's setting keeps away
}

void tst_installed_road::manual()
{
    open_manual(window_title::manual);
    keep_screenshot("installed_manual");
    program->close_main_window();
    QVERIFY(viewer::sees_no_window("plot_korimo"));
}

QTEST_APPLESS_MAIN(tst_installed_road)
#include "tst_installed_road.moc"
