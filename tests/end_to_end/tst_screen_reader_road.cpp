#include "tests/end_to_end/accessibility_bus.h"
#include "tests/end_to_end/road.h"
#include "tests/end_to_end/session_bus.h"

#include <QTest>

#include <algorithm>

/// What the program tells screen readers, asked as one of them would ask: on the accessibility bus.
class tst_screen_reader_road : public road
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void parts_of_the_window_data();
    void parts_of_the_window();
    void focus_that_goes_round();
    void focus_in_the_plot();
    void buttons_of_the_manual();

private:
    QString focus() const;

    std::unique_ptr<session_bus> session;
    std::unique_ptr<accessibility_bus> bus;
};

Q_DECLARE_METATYPE(spoken_role)

namespace {

QProcessEnvironment for_screen_readers()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    return environment;
}

} // namespace

void tst_screen_reader_road::initTestCase()
{
    session = std::make_unique<session_bus>();
    QVERIFY2(session->is_ready(), "dbus-run-session is needed");
    road::initTestCase();
    bus = std::make_unique<accessibility_bus>();
    QVERIFY2(bus->is_ready(), "at-spi2-core is needed");
}

void tst_screen_reader_road::init()
{
    program = std::make_unique<viewer>(viewer_start{.environment = for_screen_readers()});
    QVERIFY(program->is_shown());
    QTRY_COMPARE(focus(), "Plot");
}

// The name of what has the focus.
QString tst_screen_reader_road::focus() const
{
    const QList<spoken_part> parts = bus->parts_of("plot_korimo");
    const auto found = std::ranges::find_if(parts, &spoken_part::has_focus);
    return found == parts.end() ? QString() : found->name;
}

void tst_screen_reader_road::parts_of_the_window_data()
{
    QTest::addColumn<spoken_role>("role");
    for (const char* name : {"Erster Name", "Voriger Name", "Nächster Name", "Letzter Name"})
        QTest::newRow(name) << spoken_role::push_button;
    for (const char* name : {"Dateiliste", "Liste der Kennlinien"})
        QTest::newRow(name) << spoken_role::list;
    for (const char* name : {"Oberes Diagramm", "Unteres Diagramm"})
        QTest::newRow(name) << spoken_role::panel;
}

void tst_screen_reader_road::parts_of_the_window()
{
    QFETCH(spoken_role, role);
    const QList<spoken_part> parts = bus->parts_of("plot_korimo");
    const QString name = QString::fromUtf8(QTest::currentDataTag());
    const auto found = std::ranges::find(parts, name, &spoken_part::name);
    QVERIFY(found != parts.end());
    QCOMPARE(found->role, role);
}

void tst_screen_reader_road::focus_that_goes_round()
{
    QStringList names;
    do {
        names.append(focus());
        program->key("Tab");
    } while (names.size() < 20 && focus() != "Plot");
    QCOMPARE(names,
             (QStringList{"Plot", "Remove File", "Liste der Kennlinien", "Plot Kennlinie DKL/BEK",
                          "Erster Name", "Voriger Name", "Nächster Name", "Letzter Name",
                          "y-Achse_unten", "x-Achse_unten", "2. X-Achse_unten", "y-Achse_oben",
                          "x-Achse_oben", "Zeitreihen umbenennen", "Dateiliste"}));
}

void tst_screen_reader_road::focus_in_the_plot()
{
    add_by_typing({"Erlenbach_K1.wel"});
    select_row(0);
    program->click(place::plot_button.center());
    QTRY_COMPARE(focus(), "Clear");
    for (int i = 0; i < 8; ++i)
        program->key("Tab");
    QCOMPARE(focus(), "Unteres Diagramm");
}

void tst_screen_reader_road::buttons_of_the_manual()
{
    QVERIFY(program->bring_manual());
    open_manual(window_title::manual);
    const QList<spoken_part> parts = bus->parts_of(window_title::manual);
    for (const char* name : {"Back to previous view", "Forward to next view", "Previous Page",
                             "Next Page", "Zoom Out", "Zoom In", "Find Previous", "Find Next"}) {
        const auto found = std::ranges::find(parts, QString(name), &spoken_part::name);
        QVERIFY2(found != parts.end(), name);
        QCOMPARE(found->role, spoken_role::push_button);
    }
}

QTEST_APPLESS_MAIN(tst_screen_reader_road)
#include "tst_screen_reader_road.moc"
