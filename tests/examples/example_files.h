#pragma once

#include "tests/support/read_file.h"

#include <QDir>
#include <QProcess>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>

// The files are read here by rules of the tests alone, so that an error of the program that writes
// them cannot hide behind its own code.
namespace example_files {

struct wel_table
{
    QStringList lines;
    QStringList heading;
    QStringList units;
    QList<QStringList> rows;
};

struct run_result
{
    int exit_code;
    QString errors;
};

inline run_result run_program(const QStringList& arguments)
{
    QProcess program;
    program.start(QStringLiteral(MAKE_EXAMPLES), arguments);
    const bool ended =
        program.waitForFinished(120000) && program.exitStatus() == QProcess::NormalExit;
    return {ended ? program.exitCode() : -1, QString::fromUtf8(program.readAllStandardError())};
}

inline QString example(const QString& name)
{
    return QDir(QStringLiteral(EXAMPLES_DIR)).filePath(name);
}

inline QString wel_path(const QString& element)
{
    return example("Erlenbach_" + element + ".wel");
}

inline QStringList lines_of(const QString& path)
{
    QStringList lines = read_text(path).split('\n');
    lines.removeLast(); // what follows the last line end
    return lines;
}

inline QStringList words_of(const QString& line)
{
    return line.split(' ', Qt::SkipEmptyParts);
}

inline wel_table read_wel(const QString& path)
{
    wel_table table;
    table.lines = lines_of(path);
    table.heading = words_of(table.lines.value(1));
    table.units = words_of(table.lines.value(2));
    const auto lines = table.lines.mid(3);
    for (const QString& line : lines) {
        table.rows.append(words_of(line));
    }
    return table;
}

// Texts of one column, named "element.heading".
inline QStringList column(const QString& name)
{
    const wel_table table = read_wel(wel_path(name.section('.', 0, 0)));
    const qsizetype index = table.heading.indexOf(name.section('.', 1, 1));
    QStringList texts;
    for (const QStringList& row : table.rows) {
        texts.append(row.value(index));
    }
    return texts;
}

inline QList<double> numbers(const QString& column_name)
{
    QList<double> values;
    const auto texts = column(column_name);
    for (const QString& text : texts) {
        bool ok = false;
        const double value = text.toDouble(&ok);
        values.append(ok ? value : std::nan(""));
    }
    return values;
}

inline QList<double> sum_of(const QStringList& column_names)
{
    QList<double> sum = numbers(column_names.value(0));
    const auto names = column_names.mid(1);
    for (const QString& name : names) {
        const QList<double> values = numbers(name);
        std::transform(sum.begin(), sum.end(), values.begin(), sum.begin(), std::plus<>());
    }
    return sum;
}

inline double total(const QList<double>& values)
{
    return std::accumulate(values.begin(), values.end(), 0.0);
}

inline double greatest(const QList<double>& values)
{
    return *std::max_element(values.begin(), values.end());
}

inline qsizetype peak_row(const QList<double>& values)
{
    return std::max_element(values.begin(), values.end()) - values.begin();
}

constexpr qsizetype event_rows = 72 * 4 + 1;

} // namespace example_files
