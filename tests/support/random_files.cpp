#include "tests/support/random_files.h"

#include "tests/support/random_choice.h"

#include <QByteArrayList>

QByteArray random_file(const QString& name, QRandomGenerator& random)
{
    static const QByteArrayList line_ends = {"\n", "\n", "\n", "\r\n", "\r\n", "\r\r\n", "\n\n"};
    const QByteArray& line_end = any_of(line_ends, random);
    QByteArray bytes;
    if (once_in(20, random))
        bytes += "\ufeff";
    for (int n = random.bounded(0, 14); n > 0; --n) {
        bytes += name.endsWith("bek", Qt::CaseInsensitive)   ? random_bek_lines(random)
                 : name.endsWith("dkl", Qt::CaseInsensitive) ? random_dkl_lines(random)
                                                             : random_wel_lines(random);
        bytes += once_in(8, random) ? any_of(line_ends, random) : line_end;
    }
    if (once_in(3, random))
        bytes.chop(1);
    if (once_in(25, random))
        bytes.truncate(random.bounded(bytes.size() + 1));
    return bytes;
}
