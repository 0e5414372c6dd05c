#include "app/style_sheet.h"
#include "app/theme_probe.h"
#include "tests/support/read_file.h"
#include "tests/support/working_folder.h"
#include "tests/support/write_file.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QTest>

#include <optional>

namespace {

constexpr char sheet_path[] = ":styles/look_and_feel/global_style.qss";

QString applied_sheet(const QString& path)
{
    QFile sheet(path);
    apply_style_sheet(*qApp, sheet);
    return qApp->styleSheet();
}

#ifndef Q_OS_WIN
// Where there is no registry, the native settings of that name are a file in the working directory.
void write_setting(const QByteArray& line)
{
    write_file(
        "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
        "[General]\n" + line + "\n");
}
#endif

} // namespace

class tst_startup : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void resources_data();
    void resources();
    void style_sheet_bytes();
    void light_without_the_setting();
    void theme_setting_data();
    void theme_setting();
    void missing_sheet();

private:
    std::optional<working_folder> folder;
};

void tst_startup::init()
{
    folder.emplace();
}

void tst_startup::cleanup()
{
    folder.reset();
}

void tst_startup::resources_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("icon") << ":/icons/look_and_feel/orvan.ico" << QByteArray(1, '\0');
    QTest::newRow("LGPL") << ":/licenses/look_and_feel/LICENSE.LGPLv3"
                          << QByteArray("GNU LESSER GENERAL PUBLIC LICENSE");
    QTest::newRow("GPL") << ":/licenses/look_and_feel/LICENSE.GPLv3"
                         << QByteArray("GNU GENERAL PUBLIC LICENSE");
    QTest::newRow("information") << ":/licenses/look_and_feel/Orvan_Info.txt"
                                 << QByteArray("Orvan Wasser GmbH");
    QTest::newRow("sheet") << sheet_path << QByteArray("QMainWindow");
    QTest::newRow("sheet with slash")
        << ":/styles/look_and_feel/global_style.qss" << QByteArray("QMainWindow");
}

void tst_startup::resources()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, text);
    QVERIFY(read_file(path).contains(text));
    if (path.endsWith(".ico"))
        QVERIFY(!QIcon(path).pixmap(16, 16).isNull());
}

void tst_startup::style_sheet_bytes()
{
    QByteArray expected = "QMainWindow {\n    background-color: #c9c7c7;\n}";
    for (const char* widget : {"QDialog", "QPlainTextEdit", "QTextEdit", "QFileDialog",
                               "QMessageBox", "QTableWidget", "QTextBrowser"})
        expected += QByteArray("\n\n") + widget + " {\n    background-color: #f2f0f0;\n}";
    QCOMPARE(read_file(sheet_path), expected);
    QCOMPARE(expected.size(), 381);
}

void tst_startup::light_without_the_setting()
{
    QVERIFY(!desktop_is_dark());
    QCOMPARE(applied_sheet(sheet_path), QString::fromLatin1(read_file(sheet_path)));
}

void tst_startup::theme_setting_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("dark");
    QTest::newRow("0") << QByteArray("AppsUseLightTheme=0") << true;
    QTest::newRow("1") << QByteArray("AppsUseLightTheme=1") << false;
    QTest::newRow("2") << QByteArray("AppsUseLightTheme=2") << false;
    QTest::newRow("another value") << QByteArray("SystemUsesLightTheme=0") << false;
}

void tst_startup::theme_setting()
{
#ifdef Q_OS_WIN
    QFAIL("needs a registry of its own");
#else
    QFETCH(QByteArray, line);
    QFETCH(bool, dark);
    write_setting(line);
    QCOMPARE(desktop_is_dark(), dark);
    const QString sheet = applied_sheet(sheet_path);
    QCOMPARE(sheet.count("background-color: black;"), dark ? 8 : 0);
    QCOMPARE(sheet.contains("#c9c7c7"), !dark);
    QCOMPARE(sheet.contains("#f2f0f0"), !dark);
#endif
}

void tst_startup::missing_sheet()
{
    qApp->setStyleSheet("QDialog { color: red; }");
    QCOMPARE(applied_sheet(":/no/such/sheet.qss"), QString());
}

QTEST_MAIN(tst_startup)
#include "tst_startup.moc"
