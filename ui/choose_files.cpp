#include "ui/choose_files.h"

#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QFileSystemModel>

namespace {

// Deliberate: one string of three patterns, of which only the middle one has a dot.
constexpr char patterns[] = "*bek;*.wel;*dkl";

#ifndef Q_OS_WIN
// The dialog of Windows parts the patterns at the semicolons. The dialog of Qt takes them for one
// pattern that no file matches, and so does that of other desktops, which cannot be told otherwise:
// there Qt's own dialog is used, and its list of files gets the patterns one by one.
class pattern_splitter : public QObject
{
public:
    pattern_splitter()
    {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs, true);
        qApp->installEventFilter(this);
    }

    ~pattern_splitter() override
    {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs, native_dialogs_were_off);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* const dialog = qobject_cast<QFileDialog*>(watched);
        if (dialog && event->type() == QEvent::Show)
            split_patterns(dialog);
        return QObject::eventFilter(watched, event);
    }

private:
    void split_patterns(QFileDialog* dialog)
    {
        auto* const files = dialog->findChild<QFileSystemModel*>();
        const auto split = [files] { files->setNameFilters(QString(patterns).split(u';')); };
        split();
        // Choosing the one entry of the filter box again sets the whole string once more.
        connect(dialog, &QFileDialog::filterSelected, files, split);
    }

    const bool native_dialogs_were_off = QApplication::testAttribute(Qt::AA_DontUseNativeDialogs);
};
#else
class pattern_splitter
{
};
#endif

} // namespace

QStringList choose_result_files(QWidget* parent)
{
    [[maybe_unused]] const pattern_splitter splitter;
    return QFileDialog::getOpenFileNames(parent, QStringLiteral("Auswahl der Datei zum Plotten"),
                                         QString(), QString(patterns));
}
