#include "docu/docudialog.h"
#include "tests/support/read_file.h"
#include "ui/axis_dialog.h"
#include "ui/mainwindow.h"
#include "ui/rename_dialog.h"

#include <QAbstractButton>
#include <QAction>
#include <QDirIterator>
#include <QMenu>
#include <QMenuBar>
#include <QPdfBookmarkModel>
#include <QPdfDocument>
#include <QPdfSearchModel>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTest>

namespace {

// All files of these kinds in a folder of the project, one after the other.
QString all_of(const QString& folder, const QStringList& kinds)
{
    QString text;
    QDirIterator files(PROJECT "/" + folder, kinds, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        text += read_text(files.next());
    return text;
}

// What the code says to the user: its string literals, adjoining ones in one piece.
QString literals_of_the_program()
{
    QString code;
    for (const char* folder : {"app", "ui", "docu", "plot"})
        code += all_of(folder, {"*.cpp"});
    static const QRegularExpression joint("\"\\s*\"");
    static const QRegularExpression literal("\"((?:[^\"\\\\\\n]|\\\\.)*)\"");
    code.remove(joint);
    QString texts;
    for (const QRegularExpressionMatch& match : literal.globalMatch(code))
        texts += match.captured(1) + "\n";
    QString filled;
    for (const char* file : {"Orvan_Info.txt", "LICENSE.LGPLv3", "libkorimo_manual.so"})
        filled += QString(texts).replace("%1", file);
    return filled;
}

// The texts on everything that can be pressed or chosen, in all windows of the program.
QStringList texts_on_widgets()
{
    const MainWindow window;
    const DocuDialog manual(nullptr);
    const axis_dialog range(nullptr);
    const rename_dialog names(nullptr);
    QStringList texts{"Read", "Clear"}; // of the button that changes its text
    for (const QWidget* parent :
         std::initializer_list<const QWidget*>{&window, &manual, &range, &names}) {
        const auto buttons = parent->findChildren<QAbstractButton*>();
        for (const auto* const button : buttons)
            texts.append(button->text().remove('&'));
        const auto actions = parent->findChildren<QAction*>();
        for (const auto* const action : actions)
            texts.append(action->text());
        const auto tab_widgets = parent->findChildren<QTabWidget*>();
        for (const auto* const tabs : tab_widgets) {
            for (int i = 0; i < tabs->count(); ++i)
                texts.append(tabs->tabText(i));
        }
    }
    return texts;
}

// The entries of all menus as "menu:Title[Entry]".
QStringList menu_entries()
{
    const MainWindow window;
    QStringList entries;
    const auto menus = window.menuBar()->actions();
    for (const QAction* menu : menus) {
        const auto actions = menu->menu()->actions();
        for (const QAction* entry : actions)
            entries.append("menu:" + menu->text() + "[" + entry->text() + "]");
    }
    return entries;
}

// What the manual quotes in one way.
QStringList quotes(const char* pattern)
{
    const QRegularExpression quote(pattern, QRegularExpression::MultilineOption);
    QStringList texts;
    for (const QRegularExpressionMatch& match : quote.globalMatch(all_of("manual", {"*.adoc"})))
        texts.append(match.captured(1).remove('\\'));
    texts.removeDuplicates();
    return texts;
}

// All entries of the outline with their pages, from top to bottom.
QList<std::pair<QString, int>> outline_of(const QPdfBookmarkModel& model,
                                          const QModelIndex& parent = {})
{
    QList<std::pair<QString, int>> entries;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        entries.append({index.data(static_cast<int>(QPdfBookmarkModel::Role::Title)).toString(),
                        index.data(static_cast<int>(QPdfBookmarkModel::Role::Page)).toInt()});
        entries += outline_of(model, index);
    }
    return entries;
}

// In the order of the chapters.
QStringList headings_of_the_text()
{
    static const QRegularExpression included("include::(.*)\\[\\]");
    static const QRegularExpression heading("^===? (.*)$", QRegularExpression::MultilineOption);
    QStringList headings;
    for (const auto& chapter : included.globalMatch(read_text(PROJECT "/manual/handbuch.adoc"))) {
        const QString text = read_text(PROJECT "/manual/" + chapter.captured(1));
        for (const auto& match : heading.globalMatch(text))
            headings.append(match.captured(1));
    }
    return headings;
}

// Without blanks and line breaks, which a page sets as it needs them.
QString bare(QString text)
{
    static const QRegularExpression blanks("[\\s\u00a0\u200b]");
    return text.remove(blanks);
}

} // namespace

