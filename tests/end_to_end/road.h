#pragma once

#include "tests/end_to_end/desktop.h"
#include "tests/end_to_end/floor_plan.h"
#include "tests/end_to_end/viewer.h"

#include <QColor>
#include <QObject>

#include <memory>

class QApplication;

inline const QColor blue(Qt::blue);
inline const QColor green(Qt::green);
inline const QColor red(Qt::red);
inline constexpr QRect first_file_row(place::files.left() + 2, place::files.top() + 2, 300, 16);

/// What all end-to-end tests share: a desktop, and for each step a viewer of its own on it. A step
/// that failed leaves a screenshot behind; with KORIMO_SCREENSHOTS in the environment, all steps
/// do.
class road : public QObject
{
    Q_OBJECT

public:
    explicit road(const QSize& screen_size = {1280, 1024});
    ~road() override;

protected slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

protected:
    /// Copies examples into the viewer's folder and types their names into its file dialog.
    void add_by_typing(const QStringList& names);
    /// Clicks on a row of the file list.
    void select_row(int row) const;
    /// Saves the plots; answers the picture of this name, once the box has told of it.
    QImage save_picture(const QString& name);
    /// Opens the manual and waits for a window with this title.
    void open_manual(const QString& title);
    /// Keeps a screenshot of this name, if screenshots are wanted.
    static void keep_screenshot(const QString& name);

    static void keep_picture(const QImage& picture, const QString& name);

    desktop screen;
    std::unique_ptr<QApplication> application;
    std::unique_ptr<floor_plan> plan;
    std::unique_ptr<viewer> program;
};
