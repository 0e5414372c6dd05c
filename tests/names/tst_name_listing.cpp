#include "tests/support/document_dump.h"
#include "tests/support/plot_pair.h"
#include "tests/support/sample_files.h"

class tst_name_listing : public QObject
{
    Q_OBJECT

private slots:
    void sample_data() { add_sample_rows(SAMPLES); }
    void sample();
    void list_is_made_anew();
};

void tst_name_listing::sample()
{
    QFETCH(QString, path);
    const plot_pair plots;
    QCOMPARE(read_and_dump(*plots.document, path), expected_of(path));
}

void tst_name_listing::list_is_made_anew()
{
    const plot_pair plots;
    plots.document->readFile(SAMPLES "basins_P.bek");
    plots.document->readFile(SAMPLES "heading_word_elsewhere.bek");
    QCOMPARE(plots.document->get_kennlinien_list(), (QStringList{"BBEZ ", "BxBez"}));
}

QTEST_MAIN(tst_name_listing)
#include "tst_name_listing.moc"
