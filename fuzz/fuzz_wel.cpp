// Reading a WEL file of any element kind.
#include "fuzz/support/agree.h"
#include "fuzz/support/devices.h"
#include "fuzz/support/input.h"
#include "fuzz/support/silent_log.h"
#include "plot/reading/text_lines.h"
#include "plot/reading/wel_reader.h"
#include "tests/support/kind_names.h"
#include "tests/support/literal_reader.h"

namespace {

constexpr std::uint8_t log_is_off = 0x80;

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzz_input input(data, size);
    const QString name = input.any_of(names_of_every_kind() + QStringList{"x.wel"});
    const bool is_logged = (input.choice & log_is_off) == 0;
    start_log(is_logged);

    // The lists keep their room from run to run: making it takes longer than reading.
    static series_store series;
    for (QList<double>& list : series)
        list.clear();
    int plot_mode = -1;
    QString title;
    open_buffer file(input.file);
    text_lines lines(file);
    read_wel(lines, name, {plot_mode, title, series});

    if (has_half_a_pair(input.file))
        return is_not_compared;
    open_buffer text(input.file, text_mode);
    const literal_reading expected = read_literally(text, name);
    must_agree("mode", plot_mode, expected.plot_mode);
    must_agree("title", title, expected.wel_title);
    must_agree("log", logged_lines(), is_logged ? expected.log : QStringList());
    must_agree(series, expected.series);
    return 0;
}
