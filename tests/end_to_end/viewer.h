#pragma once

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QRect>
#include <QTemporaryDir>

#include <memory>

/// How a viewer is started.
struct viewer_start
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QStringList command = {VIEWER};
    QString folder = {}; ///< where, made for it; a temporary one if there is no name
};

/// The real program, run as a user runs it, with hands on mouse and keyboard and eyes on the
/// screen. Places are given in pixels of the window's central widget, as the form gives them; on
/// the screen they are larger by QT_SCALE_FACTOR.
class viewer
{
public:
    explicit viewer(const viewer_start& start = {});
    ~viewer();

    viewer(const viewer&) = delete;
    viewer& operator=(const viewer&) = delete;

    /// Waits for the window; false if it does not come up.
    bool is_shown();
    QString path_of(const QString& file_name) const { return folder.filePath(file_name); }
    /// Copies a file of the examples into the program's folder.
    bool bring(const QString& example) const;

    /// Copies the manual of the build there, too.
    bool bring_manual() const;
    /// Clicks on the button with which the window manager closes the main window.
    void close_main_window() const;
    /// Presses the window manager's key for it, Alt and F4.
    static void close_by_key();

    void click(const QPoint& place) const;
    /// Clicks at a place of the window, not of its central widget.
    void click_in_window(const QPoint& place) const;
    /// Clicks at a place of the dialog with this title, once or twice.
    static void click_in_dialog(const QString& title, const QPoint& place, int times = 1);
    void wheel(const QPoint& place, int notches, const QString& modifier = {}) const;
    void drag_right(const QPoint& from, const QPoint& to) const;
    void type(const QString& text) const;
    void key(const QString& name) const;
    /// Opens "Datei", goes down to an entry (counted from 0) and chooses it.
    void choose_file_entry(int entry) const;
    /// Waits until a window of the program has this title.
    static bool sees_window(const QString& title);
    /// Waits until no window has this title.
    static bool sees_no_window(const QString& title);

    /// How high the window with this title is, without its frame.
    static int height_of(const QString& title);

    QPoint on_screen(const QPoint& place) const;
    /// What the window shows of an area.
    QImage look(const QRect& area) const;
    int sees(const QRect& area, const QColor& colour) const;
    /// What is inside the frame of the window with this title, and of what covers it.
    QImage picture_of(const QString& title) const;

    /// The exit code, once the program has ended by itself; -1 if it does not.
    int exit_code();

private:
    void click_on_screen(const QPoint& point) const;
    QRect on_screen(const QRect& area) const;
    int central_widget_top() const;

    std::unique_ptr<QTemporaryDir> temporary;
    QDir folder;
    QProcess program;
    QPoint inside; // of the window, on the screen
    QPoint frame;  // how far xdotool is wrong about a window's place: the width of its frame
    QPoint origin; // of the central widget, on the screen
};

// Where things are in the window's central widget.
namespace place {

inline constexpr QRect upper_plot{30, 50, 681, 200};
inline constexpr QRect lower_plot{30, 260, 681, 381};
inline constexpr QRect lower_left_axis{30, 270, 85, 300}; // what stands left of the canvas
inline constexpr QRect lower_legend{600, 260, 110, 60};
inline constexpr QRect names{725, 51, 191, 591};
inline constexpr QRect files{80, 660, 541, 121};
inline constexpr QRect plot_button{630, 710, 81, 23};
inline constexpr QRect remove_button{630, 740, 81, 23};
inline constexpr QRect name_button{730, 710, 181, 23};
inline constexpr QRect to_start_button{730, 650, 21, 21};
inline constexpr QRect back_button{750, 650, 21, 21};
inline constexpr QRect forward_button{770, 650, 21, 21};
inline constexpr QRect to_end_button{790, 650, 21, 21};

} // namespace place

// What stands in the frames of its dialogs.
namespace window_title {

inline constexpr QLatin1StringView files("Auswahl der Datei zum Plotten");
inline constexpr QLatin1StringView range("Achsenskalierung");
inline constexpr QLatin1StringView names("Zeitreihen umbenennen");
inline constexpr QLatin1StringView manual("plot_korimo: Ganglinien und Kennlinien ansehen");

} // namespace window_title
