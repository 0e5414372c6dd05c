#include "columns.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <string>
#include <string_view>

namespace {

void read_line(std::string_view line, const std::vector<int>& columns,
               std::vector<QVector<double>>& values)
{
    std::size_t at = 0;
    std::size_t wanted = 0;
    for (int column = 1; wanted < columns.size(); ++column) {
        at = line.find_first_not_of(' ', at);
        if (at == std::string_view::npos)
            return;
        const std::size_t end = std::min(line.find(' ', at), line.size());
        if (column == columns[wanted]) {
            double value = 0.0;
            std::from_chars(line.data() + at, line.data() + end, value);
            values[wanted++].append(value);
        }
        at = end;
    }
}

} // namespace

std::vector<QVector<double>> read_columns(const char* path, const std::vector<int>& columns)
{
    std::ifstream file(path, std::ios::binary);
    std::vector<QVector<double>> values(columns.size());
    std::string line;
    for (int number = 0; std::getline(file, line); ++number) {
        if (number >= 3)
            read_line(line, columns, values);
    }
    return values;
}
