// Listing the names in a BEK or a DKL file.
#include "fuzz/support/agree.h"
#include "fuzz/support/devices.h"
#include "fuzz/support/input.h"
#include "fuzz/support/silent_log.h"
#include "plot/reading/name_listing.h"
#include "plot/reading/text_lines.h"
#include "tests/support/literal_reader.h"

#include <array>

namespace {

struct listing
{
    const char* name;
    QStringList (*list)(text_lines& lines);
};

constexpr std::array<listing, 2> listings = {
    {{"x.bek", list_bek_names}, {"x.dkl", list_dkl_names}}};
constexpr std::uint8_t log_is_off = 0x08;

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzz_input input(data, size);
    const listing chosen = input.any_of(listings);
    const bool is_logged = (input.choice & log_is_off) == 0;
    start_log(is_logged);
    open_buffer file(input.file);
    text_lines lines(file);
    const QStringList names = chosen.list(lines);

    if (has_half_a_pair(input.file))
        return is_not_compared;
    open_buffer text(input.file, text_mode);
    const literal_reading expected = read_literally(text, QString(chosen.name));
    must_agree("names", names, expected.kennlinien_list);
    must_agree("log", logged_lines(), is_logged ? expected.log : QStringList());
    return 0;
}
