#pragma once

#include "plot/series_store.h"

#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_magnifier.h>
#include <qwt_plot_panner.h>

#include <array>
#include <functional>

class QFile;
class QwtPlotCurve;
class QwtPlotGrid;
class text_lines;
struct curve_rule;

/// The plot document: what was read from one result file, and all that draws it into a pair of
/// plots.
///
/// A document serves one file (or one characteristic curve): it is created, reads once and draws
/// itself; destroying it takes everything off the plots. Of the two plots the first is always the
/// lower one, which carries the main curves and the mouse tools. The plots may be destroyed before
/// the document.
class korimo_plot : public QObject
{
    Q_OBJECT

public:
    /// `plot` gets the mouse tools; `plot_2` is not touched before it is drawn on.
    korimo_plot(QwtPlot* plot, QwtPlot* plot_2);
    ~korimo_plot() override;

public slots:
    /// Reads a WEL file into `series`, `wel_title` and `plot_mode`, or lists the names of a BEK or
    /// DKL file in `kennlinien_list`. Shows `error_box` if the file cannot be opened, or, as all
    /// readers do, if it is too large for the memory; then nothing of it is kept.
    void readFile(QString filepath);
    /// Reads one characteristic curve of a DKL file. Shows `error_box` like `readFile`.
    void read_DKL(QString filepath, QString dkl_item);
    /// Reads the table of one basin of a BEK file. A file that cannot be opened gives an empty one.
    void read_BEK(QString filepath, QString bek_item);
    /// Draws what was read, by `plot_mode`, and sets both plots up. Shows `error_box` if no reader
    /// recognised the file.
    void plot_the_curves(QwtPlot* my_plot, QwtPlot* my_plot_2);
    /// The title line of the WEL file as it stands there.
    QString get_wel_title();
    /// The names that the BEK or DKL file offers.
    QStringList get_kennlinien_list();
    /// Takes the lower plot's time range over to the upper plot; run by changes of the lower axes.
    void scaleDivChangedSlot();
    /// The range of the left axis, minimum first.
    QList<double> get_y_axis_scale(QwtPlot* plot);
    /// Fixes the left axis to a range (minimum, maximum) without a redraw and sets
    /// `y_bottom_status`. A list of fewer than two values changes nothing.
    void set_y_axis_scale(QwtPlot* plot, QList<double> min_max);
    /// The range of the x axis named "bottom" or "top"; two zeros for any other name.
    QList<double> get_x_axis_scale(QwtPlot* plot, QString axis_name);
    /// Fixes the x axis named "bottom" or "top" like `set_y_axis_scale`; any other name does
    /// nothing.
    void set_x_axis_scale(QwtPlot* plot, QList<double> min_max, QString axis_name);
    bool get_x_bottom_status();
    bool get_x_top_status();
    bool get_y_bottom_status();
    bool get_y_top_status();
    /// The names of the curves of all passes so far.
    QStringList get_curve_names();
    /// Gives each curve the name of its index, where that is not empty. Names behind the fourth are
    /// ignored.
    void set_curve_names(QStringList names);

public:
    int plot_mode = -1;       ///< what was read: an element kind, 8 for DKL, 9 for BEK, -1 nothing
    int last_scaled_plot = 1; ///< lower axis that changed last: 1 the bottom one, 2 the left one
    QString wel_title;
    QStringList kennlinien_list;
    QMessageBox error_box;
    series_store series;
    std::array<QwtPlotCurve*, 4> curves{};
    std::array<QString, 4> curve_title; ///< "Nothing" where no curve has been named
    QStringList curve_names;
    QPointer<QwtLegend> legend_upper;
    QPointer<QwtLegend> legend_lower;
    QwtPlotGrid* grid_upper = nullptr;
    QwtPlotGrid* grid_lower = nullptr;
    QPointer<QwtPlotMagnifier> magnifier_a;
    QPointer<QwtPlotMagnifier> magnifier_b;
    QPointer<QwtPlotPanner> panner;
    bool x_bottom_status = false;
    bool x_top_status = false;
    bool y_bottom_status = false;
    bool y_top_status = false; ///< never set: y axes of both plots set `y_bottom_status`

private:
    void show_error(const QString& title, const QString& text);
    bool open_or_report(QFile& file);
    void report_unreadable_file();
    void read_or_report(QFile& file, const std::function<void(text_lines&)>& read);

    void draw_curves();
    QwtPlotCurve* curve_of(const curve_rule& rule) const;
    void attach(const curve_rule& rule);
    void set_title(const curve_rule& rule, bool listed);

    void finish();
    void list_curve_names();
    void insert_legends();
    void set_up_zoom();
    void couple_x_axes();
    void set_up_panning();

    QPointer<QwtPlot> my_plot;
    QPointer<QwtPlot> my_plot_2;
};
