#include "tests/support/read_file.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QLibraryInfo>
#include <QMap>
#include <QObject>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

// docs/architecture.md says which room may include what. Its table is compared with the #include
// lines of the code.
class tst_includes : public QObject
{
    Q_OBJECT

private slots:
    void keeps_to_the_table_data();
    void keeps_to_the_table();
    void table_has_no_idle_entry_data();
    void table_has_no_idle_entry();
    void table_has_every_room();
    void reading_knows_no_widgets();
    void only_portable_headers_data();
    void only_portable_headers();
    void files_of_architecture_exist();
};

namespace {

using entries = QStringList; // rooms and headers

QString text_of(const QString& path)
{
    return read_text(QStringLiteral(PROJECT "/") + path);
}

QStringList matches_of(const QString& text, const QString& pattern)
{
    QStringList found;
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    for (auto each = expression.globalMatch(text); each.hasNext();)
        found += each.next().captured(1);
    return found;
}

// For each room of the table what it may include.
QMap<QString, entries> table()
{
    QMap<QString, entries> rooms;
    static const QRegularExpression row("^\\| `([^`]+)` \\|[^|]*\\|([^|]*)\\|$",
                                        QRegularExpression::MultilineOption);
    const QString text = text_of("docs/architecture.md");
    for (auto each = row.globalMatch(text); each.hasNext();) {
        const auto match = each.next();
        rooms.insert(match.captured(1), matches_of(match.captured(2), "`([^`]+)`"));
    }
    return rooms;
}

QStringList code_in(const QString& room)
{
    return QDir(QStringLiteral(PROJECT "/") + room).entryList({"*.cpp", "*.h"}, QDir::Files);
}

QString folder_of(const QString& header)
{
    return header.section('/', 0, -2);
}

// The headers of ours that the files of a room include from elsewhere.
QStringList includes_of(const QString& room)
{
    QStringList headers;
    const QStringList names = code_in(room);
    for (const QString& name : names) {
        const QStringList all =
            matches_of(text_of(room + "/" + name), "^ *# *include \"([^\"]+/[^\"]+)\"");
        for (const QString& header : all) {
            if (folder_of(header) != room)
                headers += header;
        }
    }
    headers.removeDuplicates();
    return headers;
}

bool allows(const QString& entry, const QString& header)
{
    return entry == header || entry == folder_of(header);
}

void add_rooms()
{
    QTest::addColumn<QString>("room");
    const QStringList rooms = table().keys();
    for (const QString& room : rooms)
        QTest::newRow(qPrintable(room)) << room;
}

} // namespace

void tst_includes::keeps_to_the_table_data()
{
    add_rooms();
}

void tst_includes::keeps_to_the_table()
{
    QFETCH(QString, room);
    QVERIFY(!code_in(room).isEmpty());
    const entries allowed = table().value(room);
    const QStringList headers = includes_of(room);
    for (const QString& header : headers) {
        const bool is_allowed = std::ranges::any_of(
            allowed, [&](const QString& entry) { return allows(entry, header); });
        QVERIFY2(is_allowed, qPrintable(room + " includes " + header));
    }
}

void tst_includes::table_has_no_idle_entry_data()
{
    add_rooms();
}

void tst_includes::table_has_no_idle_entry()
{
    QFETCH(QString, room);
    const QStringList headers = includes_of(room);
    const entries allowed = table().value(room);
    for (const QString& entry : allowed) {
        const bool is_used = std::ranges::any_of(
            headers, [&](const QString& header) { return allows(entry, header); });
        QVERIFY2(is_used, qPrintable(room + " does not include " + entry));
    }
}

// Every folder of code that the program is made of.
void tst_includes::table_has_every_room()
{
    QStringList rooms;
    for (const char* const top : {"app", "docu", "plot", "ui"}) {
        rooms += top;
        QDirIterator each(QStringLiteral(PROJECT "/") + top, QDir::Dirs | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
        while (each.hasNext())
            rooms += QDir(PROJECT).relativeFilePath(each.next());
    }
    rooms.sort();
    QCOMPARE(table().keys(), rooms);
}

void tst_includes::reading_knows_no_widgets()
{
    const QStringList names = code_in("plot/reading");
    for (const QString& name : names) {
        const QStringList headers =
            matches_of(text_of("plot/reading/" + name), "^#include <(Q[^>]+|qwt[^>]+)>");
        for (const QString& header : headers)
            QVERIFY2(
                QFile::exists(QLibraryInfo::path(QLibraryInfo::HeadersPath) + "/QtCore/" + header),
                qPrintable(name + " includes " + header));
    }
}

void tst_includes::only_portable_headers_data()
{
    add_rooms();
}

// Those of Qt, Qwt and the standard library of C++: what only one kind of system has ends with .h.
void tst_includes::only_portable_headers()
{
    QFETCH(QString, room);
    static const QRegularExpression portable("^(Q\\w*|qwt_\\w+\\.h|[a-z_]+)$");
    const QStringList names = code_in(room);
    for (const QString& name : names) {
        const QStringList headers =
            matches_of(text_of(room + "/" + name), "^ *# *include <([^>]+)>");
        for (const QString& header : headers)
            QVERIFY2(portable.match(header).hasMatch(), qPrintable(name + " includes " + header));
    }
}

// Each file or folder of ours that the page names.
void tst_includes::files_of_architecture_exist()
{
    const QStringList paths =
        matches_of(text_of("docs/architecture.md"),
                   "`((?:app|docu|plot|ui|tests|script|bench|manual)/[\\w./]*)`");
    QVERIFY(paths.size() > 20);
    for (const QString& path : paths) {
        const QString whole = QStringLiteral(PROJECT "/") + path;
        QVERIFY2(QFile::exists(whole) || QFile::exists(whole + ".h"), qPrintable(path));
    }
}

QTEST_APPLESS_MAIN(tst_includes)
#include "tst_includes.moc"
