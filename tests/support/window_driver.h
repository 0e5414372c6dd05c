#pragma once

#include "ui/mainwindow.h"

#include <QTemporaryDir>
#include <QUrl>

class QListWidget;
class QMimeData;
class QPushButton;
class QwtPlot;

/// A main window on the screen, its widgets, a folder for its files, and the hands of a user.
struct window_driver
{
    window_driver();

    /// Writes a file into the folder, adds its row to the file list, and answers its path.
    QString add(const QString& name, const QByteArray& text);
    /// Clicks on a row of the file list.
    void select(int row) const;
    /// Clicks on a row of the right-hand list.
    void pick(int row) const;
    void press(QPushButton* which) const;
    /// Adds a file, selects it, and presses "Plot" or "Read".
    QString open(const QString& name, const QByteArray& text);
    /// Drags into the window, and neither leaves nor drops; answers whether a drop would be taken.
    bool drag(const QMimeData& data, Qt::DropActions offered = Qt::CopyAction,
              Qt::KeyboardModifiers held = Qt::NoModifier);
    /// Drags into the window and drops there; answers what the source is told was done.
    Qt::DropAction drop(const QMimeData& data, Qt::DropActions offered = Qt::CopyAction,
                        Qt::KeyboardModifiers held = Qt::NoModifier);
    Qt::DropAction drop(const QList<QUrl>& urls, Qt::DropActions offered = Qt::CopyAction,
                        Qt::KeyboardModifiers held = Qt::NoModifier);
    QStringList files() const;

    QTemporaryDir folder;
    MainWindow window;
    QListWidget* list;
    QListWidget* names;
    QPushButton* button; ///< "Plot", "Read" or "Clear"
    QPushButton* remove;
    QPushButton* plot_name;
    QwtPlot* lower;
    QwtPlot* upper;
};

/// A node's file: two rows at 0 h and 72 h, with discharges up to `peak`.
QByteArray node_file(double peak);
