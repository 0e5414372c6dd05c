#pragma once

#include <QImage>
#include <QProcess>
#include <QRect>

/// A desktop of its own: an X server without a screen and a window manager on it. Clients find it
/// by the variable DISPLAY, which the constructor sets for this process and its children.
class desktop
{
public:
    explicit desktop(const QSize& size = {1280, 1024});
    ~desktop();

    desktop(const desktop&) = delete;
    desktop& operator=(const desktop&) = delete;

    /// Whether the server answers and the window manager has started.
    bool is_ready() const { return ready; }

private:
    QProcess server;
    QProcess manager;
    bool ready = false;
};

/// Runs `xdotool` with these words and answers what it prints, trimmed.
QString xdotool(const QStringList& words);

/// Starts `xdotool` with these words without waiting for its end.
void start_xdotool(const QStringList& words);

/// What is on the whole screen now.
QImage screenshot();

/// How many pixels of `image` inside `area` have exactly this colour.
int pixels_of(const QImage& image, const QRect& area, const QColor& colour);
