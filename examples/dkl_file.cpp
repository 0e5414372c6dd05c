#include "examples/dkl_file.h"

#include "examples/basin_data.h"
#include "examples/output_file.h"
#include "examples/text_line.h"

#include <cmath>

namespace example {

namespace {

constexpr level level_step = 100;

enum class device : std::uint8_t
{
    outlet,
    overflow
};

struct curve
{
    std::string_view number;
    std::string_view name; // one word: the viewer names the curve station_number_name
    std::string_view station;
    std::size_t basin;
    device opening;
    level groundwater;
};

constexpr std::array curves{
    curve{"1", "Grundablass-Oberdorf", "6.480", 0, device::outlet, 180900},
    curve{"2", "Überlauf-Oberdorf", "6.475", 0, device::overflow, 180900},
    curve{"3", "Drossel-Auwiesen", "3.120", 1, device::outlet, 173800},
    curve{"4", "Notüberlauf-Auwiesen", "3.105", 1, device::overflow, 173800},
    curve{"5", "Mönch-Mühlteich", "8.930", 2, device::outlet, 190600},
    curve{"6", "Überlauf-Mühlteich", "8.925", 2, device::overflow, 190600},
    curve{"7", "Drossel-Gewerbegebiet", "4.260", 3, device::outlet, 178100},
};

double discharge(const curve& each, const basin_data& basin, level water)
{
    return each.opening == device::outlet ? basin.outlet.discharge(water)
                                          : basin.overflow.discharge(water);
}

level lowest(const curve& each, const basin_data& basin)
{
    return each.opening == device::outlet ? basin.outlet.sill : basin.overflow.crest;
}

void append_level(std::string& text, std::string_view label, level water)
{
    text += label;
    text += " = ";
    append_fixed(text, water / 10, 2, 0);
    text += " müNHN";
}

void write_header(output_file& file, const curve& each, const basin_data& basin)
{
    std::string& text = file.text();
    append_right(text, each.number, 4);
    text += "  ";
    append_left(text, each.name, 24);
    text += "km ";
    text += each.station;
    append_level(text, "   GOK", basin.top());
    append_level(text, "   GW", each.groundwater);
    file.end_line();
    file.text() += "   Wo [müNHN]      Qd [m3/s]";
    file.end_line();
}

void write_point(output_file& file, level water, double flow)
{
    append_fixed(file.text(), water, 3, 13);
    append_exponent(file.text(), std::llround(flow * one_cumec), 3, 15);
    file.end_line();
}

void write_curve(output_file& file, const curve& each)
{
    const basin_data& basin = basins()[each.basin];
    const level from = lowest(each, basin);
    const level count = (basin.top() - from) / level_step + 1;
    write_header(file, each, basin);
    append_fixed(file.text(), count, 0, 6);
    file.end_line();
    for (level i = 0; i < count; ++i) {
        const level water = from + i * level_step;
        write_point(file, water, discharge(each, basin, water));
    }
    file.end_line();
}

} // namespace

void write_dkl(const std::filesystem::path& path)
{
    output_file file(path);
    file.text() += "Kennlinien der Drosseln und Entlastungen im Einzugsgebiet Erlenbach";
    file.end_line();
    file.end_line();
    for (const curve& each : curves) {
        write_curve(file, each);
    }
    file.finish();
}

} // namespace example
