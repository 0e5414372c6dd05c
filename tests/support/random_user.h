#pragma once

#include <QList>
#include <QRandomGenerator>
#include <QTimer>

struct window_driver;

/// A user without a plan: does anything that the window allows, by mouse and keyboard, and answers
/// every dialog and every box that comes up in one way or another. The same seed does the same.
class random_user
{
public:
    random_user(window_driver& driver, quint32 seed);

    /// Does one thing and waits until its boxes are gone; answers what it was.
    QString act();
    static qsizetype kinds_of_action();

private:
    struct choice
    {
        const char* name;
        void (random_user::*what)();
        int weight; // how often it is done, beside the others
    };
    static const QList<choice>& choices();

    void drop_file();
    void choose_files();
    void select_file();
    void remove_file();
    void press_button();
    void pick_name();
    void plot_name();
    void navigate();
    void fix_axis();
    void rename();
    void save();
    void inform();
    void read_manual();
    void close_and_come_back();
    void zoom();
    void pan();
    void press_key();

    bool may_add() const;
    void answer();
    void answer_box(QWidget& box);

    window_driver& driver;
    QRandomGenerator random;
    QTimer watch;
};
