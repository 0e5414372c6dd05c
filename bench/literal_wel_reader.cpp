#include "bench/literal_wel_reader.h"

#include "plot/reading/element_kinds.h"

#include <QDebug>
#include <QFile>
#include <QTextStream>

#include <algorithm>
#include <charconv>
#include <vector>

namespace {

// Fills `values` up to the first token that is no number, and answers whether all are numbers.
bool convert(const QStringList& tokens, std::vector<double>& values)
{
    values.clear();
    bool ok = true;
    for (const QString& token : tokens) {
        values.push_back(token.toDouble(&ok));
        if (!ok)
            return false;
    }
    return true;
}

// Answers whether all of the row has a place.
bool append(const std::vector<double>& values, const element_kind& kind, series_store& series)
{
    const column_routing& columns = kind.columns_for(values.size());
    const std::size_t accepted = std::min(values.size(), columns.size());
    for (std::size_t i = 0; i < accepted; ++i)
        series[static_cast<std::size_t>(columns[i])].append(values[i]);
    return accepted == values.size();
}

} // namespace

void bench::read_wel_literally(const QString& path, bool with_log, series_store& series)
{
    const element_kind* const kind = element_kind_of(path.mid(path.lastIndexOf('/') + 1));
    QFile file(path);
    if (!kind || !file.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    QTextStream stream(&file);
    QString title;
    std::vector<double> values;
    while (!stream.atEnd()) {
        const QString line = stream.readLine();
        if (line.contains("Ganglinien")) {
            title = line;
            continue;
        }
        const QStringList tokens = line.split(' ', Qt::SkipEmptyParts);
        const bool ok = convert(tokens, values);
        if (with_log)
            qDebug() << tokens << ok;
        if (ok && !append(values, *kind, series))
            return;
    }
}

qsizetype bench::read_numbers_only(const QString& path, qsizetype columns, qsizetype rows)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const char* at = reinterpret_cast<const char*>(file.map(0, file.size()));
    const char* const end = at + file.size();
    for (int line = 0; line < 3; ++line)
        at = std::find(at, end, '\n') + 1;
    std::vector<std::vector<double>> lists(static_cast<std::size_t>(columns));
    for (auto& list : lists)
        list.reserve(static_cast<std::size_t>(rows));
    qsizetype count = 0;
    auto list = lists.begin();
    while (true) {
        while (at != end && (*at == ' ' || *at == '\n'))
            ++at;
        if (at == end)
            return count;
        double value = 0.0;
        at = std::from_chars(at, end, value).ptr;
        list->push_back(value);
        ++count;
        if (++list == lists.end())
            list = lists.begin();
    }
}
