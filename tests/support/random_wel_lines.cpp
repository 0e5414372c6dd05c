#include "plot/reading/element_kinds.h"
#include "tests/support/random_choice.h"
#include "tests/support/random_files.h"

#include <QByteArrayList>

namespace {

QByteArray number(QRandomGenerator& random)
{
    static const QByteArrayList odd = {"0",
                                       "-0",
                                       "+1",
                                       "1.",
                                       ".5",
                                       "1e5",
                                       "1E5",
                                       "1.0E+00",
                                       "1e-400",
                                       "1e400",
                                       "inf",
                                       "-INF",
                                       "nan",
                                       "1,5",
                                       "1e",
                                       "0x10",
                                       "12.5.",
                                       "--1",
                                       "1_0",
                                       "\t7",
                                       "7\t8",
                                       "\u00a03",
                                       "4\u00a0",
                                       "\uff11",
                                       "5\xFF",
                                       "\ufeff6",
                                       "9\xC3",
                                       QByteArray("1\0", 2),
                                       QByteArray("\0", 1),
                                       "123456789012345678901234567890",
                                       "0.1000000000000000055511151231257827",
                                       "4.9e-324",
                                       "2.2250738585072011e-308",
                                       "1\r2"};
    if (once_in(12, random))
        return any_of(odd, random);
    const double value = random.bounded(2000.0) - 200.0;
    return QByteArray::number(value, "fge"[random.bounded(3)], random.bounded(0, 9));
}

// Rows of the length of a kind are the rule, over-long ones the exception that ends the file.
QList<int> row_lengths()
{
    QList<int> lengths{0, 1, 2, 7, 8, 11, 12};
    for (const element_kind& kind : element_kinds()) {
        for (const column_routing* columns : {&kind.columns, &kind.columns_of_seven})
            lengths.append(static_cast<int>(columns->size()));
    }
    return lengths;
}

QByteArray number_row(QRandomGenerator& random)
{
    QByteArray row;
    static const QList<int> lengths = row_lengths();
    for (int n = any_of(lengths, random); n > 0; --n)
        row += QByteArray(random.bounded(1, 4), ' ') + number(random);
    if (once_in(4, random))
        row += "  ";
    return row;
}

} // namespace

QByteArray random_wel_lines(QRandomGenerator& random)
{
    static const QByteArrayList texts = {"Ganglinien Pegel P",
                                         "  Ganglinien \u00dc",
                                         "\ufeffGanglinien",
                                         "ganglinien klein",
                                         "Ganglinien\xFF",
                                         "Gang\rlinien Titel",
                                         "Zeit [h]  Q [m3/s]",
                                         "   ",
                                         "",
                                         "0.0 Ganglinien 1.0",
                                         "\t",
                                         "1.0\t2.0"};
    return once_in(6, random) ? any_of(texts, random) : number_row(random);
}
