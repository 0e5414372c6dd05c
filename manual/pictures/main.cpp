// Makes the pictures of the manual: manual_pictures FOLDER MANUAL, in a folder that holds the
// examples as "Erlenbach". MANUAL is a draft of the manual, for the picture of its own viewer; as
// long as there is none, that picture shows an empty viewer.

#include "app/style_sheet.h"
#include "docu/docudialog.h"
#include "manual/pictures/stage.h"

#include <QAction>
#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFile>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include <qwt_plot.h>

#include <cstdio>

namespace {

QDir target;
bool all_saved = true;

void save(const QPixmap& picture, const QString& name)
{
    all_saved = picture.save(target.filePath(name + ".png")) && all_saved;
}

std::function<void(QWidget&)> save_as(const QString& name)
{
    return [name](QWidget& shown) { save(shown.grab(), name); };
}

// What is drawn for each kind of element.
void draw_hydrographs()
{
    for (const char* element : {"K1", "B1", "B2", "T1", "V1", "P1", "E1"}) {
        stage scene;
        scene.list({QString("Erlenbach_%1.wel").arg(element)});
        scene.press("pushButton");
        save(scene.plots(), QString("ganglinie_") + element);
    }
}

void draw_window()
{
    stage full;
    full.list({"Erlenbach_B1.wel", "Erlenbach.bek", "Erlenbach_K1.wel"});
    save(full.whole(), "fenster_dateien");
    stage first;
    first.list({"Erlenbach_B1.wel", "Erlenbach_K1.wel"});
    first.press("pushButton");
    save(first.whole(), "fenster_ganglinie");
}

void draw_characteristic_curves()
{
    stage basins;
    basins.list({"Erlenbach.bek"});
    basins.press("pushButton");
    basins.pick(1);
    save(basins.whole(), "fenster_gelesen");
    basins.press("pushButton_2");
    save(basins.plots(), "kennlinie_becken");
    stage throttles;
    throttles.list({"Erlenbach.dkl"});
    throttles.press("pushButton");
    throttles.pick(1);
    throttles.press("pushButton_2");
    save(throttles.plots(), "kennlinie_drossel");
}

void draw_zoom()
{
    stage scene;
    scene.list({"Erlenbach_K1.wel"});
    scene.press("pushButton");
    auto* const lower = scene.window.findChild<QwtPlot*>("qwtPlot");
    lower->setAxisScale(QwtAxis::XBottom, 5, 25);
    lower->replot();
    save(scene.plots(), "gezoomt");
}

void draw_dialogs()
{
    stage scene;
    scene.list({"Erlenbach_B1.wel"});
    scene.press("pushButton");
    scene.trigger("action_y_achse_unten", [](QWidget& dialog) {
        dialog.findChild<QDoubleSpinBox*>("doubleSpinBox")->setValue(0);
        dialog.findChild<QDoubleSpinBox*>("doubleSpinBox_2")->setValue(20);
        save(dialog.grab(), "achsenskalierung");
    });
    save(scene.plots(), "achse_fest");
    scene.trigger("actionZeitreihe_change_names", [](QWidget& dialog) {
        auto* const table = dialog.findChild<QTableWidget*>("tableWidget");
        table->setItem(0, 1, new QTableWidgetItem("Zufluss"));
        table->setItem(1, 1, new QTableWidgetItem("Abgabe"));
        save(dialog.grab(), "umbenennen");
        dialog.findChild<QPushButton*>("pushButton")->click();
    });
    save(scene.plots(), "umbenannt");
    scene.trigger("action_speicher", save_as("gespeichert"));
    QFile::remove("Erlenbach/Erlenbach_B1.png");
}

void draw_boxes()
{
    stage scene;
    scene.press_and_look("pushButton", save_as("box_auswahl"));
    scene.trigger("actionOrvan_Information", save_as("box_information"));
    scene.trigger("actionLGPLv3", save_as("box_lizenz"));
}

// Waits until the widget has been drawn and stands still: pages are drawn beside the event loop.
QPixmap settled(QWidget& widget)
{
    const QDeadlineTimer deadline(20'000);
    const QImage blank = widget.grab().toImage();
    QImage shown = blank;
    int same = 0;
    while (!deadline.hasExpired() && same < 10) {
        QTest::qWait(50);
        const QImage now = widget.grab().toImage();
        same = now == shown && (now != blank || deadline.remainingTime() < 15'000) ? same + 1 : 0;
        shown = now;
    }
    return widget.grab();
}

void draw_manual_viewer(const QString& manual)
{
    DocuDialog viewer(nullptr);
    viewer.setAttribute(Qt::WA_DeleteOnClose, false);
    viewer.resize(1000, 700);
    viewer.loadDocument(manual, 5);
    viewer.show();
    save(settled(viewer), "handbuch_fenster");
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QFile sheet(QStringLiteral(":styles/look_and_feel/global_style.qss"));
    apply_style_sheet(*qApp, sheet);
    if (argc != 3 || !QDir().mkpath(argv[1])) {
        std::fputs("usage: manual_pictures FOLDER MANUAL\n", stderr);
        return 2;
    }
    target.setPath(argv[1]);
    draw_window();
    draw_hydrographs();
    draw_characteristic_curves();
    draw_zoom();
    draw_dialogs();
    draw_boxes();
    draw_manual_viewer(argv[2]);
    return all_saved ? 0 : 1;
}
