// Reading one basin of a BEK file: one that it lists or a strange one.
#include "fuzz/support/agree.h"
#include "fuzz/support/devices.h"
#include "fuzz/support/input.h"
#include "fuzz/support/silent_log.h"
#include "plot/reading/bek_reader.h"
#include "plot/reading/name_listing.h"
#include "plot/reading/text_lines.h"
#include "tests/support/literal_curve_reader.h"

namespace {

using namespace Qt::StringLiterals;

QStringList strange()
{
    return {"B1   ", "B9   ", u"B\u00fc   "_s, "B1", "1", " ", ""};
}

QStringList items_of(const QByteArray& bytes)
{
    open_buffer file(bytes);
    text_lines lines(file);
    return list_bek_names(lines) + strange();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzz_input input(data, size);
    const QString item = input.any_of(items_of(input.file));
    start_log(true);
    series_store series;
    open_buffer file(input.file);
    text_lines lines(file);
    read_bek(lines, item, series);

    if (has_half_a_pair(input.file))
        return is_not_compared;
    open_buffer text(input.file, text_mode);
    const literal_reading expected = read_bek_literally(text, item);
    must_agree("log", logged_lines(), expected.log);
    must_agree(series, expected.series);
    return 0;
}
