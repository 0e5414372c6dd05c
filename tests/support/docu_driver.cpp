#include "tests/support/docu_driver.h"

#include "docu/zoomselector.h"
#include "tests/support/write_file.h"

#include <QKeyEvent>
#include <QTest>

docu_driver::docu_driver()
    : dialog(new DocuDialog(nullptr))
    , view(dialog->findChild<QPdfView*>())
    , tabs(dialog->findChild<QTabWidget*>())
    , splitter(dialog->findChild<QSplitter*>())
    , tools(dialog->findChild<QToolBar*>())
    , zoom(dialog->findChild<ZoomSelector*>())
    , document(dialog->findChild<QPdfDocument*>())
    , found(dialog->findChild<QPdfSearchModel*>())
{
    bookmarks = tabs->widget(0)->findChild<QTreeView*>();
    thumbnails = tabs->widget(1)->findChild<QListView*>();
    results = tabs->widget(2)->findChild<QListView*>();
    const auto lines = tools->findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly);
    for (auto* const line : lines)
        field = line;
    dialog->show();
    dialog->activateWindow();
}

docu_driver::docu_driver(const pdf_file& file, int page)
    : docu_driver()
{
    dialog->loadDocument(write(file.bytes()), page);
    QCoreApplication::processEvents();
}

docu_driver::~docu_driver()
{
    delete dialog;
}

QString docu_driver::write(const QByteArray& bytes) const
{
    const QString path = folder.filePath("file.pdf");
    write_file(path, bytes);
    return path;
}

QAction* docu_driver::action(const QString& text) const
{
    const auto actions = tools->actions();
    for (QAction* each : actions) {
        if (each->toolTip().startsWith(text) || each->text() == text)
            return each;
    }
    return nullptr;
}

QString docu_driver::label() const
{
    const auto labels = tools->findChildren<QLabel*>(Qt::FindDirectChildrenOnly);
    for (const auto* const each : labels)
        return each->text();
    return {};
}

void docu_driver::search(const QString& text, int results_expected) const
{
    field->setFocus();
    field->selectAll();
    // Keys with umlauts have no code of their own: the text of the event counts.
    for (const QChar c : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, c);
        QCoreApplication::sendEvent(field, &press);
    }
    QTRY_COMPARE(found->rowCount({}), results_expected);
}
