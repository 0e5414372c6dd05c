#include "examples/bek_file.h"
#include "examples/dkl_file.h"
#include "examples/wel_file.h"

#include <charconv>
#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

namespace {

using arguments = std::vector<std::string_view>;

constexpr std::string_view help =
    R"(Computes the example catchment of the Erlenbach and writes its result files.

  make_examples DIR
      writes the WEL files of all elements (72 h at 15 minutes), the basin table
      and the characteristic curves into the folder DIR
  make_examples --rows N --kind KIND FILE
      writes one WEL file of N rows at 5 minutes (a continuous simulation) to FILE;
      KIND is KN, N, B (9 columns), B7 (7 columns), T, V, P or E. A viewer takes the
      kind from the file name: FILE should contain _K, _N, _B, _T, _V, _P or _E.
  make_examples --help
      shows this text
)";

constexpr example::run design_event{example::season_plan::single_event, 900, 72 * 4 + 1,
                                    "Modellregen T = 50 a, 9 h, 60 mm"};

void write_all(const std::filesystem::path& folder)
{
    for (const example::element& each : example::elements()) {
        const std::string name = "Erlenbach_" + std::string(each.key) + ".wel";
        example::write_wel(folder / name, each, design_event);
    }
    example::write_bek(folder / "Erlenbach.bek");
    example::write_dkl(folder / "Erlenbach.dkl");
}

std::optional<std::int64_t> row_count(std::string_view text)
{
    std::int64_t count = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    return whole && count > 0 ? std::optional(count) : std::nullopt;
}

int usage_error()
{
    std::cerr << help;
    return 2;
}

int write_long(std::string_view rows, std::string_view kind, std::string_view file)
{
    const std::optional<std::int64_t> count = row_count(rows);
    const example::element* const shown = example::element_of_kind(kind);
    if (!count || shown == nullptr) {
        return usage_error();
    }
    example::write_wel(
        file, *shown,
        {example::season_plan::continuous, 300, *count, "Langzeitsimulation, dt = 5 min"});
    return 0;
}

int perform(const arguments& words)
{
    if (words.size() == 1 && words[0] == "--help") {
        std::cout << help;
        return 0;
    }
    if (words.size() == 1 && !words[0].starts_with("-")) {
        write_all(words[0]);
        return 0;
    }
    if (words.size() == 5 && words[0] == "--rows" && words[2] == "--kind") {
        return write_long(words[1], words[3], words[4]);
    }
    return usage_error();
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return perform(arguments(argv + 1, argv + argc));
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
