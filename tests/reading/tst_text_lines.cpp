#include "plot/reading/text_lines.h"
#include "tests/support/write_file.h"

#include <QFile>
#include <QIODevice>
#include <QRandomGenerator>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

#include <algorithm>
#include <new>
#include <utility>

namespace {

using namespace Qt::StringLiterals;

// What the lines are measured against: a text stream on a file in text mode.
QStringList stream_lines(const QByteArray& bytes)
{
    const QTemporaryDir folder;
    write_file(folder.filePath("text"), bytes);
    QFile file(folder.filePath("text"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("cannot read a temporary file");
    QTextStream stream(&file);
    QStringList lines;
    while (!stream.atEnd())
        lines.append(stream.readLine());
    return lines;
}

constexpr qsizetype block_size = 65'536;

// Gives at most so many bytes at once, as a pipe does: blocks end anywhere, within characters too.
class in_pieces : public QIODevice
{
public:
    in_pieces(QByteArray bytes, qsizetype most)
        : rest(std::move(bytes))
        , most(most)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 wanted) override
    {
        const qsizetype count = std::min({wanted, most, rest.size()});
        std::copy_n(rest.cbegin(), count, data);
        rest.remove(0, count);
        return count;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QByteArray rest;
    qsizetype most;
};

// A line to which there is always more.
class endless_line : public QIODevice
{
public:
    endless_line() { open(QIODevice::ReadOnly | QIODevice::Unbuffered); }
    bool isSequential() const override { return true; }

    qint64 count = 0; // of the bytes that were asked for

protected:
    qint64 readData(char* data, qint64 wanted) override
    {
        std::fill_n(data, wanted, 'x');
        count += wanted;
        return wanted;
    }
    qint64 writeData(const char*, qint64) override { return -1; }
};

QStringList our_lines(const QByteArray& bytes, qsizetype most_at_once = block_size)
{
    in_pieces device(bytes, most_at_once);
    text_lines lines(device);
    QStringList result;
    QByteArrayView line;
    while (lines.next(line))
        result.append(decoded(line));
    return result;
}

// A text of some blocks in any encoding, with lines of all lengths.
QString long_text()
{
    QString text;
    for (int i = 0; i < 900; ++i)
        text +=
            QString(i % 331, u'0') + u"\U0001F4A7 m\u00fcNHN \u20ac"_s + (i % 7 ? "\n" : "\r\n");
    return text;
}

} // namespace

class tst_text_lines : public QObject
{
    Q_OBJECT

private slots:
    void lines_data();
    void lines();
    void lines_longer_than_a_block();
    void ends_near_the_border_of_a_block_data();
    void ends_near_the_border_of_a_block();
    void blocks_of_an_encoding_data();
    void blocks_of_an_encoding();
    void pair_of_surrogates_across_blocks();
    void half_a_pair_data();
    void half_a_pair();
    void line_without_end();
    void random_bytes_as_a_text_stream();
};

void tst_text_lines::lines_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("expected");
    using list = QStringList;
    QTest::newRow("empty") << ""_ba << list();
    QTest::newRow("one line") << "a\n"_ba << list{"a"};
    QTest::newRow("missing last newline") << "a\nb"_ba << list{"a", "b"};
    QTest::newRow("empty lines") << "\n\na\n\n"_ba << list{"", "", "a", ""};
    QTest::newRow("CR LF") << "a\r\nb\r\n"_ba << list{"a", "b"};
    QTest::newRow("CR inside") << "1\r2\n"_ba << list{"12"};
    QTest::newRow("CR only") << "a\rb\r"_ba << list{"ab"};
    QTest::newRow("several CR") << "a\r\r\n\r\n\rb"_ba << list{"a", "", "b"};
    QTest::newRow("UTF-8") << "m\xC3\xBCNHN\n"_ba << list{u"müNHN"_s};
    QTest::newRow("UTF-8 mark") << "\xEF\xBB\xBF"
                                   "1\n\xEF\xBB\xBF"
                                   "2"_ba
                                << list{"1", u"\uFEFF2"_s};
    QTest::newRow("mark alone") << "\xEF\xBB\xBF"_ba << list{""};
    QTest::newRow("CR alone") << "\r\r"_ba << list{""};
    QTest::newRow("half a character alone") << "\xE2\x82"_ba << list{""};
    QTest::newRow("CR behind the last newline") << "a\n\r"_ba << list{"a"};
    QTest::newRow("half a character behind it") << "a\n\xE2\x82"_ba << list{"a"};
    QTest::newRow("UTF-16 LE") << QByteArray("\xFF\xFE"
                                             "1\0\r\0\n\0"
                                             "2\0",
                                             10)
                               << list{"1", "2"};
    QTest::newRow("UTF-16 BE") << QByteArray("\xFE\xFF\0"
                                             "1\0\n\0"
                                             "2",
                                             8)
                               << list{"1", "2"};
    QTest::newRow("UTF-32 LE") << QByteArray("\xFF\xFE\0\0"
                                             "1\0\0\0\n\0\0\0",
                                             12)
                               << list{"1"};
    QTest::newRow("not UTF-8") << "a\xFF"
                                  "b\xC3\n\xE4"_ba
                               << list{u"a\uFFFDb\uFFFD"_s};
    QTest::newRow("cut in the last character") << "1 2 \xE2\x82"_ba << list{"1 2 "};
    QTest::newRow("CR inside a character") << "\xC3\r\xA9\n"_ba << list{u"\uFFFD\uFFFD"_s};
    QTest::newRow("CR behind half a character") << "a\xC3\r\n"_ba << list{u"a\uFFFD"_s};
    QTest::newRow("NUL") << QByteArray("a\0b\n", 4) << list{QString::fromLatin1("a\0b", 3)};
    QTest::newRow("other breaks") << "a\vb\fc\x85\n"_ba << list{u"a\vb\fc\uFFFD"_s};
}

void tst_text_lines::lines()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, expected);
    QCOMPARE(stream_lines(bytes), expected);
    QCOMPARE(our_lines(bytes), expected);
}

