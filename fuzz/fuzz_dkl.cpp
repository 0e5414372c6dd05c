// Reading one curve of a DKL file: one that it lists or a strange one.
#include "fuzz/support/agree.h"
#include "fuzz/support/devices.h"
#include "fuzz/support/input.h"
#include "fuzz/support/silent_log.h"
#include "plot/reading/dkl_reader.h"
#include "plot/reading/name_listing.h"
#include "plot/reading/text_lines.h"
#include "tests/support/literal_curve_reader.h"

namespace {

using namespace Qt::StringLiterals;

QStringList strange()
{
    return {"Sp_1_Auslass",
            "Sp__1__Auslass",
            "6.480_1_Auslass",
            "Auslass_km_Sp",
            "Sp_1",
            u"Sp_3_\u00dcberlauf"_s,
            "_",
            "",
            " _x_1"};
}

QStringList items_of(const QByteArray& bytes)
{
    open_buffer file(bytes);
    text_lines lines(file);
    return list_dkl_names(lines) + strange();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzz_input input(data, size);
    start_log(false);
    const QString item = input.any_of(items_of(input.file));
    series_store series;
    QString title;
    open_buffer file(input.file);
    text_lines lines(file);
    read_dkl(lines, item, title, series);

    if (has_half_a_pair(input.file))
        return is_not_compared;
    open_buffer text(input.file, text_mode);
    const literal_reading expected = read_dkl_literally(text, item);
    must_agree("title", title, expected.wel_title);
    must_agree("warnings", logged_lines(), expected.log);
    must_agree(series, expected.series);
    return 0;
}
