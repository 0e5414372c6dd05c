#pragma once

#include <QList>
#include <QMessageBox>
#include <QTimer>

/// What a message box showed.
struct shown_box
{
    QString title;
    QString text;
    QString detailed_text;
    QMessageBox::StandardButtons buttons;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    bool has_window_icon = false;
    bool was_modal = false;
    bool own_window_icon = false; ///< not only the application's
    bool has_parent = false;
    QString informative_text;
    Qt::TextFormat text_format = Qt::AutoText;
    const void* object = nullptr; ///< to tell boxes apart
};

/// Whether a box is the one that asks for a selection, with "Ok" as its only button.
bool is_selection_error(const shown_box& box);

/// Whether a box is the one that tells of a file that cannot be read, with "Ok" as its only button.
bool is_read_error(const shown_box& box);

/// The box that the commands of a main window share, as long as no document has one of its own.
QMessageBox* shared_box();

/// Notes every modal message box that comes up while it lives, and closes it as a user does: with
/// the Enter key.
class modal_boxes
{
public:
    modal_boxes();

    const QList<shown_box>& shown() const { return boxes; }

private:
    void answer();

    QTimer watch;
    QList<shown_box> boxes;
};