class tst_manual : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void title();
    void pages();
    void page_labels();
    void outline_is_complete();
    void bookmarks_meet_their_headings();
    void text_is_found_data();
    void text_is_found();
    void fonts_are_embedded();
    void buttons_exist();
    void menu_entries_exist();
    void messages_exist();

private:
    QPdfDocument manual;
};

void tst_manual::initTestCase()
{
    QCOMPARE(manual.load(MANUAL), QPdfDocument::Error::None);
}

void tst_manual::title()
{
    QCOMPARE(manual.metaData(QPdfDocument::MetaDataField::Title).toString(),
             "plot_korimo: Ganglinien und Kennlinien ansehen");
}

void tst_manual::pages()
{
    QVERIFY(manual.pageCount() >= 20 && manual.pageCount() <= 35);
    for (int page = 0; page < manual.pageCount(); ++page)
        QVERIFY2(!bare(manual.getAllText(page).text()).isEmpty(), QByteArray::number(page));
}

void tst_manual::page_labels()
{
    QCOMPARE(manual.pageLabel(0), "i");
    const QString last = manual.pageLabel(manual.pageCount() - 1);
    QVERIFY2(last.toInt() > 15, qPrintable(last));
}

// The title and the contents come first, then all headings in their order.
void tst_manual::outline_is_complete()
{
    QPdfBookmarkModel model;
    model.setDocument(&manual);
    const auto entries = outline_of(model);
    const QStringList headings = headings_of_the_text();
    QVERIFY(headings.size() > 30);
    QCOMPARE(entries.size(), headings.size() + 2);
    QCOMPARE(entries[1].first, "Inhalt");
    for (qsizetype i = 0; i < headings.size(); ++i)
        QVERIFY2(bare(entries[i + 2].first).endsWith(bare(headings[i])), qPrintable(headings[i]));
}

// The contents name every heading, too; they do not count.
void tst_manual::bookmarks_meet_their_headings()
{
    QPdfBookmarkModel model;
    model.setDocument(&manual);
    int first_page = 0;
    while (manual.pageLabel(first_page) != "1")
        ++first_page;
    const auto chapters = outline_of(model).mid(2);
    for (const auto& [title, page] : chapters) {
        QVERIFY2(page >= first_page, qPrintable(title));
        QVERIFY2(bare(manual.getAllText(page).text()).contains(bare(title)), qPrintable(title));
    }
}

void tst_manual::text_is_found_data()
{
    QTest::addColumn<QString>("words");
    for (const char* words :
         {"Überlauf", "Hochwasserrückhaltebecken", "müNHN", "Schließen", "m³/s"})
        QTest::newRow(words) << QString(words);
}

void tst_manual::text_is_found()
{
    QFETCH(QString, words);
    QPdfSearchModel search;
    search.setDocument(&manual);
    search.setSearchString(words);
    QTRY_VERIFY(search.rowCount({}) > 0);
}

void tst_manual::fonts_are_embedded()
{
    const QByteArray bytes = read_file(MANUAL);
    const qsizetype descriptors = bytes.count("/Type /FontDescriptor");
    QVERIFY(descriptors > 0);
    QCOMPARE(bytes.count("/FontFile2"), descriptors);
    QVERIFY(!bytes.contains("/Subtype /Type1")); // those of every viewer, which need no file
}

void tst_manual::buttons_exist()
{
    const QStringList texts = texts_on_widgets();
    const QStringList quoted = quotes("btn:\\[((?:[^\\]\\\\]|\\\\.)+)\\]");
    QVERIFY(quoted.size() > 15);
    for (const QString& text : quoted)
        QVERIFY2(texts.contains(text), qPrintable(text));
}

void tst_manual::menu_entries_exist()
{
    const QStringList entries = menu_entries();
    const QStringList quoted = quotes("(menu:[^\\[\\n]+\\[[^\\]]+\\])");
    QVERIFY(quoted.size() >= entries.size()); // all of them are told
    for (const QString& text : quoted)
        QVERIFY2(entries.contains(text), qPrintable(text));
}

// Other texts: marked as such in the text, or headings of the chapter about messages.
void tst_manual::messages_exist()
{
    const QString literals = literals_of_the_program();
    const QStringList quoted =
        quotes("\\[ui\\]#([^#]+)#") + quotes("^=== (Pleae .*|Could .*|An Error .*|File .*)$");
    QVERIFY(quoted.size() > 8);
    for (const QString& text : quoted)
        QVERIFY2(literals.contains(text), qPrintable(text));
}

QTEST_MAIN(tst_manual)
#include "tst_manual.moc"
