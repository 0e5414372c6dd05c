#include "tests/support/literal_reader.h"

#include <QDebug>
#include <QFile>
#include <QTextStream>

namespace {

template <class... values>
QString logged(const values&... each)
{
    QString text;
    QDebug stream(&text);
    (stream << ... << each);
    return text.trimmed();
}

// One line of a WEL file; answers whether reading goes on.
bool take_wel_line(const QString& line, const QString& name, literal_reading& result)
{
    if (line.contains("Ganglinien")) {
        result.wel_title = line;
        return true;
    }
    const QStringList tokens = line.split(' ', Qt::SkipEmptyParts);
    bool ok = true;
    for (const QString& token : tokens) {
        token.toDouble(&ok);
        if (!ok)
            break;
    }
    result.log.append(logged(tokens, ok));
    if (!ok)
        return true;

    QString kind;
    QList<int> columns;
    if (name.contains("_B")) {
        kind = "B";
        result.plot_mode = 1;
        if (tokens.size() == 7)
            columns = {0, 10, 11, 13, 14, 23, 24};
        else
            columns = {0, 1, 10, 11, 13, 14, 16, 23, 24};
    } else if (name.contains("_K") || name.contains("_N")) {
        kind = "KN";
        result.plot_mode = 0;
        columns = {0, 2, 3, 4, 5, 6, 7, 9, 8, 12};
    } else if (name.contains("_V")) {
        kind = "V";
        result.plot_mode = 3;
        columns = {0, 10, 5, 6};
    } else if (name.contains("_T")) {
        kind = "T";
        result.plot_mode = 2;
        columns = {0, 10, 14, 16, 17, 18, 19, 23, 21, 22};
    } else if (name.contains("_E")) {
        kind = "E";
        result.plot_mode = 6;
        columns = {0, 10};
    } else if (name.contains("_P")) {
        kind = "P";
        result.plot_mode = 5;
        columns = {0, 12, 20};
    } else {
        return true;
    }

    for (qsizetype i = 0; i < tokens.size(); ++i) {
        if (i == columns.size()) {
            if (kind == "B")
                result.log.append(logged(tokens[i]));
            const QByteArray message = (" i outside of bounds " + kind).toUtf8();
            result.log.append(logged("void korimo_plot::readFile(QString)", message.constData()));
            return false;
        }
        QString token = tokens[i];
        if (kind == "B" && (columns[i] == 23 || columns[i] == 24))
            token = token.toLower();
        result.series[static_cast<std::size_t>(columns[i])].append(token.toDouble());
    }
    return true;
}

void take_bek_line(const QString& line, literal_reading& result)
{
    if (line.mid(3, 1).toUpper() == "B" && line.mid(4, 3) != "Bez" &&
        !line.mid(37, 26).trimmed().isEmpty())
        result.kennlinien_list.append(line.mid(3, 5));
}

void take_dkl_line(const QString& line, literal_reading& result)
{
    if (line.contains("Wo") && !line.contains("Wo>"))
        return;
    if (!line.contains("km"))
        return;
    QStringList tokens = line.split(' ', Qt::SkipEmptyParts);
    tokens.removeAll("GOK");
    tokens.removeAll("=");
    tokens.removeAll("GW");
    tokens.removeAll("müNHN");
    if (tokens.size() < 4)
        result.log.append(logged("dkl header line with too few words: ", line));
    else
        result.kennlinien_list.append(tokens[3] + "_" + tokens[0] + "_" + tokens[1]);
}

} // namespace

literal_reading read_literally(const QString& path)
{
    literal_reading result;
    const QString name = path.mid(path.lastIndexOf('/') + 1);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return result;
    QTextStream stream(&file);
    while (!stream.atEnd()) {
        const QString line = stream.readLine();
        if (path.toUpper().endsWith("BEK")) {
            take_bek_line(line, result);
        } else if (path.toUpper().endsWith("WEL")) {
            if (!take_wel_line(line, name, result))
                break;
        } else if (path.toUpper().endsWith("DKL")) {
            take_dkl_line(line, result);
        }
    }
    return result;
}