void tst_text_lines::lines_longer_than_a_block()
{
    const QByteArray longest(3'000'001, 'x');
    const QByteArray bytes = longest + "\n1\n" + longest + "\r\n" + longest;
    QCOMPARE(our_lines(bytes), (QStringList{longest, "1", longest, longest}));
}

void tst_text_lines::ends_near_the_border_of_a_block_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("end");
    QTest::newRow("LF") << ""_ba << "\n"_ba;
    QTest::newRow("CR LF") << ""_ba << "\r\n"_ba;
    QTest::newRow("CR in the block before") << "1\r2"_ba << "\n"_ba;
    QTest::newRow("CR in the line before") << "\r1\n"_ba << "\r2\n"_ba;
    QTest::newRow("UTF-8 mark") << "\xEF\xBB\xBF"_ba << "\n"_ba;
}

void tst_text_lines::ends_near_the_border_of_a_block()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, end);
    for (const qsizetype border : {block_size, 2 * block_size, 3 * block_size}) {
        for (qsizetype at = border - 3; at <= border + 3; ++at) {
            const QByteArray bytes = before.leftJustified(at, 'x') + end + "3" + end + "4";
            QCOMPARE(our_lines(bytes), stream_lines(bytes));
        }
    }
}

void tst_text_lines::blocks_of_an_encoding_data()
{
    QTest::addColumn<QStringConverter::Encoding>("encoding");
    QTest::newRow("UTF-8") << QStringConverter::Utf8;
    QTest::newRow("UTF-16 LE") << QStringConverter::Utf16LE;
    QTest::newRow("UTF-16 BE") << QStringConverter::Utf16BE;
    QTest::newRow("UTF-32 LE") << QStringConverter::Utf32LE;
    QTest::newRow("UTF-32 BE") << QStringConverter::Utf32BE;
}

