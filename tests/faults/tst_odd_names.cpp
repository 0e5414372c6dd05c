#include "plot/korimo_plot.h"
#include "tests/support/modal_boxes.h"
#include "tests/support/named_curves.h"
#include "tests/support/read_file.h"
#include "tests/support/write_file.h"

#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_text.h>

#include <QAction>
#include <QDir>
#include <QFont>
#include <QImage>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <fcntl.h>
#include <unistd.h>

namespace {

using namespace Qt::StringLiterals;

// The text of the box that saving shows, if it is the only one and takes nothing for mark-up.
QString save(const window_driver& driver)
{
    const modal_boxes boxes;
    driver.window.findChild<QAction*>("action_speicher")->trigger();
    const bool is_plain =
        boxes.shown().size() == 1 && boxes.shown()[0].text_format == Qt::PlainText;
    return is_plain ? boxes.shown()[0].text : QString();
}

// Whether a text is drawn in one line, as it is where "<br>" is no mark-up.
bool is_one_line(QwtText text)
{
    const QFont font;
    text.setFont(font);
    text.setRenderFlags(Qt::AlignCenter);
    return text.textSize().height() == QwtText("x", QwtText::PlainText).textSize(font).height();
}

// Writes a file whose name is bytes that are no UTF-8, which no text of Qt can stand for.
void write_raw(const QByteArray& path, const QByteArray& bytes)
{
    const int descriptor = ::open(path.constData(), O_WRONLY | O_CREAT, 0600);
    if (descriptor == -1 || ::write(descriptor, bytes.constData(),
                                    static_cast<std::size_t>(bytes.size())) != bytes.size())
        qFatal("cannot write a temporary file");
    ::close(descriptor);
}

} // namespace

/// File names that nobody expects: the file is dropped, drawn, and its picture saved beside it.
class tst_odd_names : public QObject
{
    Q_OBJECT

private slots:
    void dropped_drawn_and_saved_data();
    void dropped_drawn_and_saved();
    void no_room_for_the_ending_of_the_picture();
    void bytes_that_are_no_text();
    void curve_named_like_its_file();
    void titles_that_look_like_mark_up();
    void title_without_end();
    void name_without_end();
    void odd_names_of_curves_data();
    void odd_names_of_curves();
};

void tst_odd_names::dropped_drawn_and_saved_data()
{
    QTest::addColumn<QString>("name"); // without the ending
    QTest::newRow("blanks") << u" a  b _K"_s;
    QTest::newRow("umlauts") << u"Döbeln Süd ß_K"_s;
    QTest::newRow("umlauts of two characters") << u"Do\u0308beln_K"_s;
    QTest::newRow("beyond two bytes") << u"\U0001F4A7\u65E5_K"_s;
    QTest::newRow("right to left") << u"\u202E\u05D0_K"_s;
    QTest::newRow("quotes") << u"\"a'b`c_K"_s;
    QTest::newRow("new lines") << u"a\nb\r\nc_K"_s;
    QTest::newRow("controls") << u"a\t\x1B[31m\x7F_K"_s;
    QTest::newRow("backslashes") << u"a\\b\\_K"_s;
    QTest::newRow("parts of URLs") << u"a#b?c&d=%41%_K"_s;
    QTest::newRow("a scheme") << u"http:_K"_s;
    QTest::newRow("placeholders") << u"%1%s%n_K"_s;
    QTest::newRow("mark-up") << u"<b>a&amp;_K"_s;
    QTest::newRow("patterns") << u"*[a]?{b}_K"_s;
    QTest::newRow("options") << u"--help _K"_s;
    QTest::newRow("dots") << u"..._K.."_s;
    QTest::newRow("endings") << u"a.png.wel.bek_K"_s;
    QTest::newRow("a resource") << u":_K"_s;
    QTest::newRow("255 bytes") << QString(249, 'x') + "_K";
    QTest::newRow("255 bytes of umlauts") << QString(124, u'ä') + "x_K";
}

