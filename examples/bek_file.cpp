#include "examples/bek_file.h"

#include "examples/basin_data.h"
#include "examples/output_file.h"
#include "examples/text_line.h"

#include <span>

namespace example {

namespace {

// Fields lie at fixed character positions: key 3-7, name 9-36, then the four values.
constexpr std::size_t indent = 3;
constexpr std::size_t key_width = 6;
constexpr std::size_t name_width = 28;
constexpr std::size_t level_width = 7;
constexpr std::size_t flow_width = 6;
constexpr std::size_t volume_width = 7;

using basin_rows = std::span<const basin_row>;

void write_words(output_file& file, std::string_view key, std::string_view name,
                 const std::array<std::string_view, 4>& values)
{
    std::string& text = file.text();
    append_left(text, "", indent);
    append_left(text, key, key_width);
    append_left(text, name, name_width);
    append_right(text, values[0], level_width);
    append_right(text, values[1], flow_width);
    append_right(text, values[2], flow_width);
    append_right(text, values[3], volume_width);
    file.end_line();
}

void append_overflow(std::string& text, const basin_data& basin, const basin_row& row)
{
    const bool below = basin.overflow.width == 0.0 || row.water < basin.overflow.crest;
    if (below && basin.overflow_column == spillway_column::blank_below_crest) {
        append_left(text, "", flow_width);
    } else {
        append_fixed(text, row.overflow / 10, 2, flow_width);
    }
}

void write_row(output_file& file, const basin_data& basin, const basin_row& row, bool is_first)
{
    std::string& text = file.text();
    append_left(text, "", indent);
    append_left(text, is_first ? basin.key : "", key_width);
    append_left(text, is_first ? basin.name : "", name_width);
    append_fixed(text, row.water / 10, 2, level_width);
    append_fixed(text, row.outlet / 10, 2, flow_width);
    append_overflow(text, basin, row);
    append_fixed(text, row.filling / one_cubic_metre, 3, volume_width);
    file.end_line();
}

void write_block(output_file& file, const basin_data& basin, basin_rows rows)
{
    for (const basin_row& row : rows) {
        write_row(file, basin, row, &row == &rows.front());
    }
}

std::size_t rows_up_to_crest(const basin_data& basin, basin_rows rows)
{
    std::size_t count = 0;
    while (count < rows.size() && rows[count].water <= basin.overflow.crest) {
        ++count;
    }
    return count;
}

void write_heading(output_file& file)
{
    file.text() += "Kennlinien der Becken im Einzugsgebiet Erlenbach";
    file.end_line();
    write_words(file, "BBez.", "Bezeichnung", {"h", "Qg", "Qhw", "V"});
    write_words(file, "[-]", "[-]", {"müNHN", "m3/s", "m3/s", "Tsd.m3"});
}

} // namespace

// The main basin comes in two blocks: storage up to the crest, and after the other basins the
// surcharge above it.
void write_bek(const std::filesystem::path& path)
{
    output_file file(path);
    write_heading(file);
    const std::vector<basin_row> main_rows = basin_table(main_basin());
    const basin_rows rows = main_rows;
    const std::size_t storage = rows_up_to_crest(main_basin(), rows);
    write_block(file, main_basin(), rows.first(storage));
    for (const basin_data& other : std::span(basins()).subspan(1)) {
        write_block(file, other, basin_table(other));
    }
    write_block(file, main_basin(), rows.subspan(storage));
    file.finish();
}

} // namespace example
