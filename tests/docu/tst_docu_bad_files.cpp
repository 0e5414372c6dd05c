#include "docu/zoomselector.h"
#include "tests/support/docu_driver.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QTest>

namespace {

pdf_file some_pages()
{
    pdf_file file = numbered_pages(3);
    file.title = "Handbuch";
    file.bookmarks = {{"Anfang", 0, 0}, {"Ende", 2, 0}};
    return file;
}

QByteArray garbage()
{
    QRandomGenerator random(7);
    QByteArray bytes = "%PDF-1.7\n";
    for (int i = 0; i < 5000; ++i)
        bytes.append(static_cast<char>(random.bounded(256)));
    return bytes;
}

// Everything that the tool bar offers, on whatever is shown.
void use_all_tools(const docu_driver& driver)
{
    const auto actions = driver.tools->actions();
    for (QAction* each : actions)
        each->trigger();
    QTest::keyClicks(driver.field, "a");
    for (int tab = 0; tab < 3; ++tab)
        driver.tabs->setCurrentIndex(tab);
    QTest::qWait(1);
}

} // namespace

class tst_docu_bad_files : public QObject
{
    Q_OBJECT

private slots:
    void empty_view_data();
    void empty_view();
    void truncated_anywhere();
    void good_file_after_a_bad_one();
    void without_pages();
    void thousand_pages();
    void extreme_zoom_data();
    void extreme_zoom();
};

void tst_docu_bad_files::empty_view_data()
{
    QTest::addColumn<QByteArray>("bytes");
    pdf_file locked = some_pages();
    locked.encrypted = true;
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("no PDF") << QByteArray("Ganglinien\n0 1 2\n");
    QTest::newRow("garbage") << garbage();
    QTest::newRow("first half") << some_pages().bytes().first(200);
    QTest::newRow("encrypted") << locked.bytes();
}

void tst_docu_bad_files::empty_view()
{
    QFETCH(QByteArray, bytes);
    const docu_driver driver;
    const QString path =
        bytes.isNull() ? driver.folder.filePath("missing.pdf") : driver.write(bytes);
    driver.dialog->loadDocument(path, 0);
    QCOMPARE(driver.dialog->windowTitle(), "Documentation");
    QCOMPARE(driver.label(), " 1 / 0");
    QCOMPARE(driver.bookmarks->model()->rowCount(), 0);
    QCOMPARE(driver.thumbnails->model()->rowCount(), 0);
    use_all_tools(driver);
    QVERIFY(driver.dialog->isVisible());
}

// What is left of a file may be shown or not; the viewer lives.
void tst_docu_bad_files::truncated_anywhere()
{
    const QByteArray whole = some_pages().bytes();
    const docu_driver driver;
    for (qsizetype size = 0; size < whole.size(); size += 37) {
        driver.dialog->loadDocument(driver.write(whole.first(size)), 0);
        driver.action("Next Page")->trigger();
        QVERIFY(driver.dialog->isVisible());
    }
}

void tst_docu_bad_files::good_file_after_a_bad_one()
{
    const docu_driver driver;
    driver.dialog->loadDocument(driver.write(garbage()), 0);
    driver.dialog->loadDocument(driver.write(some_pages().bytes()), 0);
    QCOMPARE(driver.dialog->windowTitle(), "Handbuch");
    QCOMPARE(driver.label(), " 1 / 3");
}

void tst_docu_bad_files::without_pages()
{
    const docu_driver driver((pdf_file()));
    QCOMPARE(driver.label(), " 1 / 0");
    use_all_tools(driver);
}

void tst_docu_bad_files::thousand_pages()
{
    QElapsedTimer clock;
    const docu_driver driver;
    const QString path = driver.write(numbered_pages(1000).bytes());
    clock.start();
    driver.dialog->loadDocument(path, 0);
    QCoreApplication::processEvents();
    QVERIFY2(clock.elapsed() < 2000, QByteArray::number(clock.elapsed()));
    QCOMPARE(driver.label(), " 1 / 1000");
    driver.action("Continuous")->trigger();
    driver.action("Continuous")->trigger();
    QScrollBar& bar = *driver.view->verticalScrollBar();
    clock.restart();
    for (int i = 1; i <= 20; ++i) {
        bar.setValue(bar.maximum() / 20 * i);
        QCoreApplication::processEvents();
    }
    QVERIFY2(clock.elapsed() < 5000, QByteArray::number(clock.elapsed()));
    QVERIFY(driver.page() > 900);
}

void tst_docu_bad_files::extreme_zoom_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"0%", "-100%", "1%", "1000%"})
        QTest::newRow(text) << QString(text);
}

void tst_docu_bad_files::extreme_zoom()
{
    QFETCH(QString, text);
    const docu_driver driver(some_pages());
    driver.zoom->setCurrentText(text);
    QTest::qWait(50);
    driver.action("Next Page")->trigger();
    driver.action("Continuous")->trigger();
    driver.action("Continuous")->trigger();
    QTest::qWait(50);
    QVERIFY(driver.dialog->isVisible());
}

QTEST_MAIN(tst_docu_bad_files)
#include "tst_docu_bad_files.moc"
