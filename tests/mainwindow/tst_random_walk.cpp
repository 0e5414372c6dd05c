#include "plot/korimo_plot.h"
#include "plot/reading/element_kinds.h"
#include "tests/support/curve_counts.h"
#include "tests/support/document_dump.h"
#include "tests/support/literal_curve_reader.h"
#include "tests/support/log_capture.h"
#include "tests/support/named_curves.h"
#include "tests/support/random_user.h"
#include "tests/support/write_file.h"

#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_text.h>

#include <QApplication>
#include <QDir>
#include <QListWidget>
#include <QPushButton>
#include <QSet>
#include <QTest>

#include <algorithm>

namespace {

// How many actions one walk has; the walks of all rows add up.
int walk_length()
{
    bool is_number = false;
    const int wanted = qEnvironmentVariableIntValue("KORIMO_WALK", &is_number);
    return is_number && wanted > 0 ? wanted : 5000;
}

void write_files(const QTemporaryDir& folder)
{
    for (const element_kind& kind : element_kinds())
        write_file(folder.filePath(u'd' + kind.markers[0].toString() + QStringLiteral(".wel")),
                   rows_of(kind.columns.size()));
    const QList<std::pair<const char*, QByteArray>> files{
        {"a_K.wel", node_file(9)},
        {"b_N.wel", node_file(90)},
        {"c_B.wel", rows_of(7)},
        {"i.wel", rows_of(3)},
        {"j_P.wel", ""},
        {"k.bek", basin_table()},
        {"l.dkl", throttle_curves()},
        {"o.BEK", basin_table().replace("2.00  ", "7.00  ")},
        {"p.Dkl", throttle_curves().replace("9.5", "8.5")},
        {"m.bek", "nothing\n"},
        {"q_K.wel",
         "0" + QByteArray(" inf").repeated(9) + "\n1" + QByteArray(" 1e308").repeated(9) + "\n2" +
             QByteArray(" -1e308").repeated(9) + "\nnan" + QByteArray(" nan").repeated(9) + "\n"},
        {"r_E.wel", "nan nan\n-1e308 1\n1e308 2\n"},
        {"n.txt", basin_table()},
    };
    for (const auto& [name, bytes] : files)
        write_file(folder.filePath(name), bytes);
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

literal_reading read_name_literally(const QString& path, const QString& name)
{
    return path.endsWith("bek", Qt::CaseInsensitive) ? read_bek_literally(path, name)
                                                     : read_dkl_literally(path, name);
}

QString fault_without_document(const window_driver& driver)
{
    const QList<QListWidgetItem*> selected = driver.list->selectedItems();
    if (driver.names->count() > 0)
        return "names without a document";
    if (!is_bare(driver.lower) || !is_bare(driver.upper))
        return "a plot is not bare";
    const QString text = driver.button->text();
    if (selected.size() == 1)
        return text == (selected[0]->text().endsWith("wel") ? "Plot" : "Read") ? "" : "button text";
    return text == "Plot" || text == "Read" ? "" : "the button has another text";
}

QString fault_of_hydrographs(const window_driver& driver, const literal_reading& file)
{
    const korimo_plot& document = *driver.window.shown_document();
    if (driver.names->count() > 0)
        return "names of a hydrograph";
    if (dump(document) != dump(file))
        return "another file's document";
    return driver.lower->title().text() == document.wel_title ? "" : "another file's title";
}

// Curves whose names can be changed have the names that the document keeps.
QString fault_of_names(const korimo_plot& document)
{
    for (std::size_t i = 0; i < document.curves.size(); ++i) {
        const QString& title = document.curve_title[i];
        if (title != "Nothing" &&
            (document.curves[i]->title().text() != title || !document.curve_names.contains(title)))
            return "a curve has another name than the document keeps";
    }
    return "";
}

} // namespace

// Whatever a user does, in whatever order: button, lists, document and plots agree after each step.
class tst_random_walk : public QObject
{
    Q_OBJECT

private slots:
    void walk_data();
    void walk();

private:
    QString fault_of(const window_driver& driver);
    QString fault_of_characteristic_curve(const window_driver& driver, const QString& path);

    QString drawn_name; // in a file of names
};

// What is wrong with the window, or nothing.
QString tst_random_walk::fault_of(const window_driver& driver)
{
    const korimo_plot* const document = driver.window.shown_document();
    const QList<QListWidgetItem*> selected = driver.list->selectedItems();
    QStringList files = texts_of(driver.list);
    if (QApplication::activeModalWidget())
        return "a dialog is left";
    if (files.removeDuplicates() > 0)
        return "a file is listed twice";
    if ((driver.button->text() == "Clear") != (document != nullptr))
        return "the button and the document disagree";
    if (!document)
        return fault_without_document(driver);
    if (selected.size() != 1)
        return "a document without a selected file";
    const QString path = selected[0]->text();
    const literal_reading file = read_literally(path);
    if (!path.endsWith("wel") && texts_of(driver.names) != file.kennlinien_list)
        return "the names are not those of the file";
    if (!path.endsWith("wel") && document->plot_mode == -1)
        return is_bare(driver.lower) && is_bare(driver.upper) ? "" : "drawn without a name";
    const auto [lower, upper] = curve_counts(document->plot_mode);
    if (!is_finished(driver.lower, lower) || !is_finished(driver.upper, upper))
        return "the plots have other curves than the document";
    const QString fault = path.endsWith("wel") ? fault_of_hydrographs(driver, file)
                                               : fault_of_characteristic_curve(driver, path);
    return fault.isEmpty() ? fault_of_names(*document) : fault;
}

// A document that is new was made for the name that is selected now.
QString tst_random_walk::fault_of_characteristic_curve(const window_driver& driver,
                                                       const QString& path)
{
    korimo_plot& document = *driver.window.shown_document();
    if (!document.property("seen").toBool())
        drawn_name = driver.names->currentItem()->text();
    document.setProperty("seen", true);
    const literal_reading expected = read_name_literally(path, drawn_name);
    const bool same = document.plot_mode == expected.plot_mode &&
                      document.series == expected.series &&
                      document.wel_title == expected.wel_title;
    return same ? "" : "another curve than the one that was chosen";
}

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
    QSet<QString> done;
    int documents = 0;
    for (int step = 0; step < walk_length(); ++step) {
        const QString action = user.act();
        done.insert(action);
        documents += driver.window.shown_document() ? 1 : 0;
        const QString fault = fault_of(driver);
        QVERIFY2(fault.isEmpty(),
                 qPrintable(QString("step %1, %2: %3").arg(step).arg(action, fault)));
        QVERIFY(driver.window.isVisible());
    }
    if (walk_length() <= 2000) // a shorter walk may miss what is done seldom
        return;
    // A walk past an empty window would show little.
    QVERIFY2(documents > walk_length() / 3, QByteArray::number(documents));
    QCOMPARE(done.size(), random_user::kinds_of_action());
    QVERIFY(!QDir(driver.folder.path()).entryList({"*.png"}).isEmpty());
}

QTEST_MAIN(tst_random_walk)
#include "tst_random_walk.moc"
