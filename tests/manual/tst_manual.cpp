#include <QDirIterator>
#include <QFile>
#include <QPdfBookmarkModel>
#include <QPdfDocument>
#include <QPdfSearchModel>
#include <QRegularExpression>
#include <QTest>

namespace {

QString text_of(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// All files of these kinds in a folder of the project, one after the other.
QString all_of(const QString& folder, const QStringList& kinds)
{
    QString text;
    QDirIterator files(PROJECT "/" + folder, kinds, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        text += text_of(files.next());
    return text;
}

// The code and the forms as a user sees their texts: literals in one piece, entities as characters.
QString program_texts()
{
    QString text;
    for (const char* folder : {"ui", "docu", "plot"})
        text += all_of(folder, {"*.cpp", "*.ui"});
    static const QRegularExpression joint("\"\\s*\"");
    text.remove(joint);
    for (const auto& [entity, character] :
         {std::pair("&lt;", "<"), std::pair("&gt;", ">"), std::pair("\\u2212", "\u2212")})
        text.replace(entity, character);
    return text;
}

// What the manual quotes: buttons, menus with their entries, and titles of messages.
QStringList quoted_texts()
{
    static const QRegularExpression quotes("btn:\\[([^\\]]+)\\]|menu:([^\\[]+)\\[([^\\]]+)\\]|^=== "
                                           "(Pleae .*|Could .*|An Error .*|File .*)$",
                                           QRegularExpression::MultilineOption);
    QStringList texts;
    for (const QRegularExpressionMatch& match : quotes.globalMatch(all_of("manual", {"*.adoc"}))) {
        for (QString text : match.capturedTexts().mid(1)) {
            if (!text.isEmpty())
                texts.append(text.remove('\\'));
        }
    }
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
    void quoted_texts_exist_data();
    void quoted_texts_exist();

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

void tst_manual::outline_is_complete()
{
    QPdfBookmarkModel model;
    model.setDocument(&manual);
    QString entries;
    for (const auto& [title, page] : outline_of(model))
        entries += bare(title) + "\n";
    static const QRegularExpression headings("^===? (.*)$", QRegularExpression::MultilineOption);
    int count = 0;
    for (const auto& match : headings.globalMatch(all_of("manual/kapitel", {"*.adoc"}))) {
        QVERIFY2(entries.contains(bare(match.captured(1))), qPrintable(match.captured(1)));
        ++count;
    }
    QVERIFY(count > 30);
}

void tst_manual::bookmarks_meet_their_headings()
{
    QPdfBookmarkModel model;
    model.setDocument(&manual);
    for (const auto& [title, page] : outline_of(model)) {
        const QString text = bare(manual.getAllText(page).text());
        QVERIFY2(page == 0 || text.contains(bare(title)), qPrintable(title));
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

// Each font file in the PDF is embedded; a font without one would be named without such an entry.
void tst_manual::fonts_are_embedded()
{
    QFile file(MANUAL);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    const qsizetype descriptors = bytes.count("/Type /FontDescriptor");
    QVERIFY(descriptors > 0);
    QCOMPARE(bytes.count("/FontFile2"), descriptors);
}

void tst_manual::quoted_texts_exist_data()
{
    QTest::addColumn<QString>("text");
    for (const QString& text : quoted_texts())
        QTest::newRow(qPrintable(text)) << text;
}

void tst_manual::quoted_texts_exist()
{
    QFETCH(QString, text);
    static const QString texts = program_texts();
    QVERIFY(texts.contains(text));
}

QTEST_MAIN(tst_manual)
#include "tst_manual.moc"