void tst_odd_names::dropped_drawn_and_saved()
{
    QFETCH(QString, name);
    window_driver driver;
    const QString path = driver.folder.path() + "/" + name + ".wel";
    write_file(path, node_file(9));
    driver.drop({QUrl::fromLocalFile(path)});
    QCOMPARE(driver.files(), QStringList{path});
    driver.select(0);
    {
        const modal_boxes boxes;
        driver.press(driver.button);
        QVERIFY(boxes.shown().isEmpty());
    }
    QCOMPARE(driver.window.shown_document()->series[12].size(), 2);
    const QString picture = driver.folder.path() + "/" + name + ".png";
    QCOMPARE(save(driver), "File saved to " + picture);
    QCOMPARE(QImage(picture, "PNG").size(), QSize(681, 581));
    QCOMPARE(QDir(driver.folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

// Without a dot the whole name stays, and 259 bytes are no name.
void tst_odd_names::no_room_for_the_ending_of_the_picture()
{
    window_driver driver;
    const QString path = driver.open(QString(250, 'x') + "_Kwel", node_file(9));
    QCOMPARE(driver.window.shown_document()->series[12].size(), 2);
    QCOMPARE(save(driver), "File saved to " + path + ".png");
    QCOMPARE(QDir(driver.folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

// Such a file can be listed and dropped, but not opened.
void tst_odd_names::bytes_that_are_no_text()
{
    window_driver driver;
    const QByteArray folder = driver.folder.path().toUtf8() + '/';
    write_raw(folder + "a\xFF_K.wel", node_file(9));
    driver.drop({QUrl::fromEncoded("file://" + folder + "a%FF_K.wel")});
    driver.list->addItem(QFile::decodeName(folder + "a\xFF_K.wel"));
    QCOMPARE(driver.list->count(), 2);
    for (int row = 0; row < driver.list->count(); ++row) {
        driver.select(row);
        const modal_boxes boxes;
        driver.press(driver.button);
        QCOMPARE(boxes.shown().size(), 2);
        QVERIFY(is_read_error(boxes.shown()[0]));
        save(driver);
    }
    driver.open("good_K.wel", node_file(9));
    QCOMPARE(driver.window.shown_document()->series[12].size(), 2);
    // Qt cannot remove it with its folder either.
    QCOMPARE(::unlink((folder + "a\xFF_K.wel").constData()), 0);
}

// Up to a NUL, the name of the curve is that of the file.
void tst_odd_names::curve_named_like_its_file()
{
    window_driver driver;
    const QByteArray text = " 1 x.dkl" + QByteArray(1, '\0') + " km 1.5\n Wo Qd\n 1\n 101.5 1\n";
    const QString path = driver.open("1.5_1_x.dkl", text);
    driver.pick(0);
    driver.press(driver.plot_name);
    save(driver);
    QCOMPARE(read_file(path), text);
}

// A picture that mark-up names would be read, be it from a device that never ends.
void tst_odd_names::titles_that_look_like_mark_up()
{
    window_driver driver;
    driver.open("x_K.wel", "Ganglinien<br><br>Q\n0 1 2 3\n72 1 2 3\n");
    QCOMPARE(driver.lower->title().text(), "Ganglinien<br><br>Q");
    QCOMPARE(driver.lower->title().renderFlags(), Qt::AlignCenter | Qt::TextWordWrap);
    QVERIFY(is_one_line(driver.lower->title()));
    driver.window.shown_document()->set_curve_names({"a<br><br>b"});
    QCOMPARE(curves_of(driver.lower).at(0)->title().text(), "a<br><br>b");
    QVERIFY(is_one_line(curves_of(driver.lower).at(0)->title()));
    driver.open("x.dkl", " 1 a<br><br>b km 1.5\n Wo Qd\n 1\n 101.5 1\n");
    driver.pick(0);
    driver.press(driver.plot_name);
    QCOMPARE(curves_of(driver.lower).at(0)->title().text(), "1.5_1_a<br><br>b");
    QVERIFY(is_one_line(curves_of(driver.lower).at(0)->title()));
}

// To lay out all of it would take minutes, each time it is drawn.
void tst_odd_names::title_without_end()
{
    window_driver driver;
    const QByteArray title = "Ganglinien" + QByteArray(20'000'000, ' ') + "Q";
    driver.open("x_K.wel", title + "\n0 1 2 3\n72 1 2 3\n");
    QCOMPARE(driver.window.shown_document()->wel_title, title);
    QCOMPARE(driver.lower->title().text(), title.first(10'000));
}

void tst_odd_names::name_without_end()
{
    const auto text = [](int length) {
        return " 1 " + QByteArray(length, 'x') + " km 1.5\n Wo Qd\n 1\n 101.5 1\n";
    };
    window_driver driver;
    driver.open("x.dkl", text(10'000));
    const int width = driver.names->sizeHintForColumn(0);
    driver.open("y.dkl", text(500'000));
    QCOMPARE(driver.names->sizeHintForColumn(0), width);
    driver.pick(0);
    driver.press(driver.plot_name);
    QCOMPARE(drawn_number(driver), 1);
    QCOMPARE(save(driver).size(), qsizetype{14} + 10'000); // "File saved to " stands before it
}

void tst_odd_names::odd_names_of_curves_data()
{
    QTest::addColumn<QByteArray>("word");
    QTest::addColumn<bool>("saved"); // in the folder of the file
    QTest::newRow("umlauts") << "Süd"_ba << true;
    QTest::newRow("no UTF-8") << "a\xFF"_ba << true;
    QTest::newRow("quotes") << "\"'"_ba << true;
    QTest::newRow("controls") << "\t\x1B"_ba << true;
    QTest::newRow("a NUL") << QByteArray("a\0b", 3) << false;
    QTest::newRow("a folder") << "a/b"_ba << false;
    QTest::newRow("9,000 characters") << QByteArray(9'000, 'x') << false;
}

// The name of a curve becomes that of the picture; some cannot.
void tst_odd_names::odd_names_of_curves()
{
    QFETCH(QByteArray, word);
    QFETCH(bool, saved);
    window_driver driver;
    driver.open("x.dkl", " 1 " + word + " km 1.5\n Wo Qd\n 1\n 101.5 1\n");
    driver.pick(0);
    const QString name = driver.names->item(0)->text();
    QCOMPARE(name, "1.5_1_" + QString::fromUtf8(word));
    driver.press(driver.plot_name);
    QCOMPARE(drawn_number(driver), 1);
    const QString picture = driver.folder.path() + "/" + name + ".png";
    QCOMPARE(save(driver), "File saved to " + picture);
    QCOMPARE(QFile::exists(picture), saved);
    QCOMPARE(QDir(driver.folder.path()).entryList(QDir::Files | QDir::Hidden).size(),
             saved ? 2 : 1);
}

QTEST_MAIN(tst_odd_names)
#include "tst_odd_names.moc"
