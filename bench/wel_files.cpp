#include "bench/wel_files.h"

#include <QFile>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace bench {

namespace {

constexpr std::size_t write_at = 1 << 20;

// What a sub-catchment with a storage behind it does in one step of five minutes.
struct catchment
{
    double hours = 0.0;
    double rain = 0.0; // mm
    double losses = 0.0;
    double runoff = 0.0;
    double direct = 0.0; // m3/s, and so are the next
    double interflow = 0.0;
    double ground = 0.1;
    double sewer = 0.02;
    double base = 0.0;
    double total = 0.0;
    double outflow = 0.1;
    double rest = 0.0;
    double volume = 0.0; // m3
    double area = 0.0;
    double level = 0.0;

    void step(qsizetype row);

private:
    double rain_of(qsizetype row);

    std::uint32_t random = 1;
    qsizetype wet_until = 0;
    double intensity = 0.0;
};

// Dry for days, then some hours of rain.
double catchment::rain_of(qsizetype row)
{
    random = random * 1664525U + 1013904223U;
    const auto dice = static_cast<int>(random >> 16U);
    if (row >= wet_until && dice < 60) {
        wet_until = row + 12 + qsizetype{2} * dice;
        intensity = 0.05 + 0.02 * dice;
    }
    return row < wet_until ? intensity * (dice % 100) / 100.0 : 0.0;
}

void catchment::step(qsizetype row)
{
    hours = static_cast<double>(row) / 12.0;
    rain = rain_of(row);
    losses = std::min(rain, 0.3);
    runoff = rain - losses;
    direct += (12.0 * runoff - direct) / 18.0;
    interflow += (2.0 * runoff - interflow) / 100.0;
    ground += (0.1 + 0.5 * runoff - ground) / 900.0;
    sewer += (0.02 + rain - sewer) / 4.0;
    base = interflow + ground;
    total = direct + base + sewer;
    outflow += (total - outflow) / 24.0;
    rest = std::max(0.0, total - outflow);
    volume = 7200.0 * outflow;
    area = 700.0 + volume / 4.0;
    level = 182.0 + std::sqrt(volume) / 100.0;
}

struct column
{
    std::string_view name;
    std::string_view unit;
    int width;
    int decimals;
    std::chars_format format;
    double catchment::* value;
};

constexpr auto fixed = std::chars_format::fixed;
constexpr auto scientific = std::chars_format::scientific;

// clang-format off
constexpr column t_column = {"t", "[h]", 9, 2, fixed, &catchment::hours};
constexpr column b_columns[] = {
    t_column,
    {"h",    "[müNHN]", 11, 3, fixed, &catchment::level},
    {"Qein", "[m3/s]",  11, 3, fixed, &catchment::total},
    {"QG",   "[m3/s]",  11, 3, fixed, &catchment::outflow},
    {"Qhw",  "[m3/s]",  11, 3, fixed, &catchment::direct},
    {"Qab",  "[m3/s]",  11, 3, fixed, &catchment::outflow},
    {"Qver", "[m3/s]",  11, 3, fixed, &catchment::sewer},
    {"V",    "[m3]",    14, 6, scientific, &catchment::volume},
    {"A",    "[m2]",    14, 6, scientific, &catchment::area},
};
constexpr column kn_columns[] = {
    t_column,
    {"hN",   "[mm]",    11, 2, fixed, &catchment::rain},
    {"hV",   "[mm]",    11, 2, fixed, &catchment::losses},
    {"heff", "[mm]",    11, 2, fixed, &catchment::runoff},
    {"QD",   "[m3/s]",  11, 3, fixed, &catchment::direct},
    {"QI",   "[m3/s]",  11, 3, fixed, &catchment::interflow},
    {"QGW",  "[m3/s]",  11, 3, fixed, &catchment::ground},
    {"Qzu",  "[m3/s]",  11, 3, fixed, &catchment::sewer},
    {"Qb",   "[m3/s]",  11, 3, fixed, &catchment::base},
    {"Qges", "[m3/s]",  11, 3, fixed, &catchment::total},
};
constexpr column v_columns[] = {
    t_column,
    {"Qb",   "[m3/s]",  11, 3, fixed, &catchment::total},
    {"Qab1", "[m3/s]",  11, 3, fixed, &catchment::outflow},
    {"Qab2", "[m3/s]",  11, 3, fixed, &catchment::rest},
};
constexpr column t_columns[] = {
    t_column,
    {"Qein", "[m3/s]",  11, 3, fixed, &catchment::total},
    {"Qab",  "[m3/s]",  11, 3, fixed, &catchment::outflow},
    {"h",    "[m]",     11, 3, fixed, &catchment::ground},
    {"A",    "[m2]",    11, 3, fixed, &catchment::direct},
    {"v",    "[m/s]",   11, 3, fixed, &catchment::interflow},
    {"b",    "[m]",     11, 3, fixed, &catchment::sewer},
    {"V",    "[m3]",    11, 2, fixed, &catchment::volume},
    {"QFl",  "[m3/s]",  11, 3, fixed, &catchment::outflow},
    {"QVor", "[m3/s]",  11, 3, fixed, &catchment::base},
};
constexpr column e_columns[] = {
    t_column,
    {"Qein", "[m3/s]",  11, 3, fixed, &catchment::total},
};
constexpr column p_columns[] = {
    t_column,
    {"Qges", "[m3/s]",  11, 3, fixed, &catchment::total},
    {"Qpeg", "[m3/s]",  11, 3, fixed, &catchment::outflow},
};

struct layout
{
    std::string_view kind;
    std::span<const column> columns;
};

constexpr layout layouts[] = {
    {"B", b_columns}, {"KN", kn_columns}, {"V", v_columns},
    {"T", t_columns}, {"E", e_columns},   {"P", p_columns},
};
// clang-format on

std::span<const column> columns_of(const QByteArray& kind)
{
    const auto* const found = std::ranges::find(
        layouts, std::string_view(kind.constData(), static_cast<std::size_t>(kind.size())),
        &layout::kind);
    if (found == std::end(layouts))
        qFatal("there is no element kind %s", kind.constData());
    return found->columns;
}

bool starts_character(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

void append_heading(std::string& text, std::span<const column> columns,
                    std::string_view column::* part)
{
    for (const column& each : columns) {
        const auto length = std::ranges::count_if(each.*part, starts_character);
        text.append(static_cast<std::size_t>(each.width - length), ' ').append(each.*part);
    }
    text += '\n';
}

void append_row(std::string& text, std::span<const column> columns, const catchment& state)
{
    char digits[64];
    for (const column& each : columns) {
        const char* const end =
            std::to_chars(digits, std::end(digits), state.*each.value, each.format, each.decimals)
                .ptr;
        const auto length = static_cast<std::size_t>(end - digits);
        const auto width = static_cast<std::size_t>(each.width);
        text.append(width - std::min(width - 1, length), ' ').append(digits, length);
        if (each.format == scientific)
            text[text.size() - 4] = 'E';
    }
    text += '\n';
}

void write_out(QFile& file, std::string& text)
{
    const auto length = static_cast<qint64>(text.size());
    if (file.write(text.data(), length) != length)
        qFatal("%s cannot be written", qPrintable(file.fileName()));
    text.clear();
}

} // namespace

void write_wel_file(const QString& path, qsizetype rows, const QByteArray& kind)
{
    const std::span<const column> columns = columns_of(kind);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        qFatal("%s cannot be written", qPrintable(path));
    std::string text = " Ganglinien " + kind.toStdString() + "1 - Langzeitsimulation\n";
    append_heading(text, columns, &column::name);
    append_heading(text, columns, &column::unit);
    catchment state;
    for (qsizetype row = 0; row < rows; ++row) {
        state.step(row);
        append_row(text, columns, state);
        if (text.size() >= write_at)
            write_out(file, text);
    }
    write_out(file, text);
}

} // namespace bench
