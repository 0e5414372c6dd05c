#include "examples/wel_file.h"

#include "examples/output_file.h"
#include "examples/text_line.h"

namespace example {

namespace {

constexpr std::size_t time_width = 9;

std::size_t width_of(const column& each)
{
    return each.style == notation::fixed ? 11 : 14;
}

void write_title(output_file& file, const element& shown, const run& wanted)
{
    std::string& text = file.text();
    text += " Ganglinien ";
    text += shown.key;
    text += " - ";
    text += shown.name;
    text += ": ";
    text += wanted.label;
    file.end_line();
}

void write_words(output_file& file, const element& shown, std::string_view first,
                 std::string_view column::* word)
{
    append_right(file.text(), first, time_width);
    for (const column& each : shown.columns) {
        append_right(file.text(), each.*word, width_of(each));
    }
    file.end_line();
}

void write_row(output_file& file, const element& shown, const network& state)
{
    append_fixed(file.text(), state.hundredths_of_hours(), 2, time_width);
    for (const column& each : shown.columns) {
        const auto append = each.style == notation::fixed ? append_fixed : append_exponent;
        append(file.text(), each.value(state), each.scale, width_of(each));
    }
    file.end_line();
}

} // namespace

void write_wel(const std::filesystem::path& path, const element& shown, const run& wanted)
{
    output_file file(path);
    write_title(file, shown, wanted);
    write_words(file, shown, "t", &column::heading);
    write_words(file, shown, "[h]", &column::unit);
    network state(wanted.plan, wanted.step);
    for (std::int64_t row = 0; row < wanted.rows; ++row) {
        write_row(file, shown, state);
        state.advance();
    }
    file.finish();
}

} // namespace example
