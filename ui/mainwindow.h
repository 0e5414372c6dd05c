#pragma once

#include <QMainWindow>
#include <QMessageBox>
#include <QStringList>

#include <array>

class QwtPlot;
class axis_dialog;
class korimo_plot;
class rename_dialog;

namespace Ui {
class MainWindow;
}

/// The viewer's one window: the file list, both plots, and the commands that tie them together.
///
/// Its code is split by command: mainwindow.cpp lays out and wires, the other mainwindow_*.cpp hold
/// the commands of the same name.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// The document that is shown, for tests and tools; null while there is none.
    korimo_plot* shown_document() const { return document; }

public slots:
    /// Adds the files that the user picks in a dialog to the file list.
    void selectFiles();
    /// Plots or reads the selected file, or clears the plots, as the button's text says.
    void buttonClicked();
    /// Plots the curve whose name is selected in the right-hand list.
    void plotDKl_Clicked();
    /// These four make a name of the right-hand list current and plot its curve: the first, the one
    /// before, the next, the last. Before the first and behind the last nothing happens.
    void back_to_start_clicked();
    void back_one_clicked();
    void forward_one_clicked();
    void forward_to_end_clicked();
    /// Clears the plots for the file that is selected now and names the button after its kind.
    void listWidget_item_changed();
    // Deliberate: named unlike its action, so it is connected by hand.
    void on_action_oeffenen_triggered();
    /// Saves what both plots show as one picture beside the data file, and says where.
    void on_action_speicher_triggered();
    void on_action_schliessen_triggered();
    void on_action_Orvan_Information_triggered();
    void on_action_Qt_Licensing_Information_triggered();
    void on_action_LGPLv3_triggered();
    /// Opens the manual in a window of its own.
    void on_action_Handbuch_triggered();
    /// Empties both plots and the right-hand list. The trigger "list_item_changed" keeps the ranges
    /// of the axes that the user fixed, any other ("clear_btn") forgets them.
    void clear_plots(QString trigger);
    /// Notes a range (minimum, maximum) as the last one applied.
    void set_min_max(QList<double> min_max);
    /// These five let the user fix the range of one axis.
    void on_action_y_achse_unten_triggered();
    void on_actionx_Achse_unten_triggered();
    void on_actiony_Achse_oben_triggered();
    void on_actionx_Achse_oben_triggered();
    void on_action2_X_Achse_unten_triggered();
    /// Lets the user give the curves new names.
    void on_actionZeitreihe_change_names_triggered();
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    /// Takes the selected file out of the file list.
    void remove_file_clicked();

private:
    void set_up_plots();
    void connect_commands();
    void complete_tab_order();
    void name_canvases();

    void add_files(const QStringList& paths);

    enum class box_buttons
    {
        kept, // those of the box's last use
        ok_only,
    };
    void show_selection_error(box_buttons buttons);
    void replace_document();
    void destroy_document();
    void plot_hydrographs();
    void list_names(const QString& path);
    void read_selected_name();
    void plot_name_in_row(int row);
    void remember_fixed_ranges();
    void forget_fixed_ranges();
    enum class redraw
    {
        no,
        yes,
    };
    void apply_kept_ranges(redraw wanted);
    using axis_slot = void (MainWindow::*)();
    struct axis_command;
    static const axis_command& axis_command_of(axis_slot slot);
    void ask_for_range(axis_slot slot);
    static bool has_curves(QwtPlot* plot);
    static bool is_behind_a_dialog();
    QString idle_button_text() const;

    Ui::MainWindow* ui;
    QMessageBox message_box; // shared by all commands: each sets only what it names
    korimo_plot* document = nullptr;
    bool document_exists = false;
    bool two_step_mode = false; // the selected file is no WEL file: "Read" first, then a name
    QStringList offered_names;
    QString current_file_path;
    QString selected_item_name;
    axis_dialog* range_dialog;
    QList<double> applied_range; // the last one that the dialog gave
    QString clear_trigger;
    std::array<QList<double>, 4> kept_ranges; // of the lower x, upper x, lower y and upper y axis
    QList<bool> keep_flags{false, false, false, false};
    rename_dialog* names_dialog;
};
