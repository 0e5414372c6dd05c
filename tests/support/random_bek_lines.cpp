#include "tests/support/random_choice.h"
#include "tests/support/random_files.h"

#include <QByteArrayList>

namespace {

// What may stand in the identifier's columns, five characters wide.
QByteArray identifier(QRandomGenerator& random)
{
    static const QByteArrayList names = {
        "B1   ",          "B1   ",          "B2   ", "b2   ", "B1B1 ",    "B\u00fc   ",
        "BBez ",          "Bez  ",          "X1   ", " B1  ", "B\xFF   ", "B12?  ",
        "B123\U0001f4a7", "B123\U0001f4a8", "B123?", "  B1 ", "B1\t  ",   "    x"};
    return once_in(2, random) ? QByteArray("     ") : any_of(names, random);
}

QByteArray value(int width, QRandomGenerator& random)
{
    static const QByteArrayList odd = {"",      "0.00",  "0.0",   "0.000",   "0",      "0.0000",
                                       "-0.0",  "-0.50", "1e3",   "1E+00",   "inf",    "nan",
                                       "1e999", "1,5",   "abc",   "1 2",     "\t0.00", "0.00\t",
                                       "+1",    ".5",    "1e-99", "5\u00a0", "\u00fc"};
    if (once_in(3, random))
        return any_of(odd, random).rightJustified(width);
    return QByteArray::number(random.bounded(3000.0) - 100.0, 'f', random.bounded(4))
        .left(width)
        .rightJustified(width);
}

// A line with all its columns in their places, or one place beside them.
QByteArray full_line(QRandomGenerator& random)
{
    static const QByteArrayList descriptions = {"", "HRB Oberdorf", "HRB M\u00fchlbach",
                                                "R\xFC-Halt", "\U0001f4a7"};
    QByteArray line = "   " + identifier(random) + " " + any_of(descriptions, random);
    line = line.leftJustified(once_in(6, random) ? random.bounded(34, 41) : 37);
    for (const int width : {7, 6, 6, 7})
        line += value(width, random);
    return once_in(5, random) ? line + " 12.5" : line;
}

} // namespace

QByteArray random_bek_lines(QRandomGenerator& random)
{
    QByteArray line = full_line(random);
    static const QList<int> borders = {3, 8, 37, 44, 50, 56, 63};
    if (once_in(4, random))
        line.truncate(any_of(borders, random) + random.bounded(-2, 3));
    if (once_in(20, random))
        line.fill(' ');
    return line;
}
