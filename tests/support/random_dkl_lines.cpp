#include "tests/support/random_choice.h"
#include "tests/support/random_files.h"

#include <QByteArrayList>

namespace {

QByteArray header(QRandomGenerator& random)
{
    static const QByteArrayList usual = {"  1  Auslass km Sp", "  2  Auslass km Sp",
                                         "  1  Auslass km 6.480 GOK = 187.5 m\u00fcNHN",
                                         "  3  \u00dcberlauf km Sp GW = 1 m\u00fcNHN"};
    static const QByteArrayList words = {
        "km", "1.2",  "GOK", "=",        "GW",   "m\u00fcNHN", "Wo",      "Wo>",   "Qd",
        "Sp", "GOK=", "\t",  "m\xFCNHN", "km=3", "12",         "Auslass", "Sp\xFF"};
    if (!once_in(4, random))
        return any_of(usual, random);
    QByteArray line;
    for (int n = random.bounded(0, 9); n > 0; --n)
        line += any_of(words, random) + QByteArray(random.bounded(1, 3), ' ');
    return line;
}

QByteArray count_line(int count, QRandomGenerator& random)
{
    static const QByteArrayList odd = {"0",          "00",         "-2",  "3.0",  "1e1",
                                       "2147483647", "2147483648", "0x3", "3 4",  "1,000",
                                       "3\u00a0",    "\u0663",     "",    "3\xFF"};
    static const QByteArrayList forms = {"%", "    %", "%  ", "+%", "00%", "\t%"};
    if (once_in(40, random))
        return QByteArray("3\0 1.5", 6);
    if (once_in(5, random))
        return any_of(odd, random);
    return QByteArray(any_of(forms, random)).replace('%', QByteArray::number(count));
}

QByteArray value(QRandomGenerator& random)
{
    static const QByteArrayList odd = {
        "0",          "0.0",   "-0",  "0.000000E+00", "1.5E+00", "-2.5E+00", "0e+00",
        "E+00",       "xE+00", "abc", "nan",          "inf",     "1e400",    "1e-400",
        "-0.000E+00", "1,5",   "1.",  "7\t8",         "\u00a03", "5\xFF",    "0.0E+001"};
    if (once_in(3, random))
        return any_of(odd, random);
    return QByteArray::number(random.bounded(300.0) - 20.0, "fE"[random.bounded(2)],
                              random.bounded(7));
}

QByteArray point(QRandomGenerator& random)
{
    QByteArray line;
    static const QList<int> field_numbers = {0, 1, 2, 2, 2, 2, 2, 2, 3};
    for (int n = any_of(field_numbers, random); n > 0; --n)
        line += QByteArray(random.bounded(1, 4), ' ') + value(random);
    static const QByteArrayList tails = {" ", " Wo", " Wo>", " Wo> 3 Wo", " Auslass Sp", "\t"};
    return once_in(6, random) ? line + any_of(tails, random) : line;
}

} // namespace

QByteArray random_dkl_lines(QRandomGenerator& random)
{
    QByteArrayList lines;
    if (!once_in(6, random))
        lines.append(header(random));
    if (!once_in(3, random))
        lines.append("   Wo [m\u00fcNHN]   Qd [m3/s]");
    const int count = random.bounded(1, 6);
    if (!once_in(8, random))
        lines.append(count_line(count, random));
    const int surplus = once_in(2, random) ? random.bounded(-2, 3) : 0;
    for (int n = count + surplus; n > 0; --n)
        lines.append(point(random));
    return lines.join('\n');
}
