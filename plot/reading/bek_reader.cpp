#include "plot/reading/bek_reader.h"

#include "plot/reading/bek_fields.h"
#include "plot/reading/text_lines.h"

namespace {

// A field that is no number counts as 0.
void append_number(QStringView line, const text_field& where, QList<double>& values)
{
    values.append(field(line, where).toDouble());
}

bool is_written_zero(QStringView text)
{
    return text == u"0.00" || text == u"0.0" || text == u"0.000";
}

// A spillway that does not run yet is left blank, so its column may be shorter than the others. Of
// the values that are 0 only the usual spellings count: a bare "0" and text that is no number are
// dropped like a negative value. That is deliberate.
void append_spillway(QStringView line, QList<double>& values)
{
    const QStringView text = field(line, bek_spillway).trimmed();
    const double value = text.toDouble();
    if (value > 0.0 || is_written_zero(text))
        values.append(value);
}

void append_row(QStringView line, series_store& series)
{
    append_number(line, bek_water_level, series[1]);
    append_number(line, bek_outlet, series[11]);
    append_spillway(line, series[13]);
    append_number(line, bek_volume, series[23]);
}

} // namespace

void read_bek(text_lines& lines, QStringView item, series_store& series)
{
    bool in_block = false;
    QByteArrayView bytes;
    while (lines.next(bytes)) {
        const QString line = decoded(bytes);
        const QStringView identifier = field(line, bek_identifier);
        const bool continues = identifier == u"     ";
        const bool is_wanted = identifier.contains(item);
        // A line that repeats the identifier inside its block is not read, but keeps the block
        // open.
        if (in_block ? continues : is_wanted)
            append_row(line, series);
        in_block = is_wanted || (in_block && continues);
    }
}
