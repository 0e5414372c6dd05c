#include "plot/reading/bek_reader.h"

#include "plot/reading/bek_fields.h"
#include "plot/reading/line_text.h"
#include "plot/reading/number.h"
#include "plot/reading/text_lines.h"

namespace {

template <class text_view>
bool is_written_zero(text_view text)
{
    return text == u"0.00" || text == u"0.0" || text == u"0.000";
}

// A spillway that does not run yet is left blank, so its column may be shorter than the others. Of
// the values that are 0 only the usual spellings count: a bare "0" and text that is no number are
// dropped like a negative value. That is deliberate.
template <class text_view>
bool is_written(text_view text, double value)
{
    return value > 0.0 || is_written_zero(text.trimmed());
}

// A field that is no number counts as 0.
template <class text_view>
void append_row(text_view line, series_store& series)
{
    for (const bek_column& column : bek_columns) {
        const text_view text = field(line, column.where);
        const double value = value_of(text);
        if (!column.may_be_blank || is_written(text, value))
            series[column.series].append(value);
    }
}

// Takes the next line and answers whether the block of the basin is open after it.
template <class text_view>
bool take_line(text_view line, const searched_text& item, bool in_block, series_store& series)
{
    const text_view identifier = field(line, bek_identifier);
    const bool continues = identifier == u"     ";
    const bool is_wanted = item.is_in(identifier);
    // A line that repeats the identifier inside its block is not read, but keeps the block open.
    if (in_block ? continues : is_wanted)
        append_row(line, series);
    return is_wanted || (in_block && continues);
}

} // namespace

void read_bek(text_lines& lines, QStringView item, series_store& series)
{
    const searched_text basin(item);
    bool in_block = false;
    QByteArrayView bytes;
    while (lines.next(bytes)) {
        in_block = with_text_of(
            bytes, [&](auto line) { return take_line(line, basin, in_block, series); });
    }
}
