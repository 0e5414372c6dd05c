#include "tests/end_to_end/desktop.h"
#include "tests/end_to_end/road.h"

#include <QApplication>
#include <QDrag>
#include <QFile>
#include <QMimeData>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <QWidget>

namespace {

// A window of another program (this one) from which files are dragged. It proposes to move them, as
// some file managers do.
class drag_source : public QWidget
{
public:
    explicit drag_source(const QList<QUrl>& urls)
        : urls(urls)
    {
        setWindowTitle("source of a drag");
        setGeometry(1060, 500, 200, 100);
        show();
    }

    Qt::DropAction result = Qt::IgnoreAction;
    bool finished = false;

protected:
    void mousePressEvent(QMouseEvent* /*event*/) override
    {
        auto* const data = new QMimeData;
        data->setUrls(urls);
        auto* const drag = new QDrag(this);
        drag->setMimeData(data);
        result = drag->exec(Qt::MoveAction | Qt::CopyAction, Qt::MoveAction);
        finished = true;
    }

private:
    QList<QUrl> urls;
};

// Drags with the left button from the middle of `source` to a place on the screen, without letting
// go.
void drag_over(const QWidget& source, const QPoint& target)
{
    const QPoint start = source.mapToGlobal(source.rect().center());
    QStringList words{"mousemove",
                      QString::number(start.x()),
                      QString::number(start.y()),
                      "sleep",
                      "0.3",
                      "mousedown",
                      "1",
                      "sleep",
                      "0.3"};
    for (int step = 1; step <= 8; ++step) {
        const QPoint point = start + (target - start) * step / 8;
        words +=
            {"mousemove", QString::number(point.x()), QString::number(point.y()), "sleep", "0.1"};
    }
    start_xdotool(words);
}

void let_go_in(int milliseconds)
{
    QTimer::singleShot(milliseconds, qApp, [] { start_xdotool({"mouseup", "1"}); });
}

} // namespace

class tst_hydrograph_road : public road
{
    Q_OBJECT

private slots:
    void file_dialog_by_typing();
    void file_dialog_by_clicking();
    void drop_from_another_program();
    void plot_zoom_pan_and_clear();
    void change_of_file_and_removal();
    void message_without_selection();
    void closing_from_the_menu();
    void closing_below_a_drag();
};

void tst_hydrograph_road::file_dialog_by_typing()
{
    add_by_typing({"Erlenbach_K1.wel", "Erlenbach_B1.wel"});
    const QRect second_row = first_file_row.translated(0, 16);
    QTRY_VERIFY(program->sees(second_row, Qt::black) > 20);
    QTRY_COMPARE(program->sees(second_row.translated(0, 32), Qt::black), 0);
    // Nothing is drawn before "Plot".
    QTRY_COMPARE(program->sees(place::lower_plot, blue), 0);
}

// The dialog opens on the working folder and lists the file there, and not the text file.
void tst_hydrograph_road::file_dialog_by_clicking()
{
    QVERIFY(program->bring("Erlenbach_K1.wel"));
    QFile other(program->path_of("A.txt"));
    QVERIFY(other.open(QIODevice::WriteOnly));
    other.close();
    program->choose_file_entry(0);
    QVERIFY(viewer::sees_window(window_title::files));
    QTest::qWait(1000);
    // The first row of the list of files: beside the side bar, below the tool buttons.
    viewer::click_in_dialog(window_title::files, QPoint(200, 72));
    xdotool({"key", "alt+o"});
    QTRY_VERIFY(program->sees(first_file_row, Qt::black) > 20);
    select_row(0);
    program->click(place::plot_button.center());
    QTRY_VERIFY(program->sees(place::lower_plot, blue) > 200); // it was the WEL file
}

void tst_hydrograph_road::drop_from_another_program()
{
    for (const char* name : {"Erlenbach_K1.wel", "Erlenbach_P1.wel"})
        QVERIFY(program->bring(name));
    QFile other(program->path_of("notes.txt"));
    QVERIFY(other.open(QIODevice::WriteOnly));
    other.close();
    QList<QUrl> urls;
    for (const char* name : {"Erlenbach_K1.wel", "notes.txt", "Erlenbach_P1.wel"})
        urls.append(QUrl::fromLocalFile(program->path_of(name)));
    drag_source source(urls);
    QVERIFY(QTest::qWaitForWindowExposed(&source));
    for (int run = 0; run < 2; ++run) { // the second drop adds nothing
        source.finished = false;
        drag_over(source, program->on_screen(place::files.center()));
        let_go_in(2500);
        QTRY_VERIFY_WITH_TIMEOUT(source.finished, 10000);
        QCOMPARE(source.result, Qt::CopyAction);
        QTest::qWait(300);
        QTRY_VERIFY(program->sees(first_file_row, Qt::black) > 20);
        QTRY_VERIFY(program->sees(first_file_row.translated(0, 16), Qt::black) > 20);
        QTRY_COMPARE(program->sees(first_file_row.translated(0, 32), Qt::black), 0);
    }
    for (const QUrl& url : std::as_const(urls))
        QVERIFY(QFile::exists(url.toLocalFile()));
}

