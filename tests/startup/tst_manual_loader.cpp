#include "app/manual_loader.h"
#include "tests/support/modal_boxes.h"
#include "tests/support/pdf_file.h"
#include "tests/support/window_driver.h"
#include "tests/support/write_file.h"

#include <QAction>
#include <QDialog>
#include <QDir>
#include <QPointer>
#include <QTest>

namespace {

constexpr QLatin1StringView module_name(KORIMO_MANUAL_MODULE);
constexpr QLatin1StringView installed_module(KORIMO_INSTALLED_MODULE);

// By name: the test has no such class of its own.
QList<QPointer<QDialog>> manuals_of(const QWidget& window)
{
    QList<QPointer<QDialog>> manuals;
    const auto dialogs = window.findChildren<QDialog*>();
    for (QDialog* dialog : dialogs) {
        if (dialog->inherits("DocuDialog"))
            manuals.append(dialog);
    }
    return manuals;
}

bool is_missing_module(const QList<shown_box>& boxes)
{
    return boxes.size() == 1 && boxes[0].title == "Error" &&
           boxes[0].text == "Datei " + module_name + " kann nicht geöffnet werden!" &&
           boxes[0].icon == QMessageBox::Critical && boxes[0].buttons == QMessageBox::Ok &&
           boxes[0].has_parent;
}

} // namespace

class tst_manual_loader : public QObject
{
    Q_OBJECT

private slots:
    void place_of_the_module();
    void opens_the_manual();
    void program_without_its_module();
    void broken_module();
};

void tst_manual_loader::place_of_the_module()
{
    const QTemporaryDir prefix;
    const QDir root(prefix.path());
    QVERIFY(root.mkpath("bin"));
    const QDir programs(root.filePath("bin"));
    QCOMPARE(manual_module_of(programs.path()), QString());
    const QString installed = QDir::cleanPath(programs.filePath(installed_module));
    QVERIFY(installed.startsWith(root.path() + "/lib"));
    QVERIFY(installed.endsWith("/plot_korimo/" + module_name));
    QVERIFY(root.mkpath(QFileInfo(installed).path()));
    write_file(installed, "");
    QCOMPARE(QDir::cleanPath(manual_module_of(programs.path())), installed);
    write_file(programs.filePath(module_name), "");
    QCOMPARE(manual_module_of(programs.path()), programs.filePath(module_name));
}

void tst_manual_loader::opens_the_manual()
{
    window_driver driver;
    pdf_file file = numbered_pages(3);
    file.title = "Das Handbuch";
    const QString path = driver.folder.filePath("manual.pdf");
    write_file(path, file.bytes());
    const modal_boxes boxes;
    for (int i = 0; i < 2; ++i)
        open_manual_of(BUILD_DIR, &driver.window, driver.window.windowIcon(), path);
    const auto manuals = manuals_of(driver.window);
    QCOMPARE(manuals.size(), 2);
    for (const QPointer<QDialog>& manual : manuals) {
        QCOMPARE(manual->windowTitle(), "Das Handbuch");
        QVERIFY(manual->isVisible() && !manual->isModal());
        QVERIFY(manual->testAttribute(Qt::WA_SetWindowIcon));
        QCOMPARE(manual->parentWidget(), &driver.window);
    }
    manuals[0]->close();
    QTRY_VERIFY(!manuals[0]);
    QVERIFY(manuals[1]);
    QVERIFY(boxes.shown().isEmpty());
}

void tst_manual_loader::program_without_its_module()
{
    QCOMPARE(manual_module_of(QCoreApplication::applicationDirPath()), QString());
    window_driver driver;
    const modal_boxes boxes;
    driver.window.findChild<QAction*>("actionHandbuch")->trigger();
    QVERIFY(is_missing_module(boxes.shown()));
    QVERIFY(manuals_of(driver.window).isEmpty());
    driver.open("a_K1.wel", node_file(5)); // the program goes on
    QVERIFY(driver.window.shown_document());
}

void tst_manual_loader::broken_module()
{
    window_driver driver;
    write_file(driver.folder.filePath(module_name), "no library");
    const modal_boxes boxes;
    open_manual_of(driver.folder.path(), &driver.window, QIcon(), "manual.pdf");
    QVERIFY(is_missing_module(boxes.shown()));
    QVERIFY(manuals_of(driver.window).isEmpty());
}

QTEST_MAIN(tst_manual_loader)
#include "tst_manual_loader.moc"
