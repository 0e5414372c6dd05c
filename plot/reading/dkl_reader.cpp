#include "plot/reading/dkl_reader.h"

#include "plot/reading/debug_log.h"
#include "plot/reading/dkl_lines.h"
#include "plot/reading/line_text.h"
#include "plot/reading/number.h"
#include "plot/reading/text_lines.h"
#include "plot/reading/tokens.h"

#include <QDebug>
#include <QStringList>

namespace {

// A header names the curve by the first and the third part of its listed name. A name with fewer
// parts has no header.
class header_test
{
public:
    explicit header_test(const QStringList& name_parts)
        : possible(name_parts.size() >= 3)
        , first(name_parts.value(0))
        , third(name_parts.value(2))
    {
    }

    bool passes(QByteArrayView line) const
    {
        return possible && !has(line, "Wo") && with_text_of(line, [&](auto text) {
                   return third.is_in(text) && first.is_in(text);
               });
    }

private:
    bool possible;
    searched_text first;
    searched_text third;
};

// The number of points that a line announces, or 0 where it does not. Nearly all lines are points,
// with a "." that no whole number has; behind a NUL, at which Qt stops to read, it does not count.
int point_count_in(QByteArrayView line)
{
    return has(line, ".") && !line.contains('\0') ? 0 : decoded(line).toInt();
}

// Appends the point of a data line. A point with a 0 is taken for text that is no number, and
// dropped, unless the second field shows by "E+00" that a number was written: then the discharge is
// 0, whatever stands before the exponent. That is deliberately lopsided.
void append_point(QByteArrayView line, series_store& series)
{
    QByteArrayView rest = line;
    const QByteArrayView first = take_token(rest);
    const QByteArrayView second = take_token(rest);
    const double level = value_of(first);
    const double discharge = value_of(second);
    const bool has_zero = level == 0.0 || discharge == 0.0;
    if (has_zero && !second.contains("E+00")) {
        ask_for_room_to_quote(line);
        qWarning() << "dkl data line could not be converted: " << decoded(line);
        return;
    }
    series[1].append(level);
    series[11].append(has_zero ? 0.0 : discharge);
}

} // namespace

void read_dkl(text_lines& lines, const QString& item, QString& title, series_store& series)
{
    const header_test is_header(item.split(u'_', Qt::SkipEmptyParts));
    int points_read = 0; // not reset by a second header: a repeated curve adds only what is missing
    int points_expected = 0;
    bool found = false;
    bool in_block = false;
    QByteArrayView line;
    while (lines.next(line)) {
        if (is_dkl_heading(line))
            continue;
        if (is_header.passes(line)) {
            title = item;
            found = true;
        } else if (const int count = point_count_in(line); count != 0) {
            points_expected = count;
            in_block = found;
        } else if (in_block && points_expected > points_read) {
            append_point(line, series);
            ++points_read;
        } else if (in_block) {
            found = in_block = false;
        }
    }
}
