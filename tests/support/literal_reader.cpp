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

struct literal_kind
{
    QString name;
    int plot_mode = -1;
    QList<int> columns;
};

literal_kind kind_of(const QString& file_name, qsizetype tokens)
{
    if (file_name.contains("_B") && tokens == 7)
        return {"B", 1, {0, 10, 11, 13, 14, 23, 24}};
    if (file_name.contains("_B"))
        return {"B", 1, {0, 1, 10, 11, 13, 14, 16, 23, 24}};
    if (file_name.contains("_K") || file_name.contains("_N"))
        return {"KN", 0, {0, 2, 3, 4, 5, 6, 7, 9, 8, 12}};
    if (file_name.contains("_V"))
        return {"V", 3, {0, 10, 5, 6}};
    if (file_name.contains("_T"))
        return {"T", 2, {0, 10, 14, 16, 17, 18, 19, 23, 21, 22}};
    if (file_name.contains("_E"))
        return {"E", 6, {0, 10}};
    if (file_name.contains("_P"))
        return {"P", 5, {0, 12, 20}};
    return {};
}

// Appends one row; answers whether it fits.
bool take_row(const QStringList& tokens, const literal_kind& kind, literal_reading& result)
{
    for (qsizetype i = 0; i < tokens.size(); ++i) {
        if (i == kind.columns.size()) {
            if (kind.name == "B")
                result.log.append(logged(tokens[i]));
            const QByteArray message = (" i outside of bounds " + kind.name).toUtf8();
            result.log.append(logged("void korimo_plot::readFile(QString)", message.constData()));
            return false;
        }
        QString token = tokens[i];
        if (kind.name == "B" && (kind.columns[i] == 23 || kind.columns[i] == 24))
            token = token.toLower();
        result.series[static_cast<std::size_t>(kind.columns[i])].append(token.toDouble());
    }
    return true;
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
    const literal_kind kind = kind_of(name, tokens.size());
    if (!ok || kind.name.isEmpty())
        return true;
    result.plot_mode = kind.plot_mode;
    return take_row(tokens, kind, result);
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

literal_reading read_literally(QIODevice& text, const QString& path)
{
    literal_reading result;
    const QString name = path.mid(path.lastIndexOf('/') + 1);
    const QString ending = path.toUpper().right(3);
    QTextStream stream(&text);
    while (!stream.atEnd()) {
        const QString line = stream.readLine();
        if (ending == "BEK") {
            take_bek_line(line, result);
        } else if (ending == "WEL") {
            if (!take_wel_line(line, name, result))
                break;
        } else if (ending == "DKL") {
            take_dkl_line(line, result);
        }
    }
    return result;
}

literal_reading read_literally(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return read_literally(file, path);
}
