#include "plot/reading/wel_reader.h"

#include "plot/reading/debug_log.h"
#include "plot/reading/element_kinds.h"
#include "plot/reading/line_text.h"
#include "plot/reading/number.h"
#include "plot/reading/row_log.h"
#include "plot/reading/text_lines.h"
#include "plot/reading/tokens.h"

#include <QDebug>

#include <algorithm>
#include <vector>

namespace {

using row = std::vector<double>;

// Gives the lists of a kind their first room at once: growing there step by step would leave holes
// between them as large as themselves. Room that is not used takes no memory, only addresses.
void prepare(series_store& series, const element_kind& kind)
{
    constexpr qsizetype first_rows = 16'384;
    for (const int column : kind.columns)
        series[static_cast<std::size_t>(column)].reserve(first_rows);
}

// Appends the values to their series and answers whether all of them have a place there.
bool store_row(const row& values, const column_routing& columns, series_store& series)
{
    const std::size_t accepted = std::min(values.size(), columns.size());
    for (std::size_t i = 0; i < accepted; ++i)
        series[static_cast<std::size_t>(columns[i])].append(values[i]);
    return accepted == values.size();
}

void log_overlong_row(QByteArrayView line, const element_kind& kind, const column_routing& columns)
{
    if (!debug_log_is_on())
        return;
    // Only a basin's log names the token that does not fit.
    if (kind.logs_excess_token)
        qDebug() << tokens_of(decoded(line)).value(static_cast<qsizetype>(columns.size()));
    const QByteArray message = QByteArray(" i outside of bounds ") + kind.name;
    qDebug() << "void korimo_plot::readFile(QString)" << message.constData();
}

} // namespace

void read_wel(text_lines& lines, QStringView file_name, const wel_target& target)
{
    const element_kind* const kind = element_kind_of(file_name);
    if (kind)
        prepare(target.series, *kind);
    row values;
    QByteArrayView line;
    while (lines.next(line)) {
        const bool ok = read_numbers(line, values);
        // No number has the word in it, so only the few other lines are searched for it.
        if (!ok && has(line, "Ganglinien")) {
            target.title = decoded(line);
            continue;
        }
        log_row(line, ok);
        if (!ok || !kind)
            continue;
        target.plot_mode = kind->plot_mode;
        const column_routing& columns = kind->columns_for(values.size());
        if (!store_row(values, columns, target.series)) {
            log_overlong_row(line, *kind, columns);
            return; // deliberate: such a row ends the reading
        }
    }
}
