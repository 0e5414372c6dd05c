#include "plot/reading/file_kind.h"

#include <QTest>

Q_DECLARE_METATYPE(file_kind)

class tst_file_kind : public QObject
{
    Q_OBJECT

private slots:
    void kind_data();
    void kind();
};

void tst_file_kind::kind_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<file_kind>("expected");
    QTest::newRow("WEL") << "/a/Pegel_P.wel" << file_kind::wel;
    QTest::newRow("BEK") << "/a/Becken.bek" << file_kind::bek;
    QTest::newRow("DKL") << "/a/Drossel.dkl" << file_kind::dkl;
    QTest::newRow("capitals") << "/a/B.BEK" << file_kind::bek;
    QTest::newRow("mixed case") << "data.Wel" << file_kind::wel;
    QTest::newRow("no dot") << "xwel" << file_kind::wel;
    QTest::newRow("the letters alone") << "dkl" << file_kind::dkl;
    QTest::newRow("a URL") << "file:///a/b.Dkl" << file_kind::dkl;
    QTest::newRow("umlauts before") << QString("/Döbeln/Übersicht.wEl") << file_kind::wel;
    QTest::newRow("another ending") << "/a/b.txt" << file_kind::none;
    QTest::newRow("letters in the middle") << "/a/b.wel.txt" << file_kind::none;
    QTest::newRow("blank behind") << "b.wel " << file_kind::none;
    QTest::newRow("marker in the name") << "x_P.bek" << file_kind::bek;
    QTest::newRow("too short") << "el" << file_kind::none;
    QTest::newRow("empty") << "" << file_kind::none;
}

void tst_file_kind::kind()
{
    QFETCH(QString, path);
    QFETCH(file_kind, expected);
    QCOMPARE(file_kind_of(path), expected);
}

QTEST_APPLESS_MAIN(tst_file_kind)
#include "tst_file_kind.moc"
