#include "tests/support/document_dump.h"

#include "plot/korimo_plot.h"
#include "tests/support/log_capture.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace {

QString exact(double value)
{
    if (value == 0.0 && std::signbit(value))
        return QStringLiteral("-0");
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

QString exact(const QList<double>& values)
{
    QStringList texts;
    for (const double value : values)
        texts.append(exact(value));
    return texts.join(u' ');
}

} // namespace

QString dump(int plot_mode, const QString& title, const QStringList& names,
             const series_store& series)
{
    QString text = QStringLiteral("mode %1\n").arg(plot_mode);
    if (!title.isEmpty())
        text += QStringLiteral("title |%1|\n").arg(title);
    for (const QString& name : names)
        text += QStringLiteral("name |%1|\n").arg(name);
    for (std::size_t i = 0; i < series.size(); ++i) {
        if (!series[i].isEmpty())
            text += QStringLiteral("series %1: %2\n").arg(i).arg(exact(series[i]));
    }
    return text;
}

bool has_no_values(const korimo_plot& document)
{
    return std::ranges::all_of(document.series, &QList<double>::isEmpty);
}

QString read_and_dump(korimo_plot& document, const QString& path)
{
    const log_capture log;
    document.readFile(path);
    QString text = dump(document);
    const auto lines = log_capture::debug_lines();
    for (const QString& line : lines)
        text += "log " + line + "\n";
    return text;
}