void tst_hydrograph_road::plot_zoom_pan_and_clear()
{
    add_by_typing({"Erlenbach_K1.wel"});
    select_row(0);
    program->click(place::plot_button.center());
    QTRY_VERIFY(program->sees(place::lower_plot, blue) > 100);
    QTRY_VERIFY(program->sees(place::lower_plot, green) > 100);
    QTRY_VERIFY(program->sees(place::upper_plot, blue) > 50);
    QTRY_VERIFY(program->sees(place::upper_plot, red) > 50);
    const QImage drawn = program->look(place::lower_plot);
    const QImage upper = program->look(place::upper_plot);
    keep_screenshot("plot");

    // The left axes stand in the first 60 pixels of the plots, the bottom axes below the canvas.
    const QRect left_axis(0, 30, 85, 280);
    const QPoint middle = place::lower_plot.center() - QPoint(30, 20);
    program->wheel(middle, 3);
    const QImage zoomed = program->look(place::lower_plot);
    QVERIFY(zoomed != drawn);
    QCOMPARE(zoomed.copy(left_axis), drawn.copy(left_axis));
    QVERIFY(program->look(place::upper_plot) != upper); // follows

    const QImage upper_zoomed = program->look(place::upper_plot);
    program->wheel(middle, 3, "shift");
    QVERIFY(program->look(place::lower_plot).copy(left_axis) != zoomed.copy(left_axis));
    QCOMPARE(program->look(place::upper_plot), upper_zoomed); // stays

    program->drag_right(middle, middle + QPoint(80, 0));
    QVERIFY(program->look(place::upper_plot) != upper_zoomed); // follows

    const QImage before = program->look(place::upper_plot);
    program->wheel(place::upper_plot.center(), 3);
    program->drag_right(place::upper_plot.center(), place::upper_plot.center() + QPoint(80, 0));
    QCOMPARE(program->look(place::upper_plot), before);

    program->click(place::plot_button.center());
    for (const QColor& colour : {blue, green, red}) {
        QTRY_COMPARE(program->sees(place::lower_plot, colour), 0);
        QTRY_COMPARE(program->sees(place::upper_plot, colour), 0);
    }
    program->click(place::plot_button.center());
    QTest::qWait(300);
    QCOMPARE(program->look(place::lower_plot), drawn);
    QCOMPARE(program->look(place::upper_plot), upper);
}

void tst_hydrograph_road::change_of_file_and_removal()
{
    add_by_typing({"Erlenbach_B1.wel", "Erlenbach_P1.wel"});
    select_row(0);
    program->click(place::plot_button.center());
    QTRY_VERIFY(program->sees(place::lower_plot, red) > 100);
    QTRY_VERIFY(program->sees(place::upper_plot, red) > 100);
    select_row(1);
    QTRY_COMPARE(program->sees(place::lower_plot, red), 0);
    QTRY_COMPARE(program->sees(place::upper_plot, red), 0);
    program->click(place::plot_button.center());
    QTRY_VERIFY(program->sees(place::lower_plot, blue) > 50);
    QTRY_VERIFY(program->sees(place::lower_plot, green) > 50);
    QTRY_COMPARE(program->sees(place::upper_plot, red), 0);
    program->click(place::remove_button.center());
    QTRY_COMPARE(program->sees(place::lower_plot, blue), 0);
    QTRY_COMPARE(program->sees(first_file_row.translated(0, 16), Qt::black), 0);
    program->click(place::remove_button.center());
    const QImage empty_list = program->look(first_file_row);
    QCOMPARE(pixels_of(empty_list, empty_list.rect(), Qt::white), 300 * 16);
}

void tst_hydrograph_road::message_without_selection()
{
    program->click(place::plot_button.center());
    QVERIFY(viewer::sees_window("Error"));
    program->key("Return");
    QVERIFY(viewer::sees_no_window("Error"));
}

void tst_hydrograph_road::closing_from_the_menu()
{
    program->choose_file_entry(2);
    QCOMPARE(program->exit_code(), 0);
}

// The mouse button stays down until the program is gone. The drag has a loop of its own, which
// returns no sooner.
void tst_hydrograph_road::closing_below_a_drag()
{
    QVERIFY(program->bring("Erlenbach_K1.wel"));
    drag_source source({QUrl::fromLocalFile(program->path_of("Erlenbach_K1.wel"))});
    QVERIFY(QTest::qWaitForWindowExposed(&source));
    int exit_code = -1;
    bool was_over = false;
    QTimer::singleShot(2500, &source, [&] {
        was_over = !source.finished;
        viewer::close_by_key();
        exit_code = program->exit_code();
        let_go_in(0);
    });
    drag_over(source, program->on_screen(place::files.center()));
    QTRY_VERIFY_WITH_TIMEOUT(source.finished, 20000);
    QVERIFY(was_over);
    QCOMPARE(exit_code, 0);
}

QTEST_APPLESS_MAIN(tst_hydrograph_road)
#include "tst_hydrograph_road.moc"
