#include "tests/support/literal_curve_reader.h"

#include <QDebug>
#include <QFile>
#include <QTextStream>

namespace {

void take_basin_row(const QString& line, literal_reading& result)
{
    result.series[1].append(line.mid(37, 7).toDouble());
    result.series[11].append(line.mid(44, 6).toDouble());
    const QString text = line.mid(50, 6).trimmed();
    if (!text.isEmpty()) {
        const double value = text.toDouble();
        if (value > 0.0)
            result.series[13].append(value);
        else if (value == 0.0 && (text == "0.00" || text == "0.0" || text == "0.000"))
            result.series[13].append(0.0);
    }
    result.series[23].append(line.mid(56, 7).toDouble());
}

void take_point(const QString& line, literal_reading& result)
{
    const QStringList fields = line.split(' ', Qt::SkipEmptyParts);
    const QString second = fields.size() > 1 ? fields[1] : QString();
    const double wo = fields.isEmpty() ? 0.0 : fields[0].toDouble();
    const double qd = second.toDouble();
    if (!(wo == 0.0) && !(qd == 0.0)) {
        result.series[1].append(wo);
        result.series[11].append(qd);
    } else if (second.contains("E+00")) {
        result.series[1].append(wo);
        result.series[11].append(0.0);
    } else {
        QString text;
        QDebug(&text) << "dkl data line could not be converted: " << line;
        result.log.append(text.trimmed());
    }
}

} // namespace

literal_reading read_bek_literally(QIODevice& text, const QString& item)
{
    literal_reading result;
    result.plot_mode = 9;
    bool in_block = false;
    QTextStream stream(&text);
    while (!stream.atEnd()) {
        const QString line = stream.readLine();
        const QString identifier = line.mid(3, 5);
        if (!in_block) {
            if (identifier.contains(item)) {
                take_basin_row(line, result);
                in_block = true;
            }
        } else if (identifier == "     ") {
            take_basin_row(line, result);
        } else if (!identifier.contains(item)) {
            in_block = false;
        }
    }
    return result;
}

literal_reading read_dkl_literally(QIODevice& text, const QString& item)
{
    literal_reading result;
    result.plot_mode = 8;
    const QStringList parts = item.split('_', Qt::SkipEmptyParts);
    int points_read = 0;
    int points_expected = 0;
    bool found = false;
    bool in_block = false;
    QTextStream stream(&text);
    while (!stream.atEnd()) {
        const QString line = stream.readLine();
        if (line.contains("Wo") && !line.contains("Wo>"))
            continue;
        if (!line.contains("Wo") && parts.size() > 2 && line.contains(parts[0]) &&
            line.contains(parts[2])) {
            result.wel_title = item;
            found = true;
            continue;
        }
        bool ok = false;
        const int count = line.toInt(&ok, 10);
        if (ok && count != 0) {
            if (found) {
                points_expected = count;
                in_block = true;
            }
            continue;
        }
        if (!found || !in_block)
            continue;
        if (points_expected > points_read) {
            take_point(line, result);
            points_read += 1;
        } else {
            found = false;
            in_block = false;
        }
    }
    return result;
}

literal_reading read_bek_literally(const QString& path, const QString& item)
{
    literal_reading result;
    result.plot_mode = 9;
    QFile file(path);
    if (file.open(QIODevice::ReadOnly | QIODevice::Text))
        result = read_bek_literally(file, item);
    return result;
}

literal_reading read_dkl_literally(const QString& path, const QString& item)
{
    literal_reading result;
    result.plot_mode = 8;
    QFile file(path);
    if (file.open(QIODevice::ReadOnly | QIODevice::Text))
        result = read_dkl_literally(file, item);
    return result;
}
