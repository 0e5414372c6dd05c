#include "plot/reading/dkl_reader.h"

#include "plot/reading/dkl_lines.h"
#include "plot/reading/text_lines.h"
#include "plot/reading/tokens.h"

#include <QDebug>
#include <QStringList>

namespace {

// A header names the curve by the first and the third part of its listed name. A name with fewer
// parts has no header.
bool is_header_of(const QString& line, const QStringList& name_parts)
{
    return name_parts.size() >= 3 && !line.contains(u"Wo") && line.contains(name_parts[0]) &&
           line.contains(name_parts[2]);
}

// Appends the point of a data line. A point with a 0 is taken for text that is no number, and
// dropped, unless the second field shows by "E+00" that a number was written: then the discharge is
// 0, whatever stands before the exponent. That is deliberately lopsided.
void append_point(const QString& line, series_store& series)
{
    const QStringList fields = tokens_of(line);
    const double level = fields.value(0).toDouble();
    const double discharge = fields.value(1).toDouble();
    const bool has_zero = level == 0.0 || discharge == 0.0;
    if (has_zero && !fields.value(1).contains(u"E+00")) {
        qWarning() << "dkl data line could not be converted: " << line;
        return;
    }
    series[1].append(level);
    series[11].append(has_zero ? 0.0 : discharge);
}

} // namespace

void read_dkl(text_lines& lines, const QString& item, QString& title, series_store& series)
{
    const QStringList name_parts = item.split(u'_', Qt::SkipEmptyParts);
    int points_read = 0; // not reset by a second header: a repeated curve adds only what is missing
    int points_expected = 0;
    bool found = false;
    bool in_block = false;
    QByteArrayView bytes;
    while (lines.next(bytes)) {
        const QString line = decoded(bytes);
        if (is_dkl_heading(line))
            continue;
        if (is_header_of(line, name_parts)) {
            title = item;
            found = true;
        } else if (const int count = line.toInt(); count != 0) {
            points_expected = found ? count : points_expected;
            in_block = in_block || found;
        } else if (found && in_block && points_expected > points_read) {
            append_point(line, series);
            ++points_read;
        } else if (found && in_block) {
            found = in_block = false;
        }
    }
}
