#include "docu/docudialog.h"
#include "tests/support/pdf_file.h"
#include "tests/support/window_driver.h"
#include "tests/support/working_folder.h"
#include "tests/support/write_file.h"

#include <QAction>
#include <QPdfPageNavigator>
#include <QPdfView>
#include <QPointer>
#include <QTest>

#include <optional>

namespace {

QList<QPointer<DocuDialog>> open_manuals(const window_driver& driver, int count)
{
    for (int i = 0; i < count; ++i)
        driver.window.findChild<QAction*>("actionHandbuch")->trigger();
    QList<QPointer<DocuDialog>> dialogs;
    const auto children = driver.window.findChildren<DocuDialog*>();
    for (DocuDialog* dialog : children)
        dialogs.append(dialog);
    return dialogs;
}

} // namespace

class tst_manual_command : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void opens_the_manual_of_the_working_folder();
    void missing_manual();
    void each_call_opens_one_more();
    void window_closed_first();

private:
    std::optional<working_folder> folder;
};

void tst_manual_command::init()
{
    folder.emplace();
}

void tst_manual_command::cleanup()
{
    folder.reset();
}

void tst_manual_command::opens_the_manual_of_the_working_folder()
{
    pdf_file file = numbered_pages(3);
    file.title = "Das Handbuch";
    write_file("01_Handbuch_KORIMO9.pdf", file.bytes());
    const window_driver driver;
    const auto manuals = open_manuals(driver, 1);
    QCOMPARE(manuals.size(), 1);
    QCOMPARE(manuals[0]->windowTitle(), "Das Handbuch");
    QVERIFY(manuals[0]->isVisible() && !manuals[0]->isModal());
    QCOMPARE(manuals[0]->findChild<QPdfView*>()->pageNavigator()->currentPage(), 0);
    QVERIFY(manuals[0]->testAttribute(Qt::WA_SetWindowIcon));
    QCOMPARE(manuals[0]->parentWidget(), &driver.window);
}

void tst_manual_command::missing_manual()
{
    const window_driver driver;
    const auto manuals = open_manuals(driver, 1);
    QCOMPARE(manuals.size(), 1);
    QCOMPARE(manuals[0]->windowTitle(), "Documentation");
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_manual_command::each_call_opens_one_more()
{
    const window_driver driver;
    const auto manuals = open_manuals(driver, 3);
    QCOMPARE(manuals.size(), 3);
    manuals[1]->close();
    QTRY_VERIFY(!manuals[1]);
    QVERIFY(manuals[0] && manuals[2]);
}

void tst_manual_command::window_closed_first()
{
    auto driver = std::make_unique<window_driver>();
    const auto manuals = open_manuals(*driver, 2);
    driver->window.close();
    driver.reset();
    QVERIFY(!manuals[0] && !manuals[1]);
}

QTEST_MAIN(tst_manual_command)
#include "tst_manual_command.moc"