// Whole blocks, and pieces that end at every byte of a character.
void tst_text_lines::blocks_of_an_encoding()
{
    QFETCH(QStringConverter::Encoding, encoding);
    QStringEncoder encoder(encoding, QStringConverter::Flag::WriteBom);
    const QByteArray bytes = encoder.encode(long_text());
    QVERIFY(bytes.size() > 2 * block_size);
    const QStringList expected = stream_lines(bytes);
    QCOMPARE(expected.size(), 900);
    for (const qsizetype most : {block_size, qsizetype(4099), qsizetype(7)})
        QCOMPARE(our_lines(bytes, most), expected);
}

// The first block ends behind the first half of the pair.
void tst_text_lines::pair_of_surrogates_across_blocks()
{
    const QByteArray pair("\x3D\xD8\xA7\xDC", 4);
    const QByteArray line = QByteArray("x\0", 2).repeated((block_size - 4) / 2) + pair;
    const QByteArray bytes = "\xFF\xFE" + line;
    QCOMPARE(our_lines(bytes).value(0).last(3), u"x\U0001F4A7"_s);
    QCOMPARE(our_lines(bytes), stream_lines(bytes));
}

void tst_text_lines::half_a_pair_data()
{
    QTest::addColumn<QString>("half");
    QTest::newRow("first half") << QString(QChar(0xD83D));
    QTest::newRow("second half") << QString(QChar(0xDCA7));
}

// UTF-8 has no bytes for it: the sign for a lost character stands in its place. At the very end it
// waits for its other half, and is left out.
void tst_text_lines::half_a_pair()
{
    QFETCH(QString, half);
    const QString text = "1" + half + "2\n3" + half + "\n" + half;
    const QByteArray bytes(
        "\xFF\xFE" + QByteArray(reinterpret_cast<const char*>(text.utf16()), 2 * text.size()));
    const QString lost = QChar(QChar::ReplacementCharacter);
    for (const qsizetype most : {block_size, qsizetype(5), qsizetype(4)})
        QCOMPARE(our_lines(bytes, most), (QStringList{"1" + lost + "2", "3" + lost}));
}

// After 256 MB without an end, and the block that was read to look for one, there is no line.
void tst_text_lines::line_without_end()
{
    const qint64 longest = 256 * qint64(1024 * 1024);
    endless_line device;
    text_lines lines(device);
    QByteArrayView line;
    QVERIFY_THROWS_EXCEPTION(std::bad_alloc, lines.next(line));
    QCOMPARE(device.count, longest + block_size);
}

void tst_text_lines::random_bytes_as_a_text_stream()
{
    const QByteArrayList pieces = {"\n",
                                   "\n",
                                   "\r",
                                   "\r\n",
                                   " ",
                                   "1",
                                   "2.5",
                                   "\xC3",
                                   "\xA4",
                                   "\xC3\xA4",
                                   "\xE2\x82\xAC",
                                   "\xF0\x9F\x92\xA7",
                                   "\xFF",
                                   "\xFE",
                                   "\xEF\xBB\xBF",
                                   QByteArray(1, '\0'),
                                   "\xED\xA0\x80",
                                   "\xC0\x80",
                                   "\xF4\x90\x80\x80"};
    QRandomGenerator random(20263);
    for (int i = 0; i < 4000; ++i) {
        QByteArray bytes;
        for (int n = random.bounded(1, 40); n > 0; --n)
            bytes += pieces[random.bounded(pieces.size())];
        const QStringList expected = stream_lines(bytes);
        QCOMPARE(our_lines(bytes), expected);
        QCOMPARE(our_lines(bytes, random.bounded(4, 12)), expected);
    }
}

QTEST_GUILESS_MAIN(tst_text_lines)
#include "tst_text_lines.moc"
