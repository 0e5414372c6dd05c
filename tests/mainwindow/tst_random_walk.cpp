#include "plot/korimo_plot.h"
#include "tests/support/document_dump.h"
#include "tests/support/literal_curve_reader.h"
#include "tests/support/log_capture.h"
#include "tests/support/named_curves.h"
#include "tests/support/random_user.h"
#include "tests/support/write_file.h"

#include <qwt_plot.h>
#include <qwt_text.h>

#include <QApplication>
#include <QHash>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

namespace {

// How many actions one walk has; the walks of all rows add up.
int walk_length()
{
    bool is_number = false;
    const int wanted = qEnvironmentVariableIntValue("KORIMO_WALK", &is_number);
    return is_number ? wanted : 5000;
}

QByteArray rows_of(int columns)
{
    return "Ganglinien\n0" + QByteArray(" 1.5").repeated(columns - 1) + "\n72" +
           QByteArray(" 20").repeated(columns - 1) + "\n";
}

void write_files(const QTemporaryDir& folder)
{
    const QList<std::pair<const char*, QByteArray>> files{
        {"a_K.wel", node_file(9)}, {"b_N.wel", node_file(90)},   {"c_B.wel", rows_of(7)},
        {"d_B.wel", rows_of(9)},   {"e_T.wel", rows_of(10)},     {"f_V.wel", rows_of(4)},
        {"g_P.wel", rows_of(3)},   {"h_E.wel", rows_of(2)},      {"i.wel", rows_of(3)},
        {"j_P.wel", ""},           {"k.bek", basin_table()},     {"l.dkl", throttle_curves()},
        {"o.BEK", basin_table()},  {"p.Dkl", throttle_curves()}, {"m.bek", "nothing\n"},
        {"n.txt", basin_table()},
    };
    for (const auto& [name, bytes] : files)
        write_file(folder.filePath(name), bytes);
}

// How many curves the lower and the upper plot have in each mode.
std::pair<qsizetype, qsizetype> curve_counts(int plot_mode)
{
    static const QHash<int, std::pair<qsizetype, qsizetype>> counts{
        {-1, {0, 0}}, {0, {2, 2}}, {1, {3, 1}}, {2, {2, 0}}, {3, {3, 0}},
        {5, {2, 0}},  {6, {1, 0}}, {8, {1, 0}}, {9, {2, 1}}};
    return counts.value(plot_mode, {-1, -1});
}

QStringList texts_of(const QListWidget* list)
{
    QStringList texts;
    for (int row = 0; row < list->count(); ++row)
        texts.append(list->item(row)->text());
    return texts;
}

bool is_bare(const QwtPlot* plot)
{
    return plot->itemList().isEmpty() && !plot->legend() && plot->title().isEmpty() &&
           plot->axisTitle(QwtAxis::XBottom).isEmpty() && plot->axisTitle(QwtAxis::YLeft).isEmpty();
}

bool is_finished(const QwtPlot* plot, qsizetype curves)
{
    return plot->itemList(QwtPlotItem::Rtti_PlotCurve).size() == curves &&
           plot->itemList(QwtPlotItem::Rtti_PlotGrid).size() == 1 && plot->legend();
}

// Whether a document holds what reading one of the names must give.
bool holds_one_of(const korimo_plot& document, const QString& path, const QStringList& names)
{
    return std::ranges::any_of(names, [&](const QString& name) {
        const literal_reading expected = document.plot_mode == 9 ? read_bek_literally(path, name)
                                                                 : read_dkl_literally(path, name);
        return document.series == expected.series && document.wel_title == expected.wel_title;
    });
}

// What is wrong with the window, or nothing.
QString fault_of(const window_driver& driver)
{
    const korimo_plot* const document = driver.window.shown_document();
    const QString text = driver.button->text();
    const QList<QListWidgetItem*> selected = driver.list->selectedItems();
    const QStringList names = texts_of(driver.names);
    if (QApplication::activeModalWidget())
        return "a dialog is left";
    if ((text == "Clear") != (document != nullptr))
        return "the button and the document disagree";
    if (!document)
        return !names.isEmpty()                                   ? "names without a document"
               : !is_bare(driver.lower) || !is_bare(driver.upper) ? "a plot is not bare"
               : text != "Plot" && text != "Read"                 ? "the button has another text"
                                                                  : "";
    if (selected.size() != 1)
        return "a document without a selected file";
    const QString path = selected[0]->text();
    const literal_reading file = read_literally(path);
    if (names != file.kennlinien_list && !path.endsWith("wel"))
        return "the names are not those of the file";
    if (is_bare(driver.lower) && is_bare(driver.upper) && !path.endsWith("wel"))
        return ""; // read, and no name drawn yet
    const auto [lower, upper] = curve_counts(document->plot_mode);
    if (!is_finished(driver.lower, lower) || !is_finished(driver.upper, upper))
        return "the plots have other curves than the document";
    if (path.endsWith("wel"))
        return !names.isEmpty()                                      ? "names of a hydrograph"
               : dump(*document) != dump(file)                       ? "another file's document"
               : driver.lower->title().text() != document->wel_title ? "another file's title"
                                                                     : "";
    return holds_one_of(*document, path, names) ? "" : "a curve that has no name";
}

} // namespace

// Whatever a user does, in whatever order: button, lists, document and plots agree after each step.
class tst_random_walk : public QObject
{
    Q_OBJECT

private slots:
    void walk_data();
    void walk();
};

void tst_random_walk::walk_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1U, 2U, 3U, 4U})
        QTest::addRow("seed %u", seed) << seed;
}

void tst_random_walk::walk()
{
    QFETCH(quint32, seed);
    const log_capture log;
    window_driver driver;
    write_files(driver.folder);
    random_user user(driver, seed);
    QHash<QString, int> done;
    int documents = 0;
    for (int step = 0; step < walk_length(); ++step) {
        const QString action = user.act();
        ++done[action];
        documents += driver.window.shown_document() ? 1 : 0;
        const QString fault = fault_of(driver);
        QVERIFY2(fault.isEmpty(),
                 qPrintable(QString("step %1, %2: %3").arg(step).arg(action, fault)));
        QVERIFY(driver.window.isVisible());
    }
    // A walk past an empty window would show little.
    QVERIFY2(documents > walk_length() / 3,
             qPrintable(QString("%1 with a document").arg(documents)));
}

QTEST_MAIN(tst_random_walk)
#include "tst_random_walk.moc"
