// What is a line: against a text stream, with the file read as a whole and piece by piece.
#include "fuzz/support/agree.h"
#include "fuzz/support/devices.h"
#include "fuzz/support/input.h"
#include "plot/reading/text_lines.h"

#include <QTextStream>

namespace {

QStringList lines_of(QIODevice& file)
{
    text_lines lines(file);
    QStringList all;
    QByteArrayView line;
    while (lines.next(line))
        all.append(decoded(line));
    return all;
}

QStringList literal_lines_of(const QByteArray& bytes)
{
    open_buffer text(bytes, text_mode);
    QTextStream stream(&text);
    QStringList all;
    while (!stream.atEnd())
        all.append(stream.readLine());
    return all;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzz_input input(data, size);
    constexpr qint64 longest_mark = 4; // is told from the first piece alone
    open_buffer whole(input.file);
    piecewise_file in_pieces(input.file, longest_mark + input.choice);
    const QStringList lines = lines_of(whole);
    must_agree("lines of pieces", lines_of(in_pieces), lines);
    if (has_half_a_pair(input.file))
        return is_not_compared;
    must_agree("lines", lines, literal_lines_of(input.file));
    return 0;
}
