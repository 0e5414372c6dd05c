#include "plot/korimo_plot.h"
#include "tests/support/modal_answer.h"
#include "tests/support/modal_boxes.h"
#include "tests/support/named_curves.h"
#include "tests/support/write_file.h"
#include "ui/image_file_name.h"

#include <qwt_plot.h>
#include <qwt_plot_renderer.h>

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QListWidget>
#include <QPainter>
#include <QTest>

namespace {

// A plot as the picture should have it, drawn by itself.
QImage rendered(QwtPlot* plot)
{
    QImage image(plot->size(), QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    QwtPlotRenderer().render(plot, &painter, QRectF(0, 0, plot->width(), plot->height()));
    return image;
}

QImage saved(const QString& path)
{
    return QImage(path, "PNG").convertToFormat(QImage::Format_RGB32);
}

// Runs the command and answers the texts of the boxes that it showed.
QStringList save(const window_driver& driver)
{
    const modal_boxes boxes;
    driver.window.findChild<QAction*>("action_speicher")->trigger();
    QStringList texts;
    for (const shown_box& box : boxes.shown()) {
        texts.append(box.text);
        if (!box.title.isEmpty() || box.icon != QMessageBox::NoIcon || !box.has_window_icon ||
            !box.was_modal || box.buttons != QMessageBox::Ok || box.has_parent)
            texts.append("a box with other properties");
    }
    return texts;
}

QStringList files_in(const window_driver& driver)
{
    return QDir(driver.folder.path()).entryList(QDir::Files);
}

} // namespace

class tst_saved_image : public QObject
{
    Q_OBJECT

private slots:
    void file_name_of_a_hydrograph_data();
    void file_name_of_a_hydrograph();
    void file_name_of_a_curve_data();
    void file_name_of_a_curve();
    void nothing_plotted();
    void both_plots();
    void plots_of_different_widths();
    void lower_plot_only_data();
    void lower_plot_only();
    void basin();
    void throttle();
    void after_read();
    void after_another_read();
    void saved_before_the_box_shows();
    void saved_twice();
    void renamed_zoomed_and_fixed();
    void place_that_is_taken();
    void name_that_no_file_can_have();
    void without_a_current_file();
    void plots_look_the_same_afterwards();
};

void tst_saved_image::file_name_of_a_hydrograph_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");
    QTest::newRow("usual") << "C:/data/Pegel_P.wel" << "C:/data/Pegel_P.png";
    QTest::newRow("dots in the name") << "/d/a.b_P.wel" << "/d/a.b_P.png";
    QTest::newRow("no dot") << "/d/Pegel_Pwel" << "/d/Pegel_Pwel.png";
    QTest::newRow("dot in the folder only") << "C:/my.data/file" << "C:/my.png";
    QTest::newRow("dot at the end") << "/d/x_Pwel." << "/d/x_Pwel.png";
    QTest::newRow("dot at the start") << ".wel" << ".png";
    QTest::newRow("empty") << "" << ".png";
}

void tst_saved_image::file_name_of_a_hydrograph()
{
    QFETCH(QString, path);
    QFETCH(QString, expected);
    QCOMPARE(image_file_of_hydrograph(path), expected);
}

void tst_saved_image::file_name_of_a_curve_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");
    QTest::newRow("usual") << "C:/data/model.bek" << "C:/data/Becken 1.png";
    QTest::newRow("no folder") << "model.bek" << "Becken 1.png";
    QTest::newRow("root") << "/model.bek" << "/Becken 1.png";
    QTest::newRow("slash at the end") << "/d/bek/" << "/d/bek/Becken 1.png";
    QTest::newRow("empty") << "" << "Becken 1.png";
}

void tst_saved_image::file_name_of_a_curve()
{
    QFETCH(QString, path);
    QFETCH(QString, expected);
    QCOMPARE(image_file_of_curve(path, "Becken 1"), expected);
}

void tst_saved_image::nothing_plotted()
{
    window_driver driver;
    driver.add("x_K.wel", node_file(9));
    driver.select(0);
    QVERIFY(save(driver).isEmpty());
    QCOMPARE(files_in(driver), QStringList{"x_K.wel"});
}

void tst_saved_image::both_plots()
{
    window_driver driver;
    driver.open("x_K.wel", node_file(9));
    const QImage upper = rendered(driver.upper);
    const QImage lower = rendered(driver.lower);
    const QString file = driver.folder.filePath("x_K.png");
    QCOMPARE(save(driver), QStringList{"File saved to " + file});
    const QImage image = saved(file);
    QCOMPARE(image.size(), QSize(681, 581));
    QCOMPARE(image.copy(0, 0, 681, 200), upper);
    QCOMPARE(image.copy(0, 200, 681, 381), lower);
    QCOMPARE(files_in(driver), (QStringList{"x_K.png", "x_K.wel"}));
}

// The layout does not let this happen; the picture is as wide as the wider plot all the same.
void tst_saved_image::plots_of_different_widths()
{
    window_driver driver;
    driver.open("x_K.wel", node_file(9));
    driver.upper->resize(500, 150);
    const QImage upper = rendered(driver.upper);
    const QImage lower = rendered(driver.lower);
    save(driver);
    const QImage image = saved(driver.folder.filePath("x_K.png"));
    QCOMPARE(image.size(), QSize(681, 531));
    QCOMPARE(image.copy(0, 0, 500, 150), upper);
    QCOMPARE(image.copy(0, 150, 681, 381), lower);
}

void tst_saved_image::lower_plot_only_data()
{
    QTest::addColumn<int>("columns");
    QTest::newRow("x_P.wel") << 3;
    QTest::newRow("x_V.wel") << 4;
    QTest::newRow("x_T.wel") << 10;
    QTest::newRow("x_E.wel") << 2;
}

