#pragma once

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <functional>

/// Stands in for the user before a modal dialog: waits until one of this class is up and does what
/// it was told with each. What it was told must close the dialog.
template <class dialog>
class modal_answer
{
public:
    explicit modal_answer(std::function<void(dialog&)> answer)
        : answer(std::move(answer))
    {
        QObject::connect(&watch, &QTimer::timeout, &watch, [this] { look(); });
        watch.start(5);
    }

    /// How many dialogs have come up.
    int count() const { return answered; }

private:
    void look()
    {
        auto* const shown = qobject_cast<dialog*>(QApplication::activeModalWidget());
        if (!shown || !shown->isActiveWindow()) // no key reaches it before it is active
            return;
        ++answered;
        answer(*shown);
        if (QTest::currentTestFailed()) // then the answer may have stopped half-way
            shown->close();
    }

    std::function<void(dialog&)> answer;
    QTimer watch;
    int answered = 0;
};
