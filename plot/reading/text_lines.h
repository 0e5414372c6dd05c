#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringDecoder>

#include <optional>

class QIODevice;

/// The lines of a text file, one after the other, as UTF-8 without their line ends.
///
/// They are the lines that a QTextStream with its default encoding gives of a file opened in text
/// mode: every carriage return is dropped, wherever it stands; a byte-order mark at the start
/// chooses UTF-16 or UTF-32 and is dropped itself; an incomplete character at the very end is
/// dropped. Bytes that are no UTF-8 stay in the line as they are: `decoded` turns them into
/// replacement characters.
///
/// A line longer than 256 MB, or than the memory, ends the reading with std::bad_alloc.
class text_lines
{
public:
    /// Reads from `device`, which must be open for reading, without text mode, and outlive this.
    explicit text_lines(QIODevice& device);

    /// Puts the next line into `line` and answers whether there was one. The bytes stay valid
    /// until the next call.
    bool next(QByteArrayView& line);

private:
    void fill();
    void detect_encoding();
    void append(QByteArrayView bytes);
    bool take_last_line(QByteArrayView& line);
    QByteArrayView without_returns(QByteArrayView line);

    QIODevice& device;
    QByteArray block;                             // what was read last
    QByteArray buffer;                            // text that was read and not yet given out
    qsizetype start = 0;                          // where the next line starts in it
    QByteArray rewritten;                         // a line that had to be changed
    std::optional<QStringDecoder> transcoder;     // set for UTF-16 and UTF-32 only
    QStringEncoder encoder{QStringEncoder::Utf8}; // keeps half a pair until the next block
    bool has_returns = false;                     // whether a carriage return has been read so far
    bool at_end = false;
    bool file_is_empty = false;
    bool gave_a_line = false;
};

/// The text of `utf8`. Bytes that are no UTF-8 become replacement characters; a byte-order mark
/// stays, since only the one at the start of a file is none of its text.
QString decoded(QByteArrayView utf8);
