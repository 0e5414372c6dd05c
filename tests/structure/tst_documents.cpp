#include "tests/support/read_file.h"

#include <QDir>
#include <QFileInfo>
#include <QObject>
#include <QRegularExpression>
#include <QTest>

// The guides and the metadata lead to files of the project: pictures are renumbered, files renamed.
class tst_documents : public QObject
{
    Q_OBJECT

private slots:
    void links_lead_to_files_data();
    void links_lead_to_files();
    void screenshot_is_there();
};

namespace {

const char* const documents[] = {"README.md",       "CONTRIBUTING.md",      "CHANGELOG.md",
                                 "bench/README.md", "docs/architecture.md", "examples/README.md",
                                 "fuzz/README.md",  "packaging/README.md"};

QString path_of(const QString& name)
{
    return QDir(PROJECT).filePath(name);
}

QStringList matches_of(const QRegularExpression& pattern, const QString& text)
{
    QStringList found;
    for (auto each = pattern.globalMatch(text); each.hasNext();)
        found += each.next().captured(1);
    return found;
}

} // namespace

void tst_documents::links_lead_to_files_data()
{
    QTest::addColumn<QString>("document");
    for (const char* const document : documents)
        QTest::newRow(document) << document;
}

void tst_documents::links_lead_to_files()
{
    QFETCH(QString, document);
    static const QRegularExpression link("\\]\\(([^)#]+)[^)]*\\)");
    const QDir folder = QFileInfo(path_of(document)).dir();
    const QStringList targets = matches_of(link, read_text(path_of(document)));
    if (document == "README.md")
        QVERIFY(targets.size() >= 3);
    for (const QString& target : targets) {
        if (!target.contains("://"))
            QVERIFY2(folder.exists(target), qPrintable(target));
    }
}

// It is named by the address where the maker shows it; the folders are those of the project.
void tst_documents::screenshot_is_there()
{
    static const QRegularExpression picture("/plot_korimo/(docs/tour/[^<]+)</image>");
    const QStringList pictures =
        matches_of(picture, read_text(path_of("packaging/linux/plot_korimo.metainfo.xml.in")));
    QCOMPARE(pictures.size(), 1);
    QVERIFY2(QFileInfo::exists(path_of(pictures[0])), qPrintable(pictures[0]));
}

QTEST_APPLESS_MAIN(tst_documents)
#include "tst_documents.moc"