void tst_saved_image::lower_plot_only()
{
    QFETCH(int, columns);
    window_driver driver;
    driver.open(QTest::currentDataTag(), "0" + QByteArray(" 1").repeated(columns - 1) + "\n1" +
                                             QByteArray(" 2").repeated(columns - 1) + "\n");
    const QImage lower = rendered(driver.lower);
    save(driver);
    const QString file = QString(QTest::currentDataTag()).replace("wel", "png");
    QCOMPARE(saved(driver.folder.filePath(file)), lower);
    QCOMPARE(lower.size(), QSize(681, 381));
}

void tst_saved_image::basin()
{
    window_driver driver;
    driver.open("model.bek", basin_table());
    driver.pick(1);
    driver.press(driver.plot_name);
    const QImage upper = rendered(driver.upper);
    const QImage lower = rendered(driver.lower);
    const QString file = driver.folder.filePath("B2   .png"); // the blanks belong to the name
    QCOMPARE(save(driver), QStringList{"File saved to " + file});
    QCOMPARE(saved(file).copy(0, 0, 681, 200), upper);
    QCOMPARE(saved(file).copy(0, 200, 681, 381), lower);
}

void tst_saved_image::throttle()
{
    window_driver driver;
    driver.open("model.dkl", throttle_curves());
    driver.pick(2);
    driver.press(driver.plot_name);
    driver.pick(0); // selected, but not drawn
    save(driver);
    QCOMPARE(saved(driver.folder.filePath("3.5_3_Auslass3.png")), rendered(driver.lower));
}

// After "Read" there is a document, but no name has been chosen: the picture has none either.
void tst_saved_image::after_read()
{
    window_driver driver;
    driver.open("model.dkl", throttle_curves());
    const QString file = driver.folder.filePath(".png");
    QCOMPARE(save(driver), QStringList{"File saved to " + file});
    QCOMPARE(saved(file), rendered(driver.lower));
}

// The name that was drawn last still names the picture after another file has been read.
void tst_saved_image::after_another_read()
{
    window_driver driver;
    driver.open("model.dkl", throttle_curves());
    driver.pick(1);
    driver.press(driver.plot_name);
    driver.open("other.bek", basin_table());
    QCOMPARE(save(driver),
             QStringList{"File saved to " + driver.folder.filePath("2.5_2_Auslass2.png")});
}

void tst_saved_image::saved_before_the_box_shows()
{
    window_driver driver;
    driver.open("x_K.wel", node_file(9));
    bool is_there = false;
    const modal_answer<QMessageBox> user([&](QMessageBox& box) {
        is_there = QFile::exists(driver.folder.filePath("x_K.png"));
        box.close();
    });
    driver.window.findChild<QAction*>("action_speicher")->trigger();
    QCOMPARE(user.count(), 1);
    QVERIFY(is_there);
}

void tst_saved_image::saved_twice()
{
    window_driver driver;
    driver.open("x_K.wel", node_file(9));
    const QString file = driver.folder.filePath("x_K.png");
    write_file(file, "something else");
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(save(driver), QStringList{"File saved to " + file});
        QCOMPARE(saved(file).size(), QSize(681, 581));
    }
}

void tst_saved_image::renamed_zoomed_and_fixed()
{
    window_driver driver;
    driver.open("x_K.wel", node_file(9));
    save(driver);
    const QString file = driver.folder.filePath("x_K.png");
    const QImage before = saved(file);
    korimo_plot& document = *driver.window.shown_document();
    document.set_curve_names({"Name", "", "", ""});
    document.set_y_axis_scale(driver.lower, {0, 100});
    driver.lower->setAxisScale(QwtAxis::XBottom, 10, 20);
    driver.lower->replot();
    driver.upper->replot();
    const QImage lower = rendered(driver.lower);
    save(driver);
    QVERIFY(saved(file) != before);
    QCOMPARE(saved(file).copy(0, 200, 681, 381), lower);
}

// The box names the file that was meant.
void tst_saved_image::place_that_is_taken()
{
    window_driver driver;
    driver.open("x_K.wel", node_file(9));
    const QString file = driver.folder.filePath("x_K.png");
    QVERIFY(QDir().mkdir(file)); // no file can be written where a folder is
    QCOMPARE(save(driver), QStringList{"File saved to " + file});
    QVERIFY(QFileInfo(file).isDir());
}

void tst_saved_image::name_that_no_file_can_have()
{
    window_driver driver;
    driver.open("model.dkl", " 1 Auslass/Nord km 1.5\n 1\n 101.5 1\n");
    driver.pick(0);
    driver.press(driver.plot_name);
    QCOMPARE(save(driver),
             QStringList{"File saved to " + driver.folder.filePath("1.5_1_Auslass/Nord.png")});
    QCOMPARE(files_in(driver), QStringList{"model.dkl"});
}

void tst_saved_image::without_a_current_file()
{
    window_driver driver;
    driver.open("x_K.wel", node_file(9));
    driver.list->setCurrentRow(-1, QItemSelectionModel::NoUpdate);
    QVERIFY(driver.window.shown_document());
    QVERIFY(save(driver).isEmpty());
    QCOMPARE(files_in(driver), QStringList{"x_K.wel"});
}

void tst_saved_image::plots_look_the_same_afterwards()
{
    window_driver driver;
    driver.open("x_K.wel", node_file(9));
    QCoreApplication::processEvents();
    const QImage before = driver.window.grab().toImage();
    save(driver);
    QCoreApplication::processEvents();
    QCOMPARE(driver.window.grab().toImage(), before);
}

QTEST_MAIN(tst_saved_image)
#include "tst_saved_image.moc"
