#include "ui/mainwindow.h"

#include "plot/korimo_plot.h"
#include "ui/application_icon.h"
#include "ui/axis_dialog.h"
#include "ui/name_delegate.h"
#include "ui/rename_dialog.h"
#include "ui/ui_mainwindow.h"

#include <qwt_scale_draw.h>

namespace {

// Wide enough for any tick label, so that the drawing areas of both plots line up.
constexpr double label_extent = 60.0;

void line_up_left_axis(QwtPlot& plot)
{
    QwtScaleDraw* const scale = plot.axisScaleDraw(QwtAxis::YLeft);
    scale->setMinimumExtent(label_extent);
    plot.setAxisScaleDraw(QwtAxis::YLeft, scale);
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent, Qt::WindowFlags())
    , ui(new Ui::MainWindow)
{
    ui->setupUi(this);
    setFixedSize(941, 848);
    setAcceptDrops(true);

    const QIcon icon = application_icon();
    setWindowIcon(icon);
    range_dialog = new axis_dialog(nullptr);
    range_dialog->setWindowIcon(icon);
    names_dialog = new rename_dialog(nullptr);
    names_dialog->setWindowIcon(icon);

    set_up_plots();
    ui->pushButton->setText(QStringLiteral("Plot"));
    ui->pushButton_3->setText(QStringLiteral("Remove File"));
    connect_commands();
    ui->listWidget_2->setSelectionMode(QAbstractItemView::SingleSelection);
    for (QListWidget* const list : {ui->listWidget, ui->listWidget_2})
        list->setItemDelegate(new name_delegate(list));
    ui->listWidget->setSelectionMode(QAbstractItemView::SingleSelection);
    complete_tab_order();
    name_canvases();
}

MainWindow::~MainWindow()
{
    destroy_document();
    delete ui;
    delete range_dialog;
    delete names_dialog;
}

void MainWindow::set_up_plots()
{
    ui->qwtPlot->setCanvasBackground(Qt::white);
    ui->qwtPlot_2->setCanvasBackground(Qt::white);
    line_up_left_axis(*ui->qwtPlot);
    line_up_left_axis(*ui->qwtPlot_2);
}

void MainWindow::connect_commands()
{
    struct connection
    {
        QObject* sender;
        const char* signal;
        const char* slot;
    };
    const char* const clicked = SIGNAL(clicked());
    const char* const triggered = SIGNAL(triggered());
    const connection connections[] = {
        {ui->pushButton, clicked, SLOT(buttonClicked())},
        {ui->pushButton_3, clicked, SLOT(remove_file_clicked())},
        {ui->pushButton_2, clicked, SLOT(plotDKl_Clicked())},
        {ui->pushButton_b_start, clicked, SLOT(back_to_start_clicked())},
        {ui->pushButton_b, clicked, SLOT(back_one_clicked())},
        {ui->pushButton_f, clicked, SLOT(forward_one_clicked())},
        {ui->pushButton_f_end, clicked, SLOT(forward_to_end_clicked())},
        {ui->listWidget, SIGNAL(itemSelectionChanged()), SLOT(listWidget_item_changed())},
        // The names of these slots do not match their actions, so nothing connects them by name…
        {ui->action_oeffnen, triggered, SLOT(on_action_oeffenen_triggered())},
        // …but for this one, which is connected twice. Deliberate: the second close finds the
        // window closed.
        {ui->action_schliessen, triggered, SLOT(on_action_schliessen_triggered())},
        {ui->actionQt_Licensing_Information, triggered,
         SLOT(on_action_Qt_Licensing_Information_triggered())},
        {ui->actionOrvan_Information, triggered, SLOT(on_action_Orvan_Information_triggered())},
        {ui->actionLGPLv3, triggered, SLOT(on_action_LGPLv3_triggered())},
        {ui->actionHandbuch, triggered, SLOT(on_action_Handbuch_triggered())},
    };
    for (const connection& each : connections)
        connect(each.sender, each.signal, this, each.slot);
}

void MainWindow::on_action_schliessen_triggered()
{
    close();
}

// Deliberate: "Pleae"; and the icon of the box is never set here, its buttons are not always: it
// shows those of its last use.
void MainWindow::show_selection_error(box_buttons buttons)
{
    if (buttons == box_buttons::ok_only)
        message_box.setStandardButtons(QMessageBox::Ok);
    message_box.setDetailedText(QString());
    message_box.setWindowTitle(QStringLiteral("Error"));
    message_box.setWindowIcon(application_icon());
    message_box.setText(QStringLiteral("Pleae select one file"));
    message_box.exec();
}
