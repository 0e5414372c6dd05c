#include "tests/support/document_dump.h"

#include "plot/korimo_plot.h"

#include <QLocale>

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

QString dump(const korimo_plot& document)
{
    QString text = QStringLiteral("mode %1\n").arg(document.plot_mode);
    if (!document.wel_title.isEmpty())
        text += QStringLiteral("title |%1|\n").arg(document.wel_title);
    for (const QString& name : document.kennlinien_list)
        text += QStringLiteral("name |%1|\n").arg(name);
    for (std::size_t i = 0; i < document.series.size(); ++i) {
        if (!document.series[i].isEmpty())
            text += QStringLiteral("series %1: %2\n").arg(i).arg(exact(document.series[i]));
    }
    return text;
}
