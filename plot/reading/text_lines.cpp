#include "plot/reading/text_lines.h"

#include <QIODevice>
#include <QString>

#include <new>
#include <utility>

namespace {

constexpr qsizetype block_size = 65'536;
constexpr qsizetype longest_line = 1 << 28; // no result file has one of a hundredth of it
constexpr QByteArrayView utf8_mark("\xEF\xBB\xBF");

constexpr QStringDecoder::Flags keep_marks = QStringDecoder::Flag::ConvertInitialBom;

} // namespace

text_lines::text_lines(QIODevice& device)
    : device(device)
{
    fill();
    file_is_empty = at_end;
    detect_encoding();
}

bool text_lines::next(QByteArrayView& line)
{
    qsizetype searched = start;
    qsizetype end = buffer.indexOf('\n', searched);
    while (end < 0 && !at_end) {
        searched = buffer.size() - start;
        fill();
        end = buffer.indexOf('\n', start + searched);
    }
    if (end < 0)
        return take_last_line(line);
    line = without_returns(QByteArrayView(buffer).sliced(start, end - start));
    start = end + 1;
    gave_a_line = true;
    return true;
}

// The text behind the last line end. A decoder that has not seen the end of the file holds back
// the bytes of a character that is not complete, so they do not belong to the line. Nothing is left
// of bytes that were all dropped, but a file of nothing else still has one empty line.
bool text_lines::take_last_line(QByteArrayView& line)
{
    QStringDecoder decoder(QStringDecoder::Utf8, keep_marks);
    const QString text = decoder.decode(QByteArrayView(buffer).sliced(start));
    start = buffer.size();
    rewritten = QString(text).remove(u'\r').toUtf8();
    line = rewritten;
    const bool is_only_line = !gave_a_line && !file_is_empty;
    gave_a_line = true;
    return !line.isEmpty() || is_only_line;
}

// Drops what has been given out and reads one more block behind the rest. A file of one line
// without an end must not fill the memory of the machine, so it counts as too large long before.
void text_lines::fill()
{
    buffer.remove(0, start);
    start = 0;
    if (buffer.size() > longest_line)
        throw std::bad_alloc();
    block.resize(block_size);
    const qint64 count = device.read(block.data(), block_size);
    at_end = count <= 0;
    if (!at_end)
        append(QByteArrayView(block).first(count));
}

void text_lines::append(QByteArrayView bytes)
{
    QByteArray utf8;
    if (transcoder) {
        const QString text = transcoder->decode(bytes);
        utf8 = encoder.encode(text);
        bytes = utf8;
    }
    buffer.append(bytes);
    has_returns = has_returns || bytes.contains('\r');
}

void text_lines::detect_encoding()
{
    const auto encoding = QStringConverter::encodingForData(buffer);
    if (!encoding)
        return;
    if (*encoding == QStringConverter::Utf8) {
        start = utf8_mark.size();
        return;
    }
    transcoder.emplace(*encoding);
    append(std::exchange(buffer, {}));
}

// A carriage return parts the bytes around it before it is dropped: what was no UTF-8 with it does
// not become UTF-8 without it. So a line with returns inside is decoded first.
QByteArrayView text_lines::without_returns(QByteArrayView line)
{
    if (!has_returns)
        return line;
    while (line.endsWith('\r'))
        line.chop(1);
    if (!line.contains('\r'))
        return line;
    rewritten = decoded(line).remove(u'\r').toUtf8();
    return rewritten;
}

QString decoded(QByteArrayView utf8)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless | keep_marks);
    return decoder.decode(utf8);
}
