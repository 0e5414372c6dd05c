// How long reading a WEL file takes: against a plain reader, with the debug log off and on, against
// a loop that reads nothing but the numbers, and a row of a short file against one of a long file.

#include "bench/literal_wel_reader.h"
#include "bench/measure.h"
#include "bench/wel_files.h"
#include "plot/reading/text_lines.h"
#include "plot/reading/wel_reader.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>

namespace {

constexpr qsizetype usual_rows = 1'000'000;
constexpr int runs = 5;

struct result
{
    series_store series;
    QString title;
    int plot_mode = -1;
};

void read(const QString& path, result& into)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        std::exit(2);
    text_lines lines(file);
    const wel_target target{into.plot_mode, into.title, into.series};
    read_wel(lines, QStringView(path).sliced(path.lastIndexOf(u'/') + 1), target);
}

double time_of_reading(const QString& path, int times = runs)
{
    return bench::shortest(times, [&] {
        result fresh;
        read(path, fresh);
    });
}

// A file that is read more than once, made when it is first asked for.
class wel_files
{
public:
    QString path(const QByteArray& kind, qsizetype rows) const
    {
        const QByteArray mark = kind == "KN" ? QByteArray("K") : kind;
        const QString name = QStringLiteral("%1_%2.wel").arg(rows).arg(QLatin1StringView(mark));
        const QString path = folder.filePath(name);
        if (!QFile::exists(path))
            bench::write_wel_file(path, rows, kind);
        return path;
    }

private:
    QTemporaryDir folder;
};

// The time that the log takes for as many lines as a file has rows, each with a text of this
// length.
double time_of_lines(qsizetype length)
{
    const QByteArray text(length, '0');
    return bench::shortest(2, [&] {
        for (qsizetype i = 0; i < usual_rows; ++i)
            qDebug("%s", text.constData());
    });
}

qsizetype columns_of(const series_store& series)
{
    return std::ranges::count_if(series, [](const auto& list) { return !list.isEmpty(); });
}

std::vector<bench::figure> reading(const wel_files& files, const QByteArray& kind)
{
    const QString path = files.path(kind, usual_rows);
    result sample;
    read(path, sample);
    const double actual = time_of_reading(path);
    const double literal = bench::shortest(3, [&] {
        series_store series;
        bench::read_wel_literally(path, false, series);
    });
    const double bare = bench::shortest(
        runs, [&] { bench::read_numbers_only(path, columns_of(sample.series), usual_rows); });
    const std::string what = kind.toStdString() + ", 1,000,000 rows";
    return {{what, actual, "the literal reader", literal, 0.16, "1 reading"},
            {what, actual, "a loop over its numbers", bare, 2.0, "1 reading"}};
}

// With the debug level on, and the log in a file.
//
// Both readers pay alike for what the log does with a finished line: formatting and writing it
// takes about half a microsecond. Where a row has few columns that is nearly all: of such kinds the
// whole is only told, and what is judged leaves out the time that as many lines of that length take
// alone, on both sides.
std::vector<bench::figure> reading_with_log(const wel_files& files, const QByteArray& kind,
                                            bool has_few_columns)
{
    const QString path = files.path(kind, usual_rows);
    QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, true);
    const double lines = has_few_columns ? time_of_lines(QFileInfo(path).size() / usual_rows) : 0.0;
    const double actual = time_of_reading(path, 2);
    const double literal = bench::shortest(2, [&] {
        series_store series;
        bench::read_wel_literally(path, true, series);
    });
    QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, false);
    const std::string what = kind.toStdString() + ", 1,000,000 rows, with the log";
    const char* const against = "the literal reader";
    constexpr double limit = 0.35;
    if (!has_few_columns)
        return {{what, actual, against, literal, limit, "1 reading"}};
    return {{what, actual, against, literal, std::nullopt, "1 reading"},
            {what + " but for its lines", actual - lines, against, literal - lines, limit,
             "1 reading"}};
}

// What one reading takes in a process that has read no more than a short file before: the buffers
// of the reader are there, and so is the code.
struct first_reading
{
    double nanoseconds_per_row;
    double bytes_per_row;
};

first_reading in_fresh_process(const QString& path, qsizetype rows, int times)
{
    first_reading best{};
    for (int i = 0; i < times; ++i) {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(),
                      {"--once", path, QString::number(rows)});
        process.waitForFinished(-1);
        const QList<QByteArray> words = process.readAllStandardOutput().split(' ');
        const double time = words.value(0).toDouble() * 1e6 / static_cast<double>(rows);
        const double bytes = words.value(1).toDouble() / static_cast<double>(rows);
        if (i == 0 || time < best.nanoseconds_per_row)
            best = {time, bytes};
    }
    return best;
}

std::vector<bench::figure> growth(const wel_files& files)
{
    const first_reading usual = in_fresh_process(files.path("KN", usual_rows), usual_rows, 10);
    std::vector<bench::figure> figures;
    const auto add = [&](const std::string& what, double actual, double base, const char* unit) {
        figures.push_back(
            {what, actual, "a row of 1000000", base, 1.2, "5 growth", unit, /*is_deviation=*/true});
    };
    for (const qsizetype rows : {10'000, 100'000, 10'000'000}) {
        const QString path = files.path("KN", rows);
        const first_reading read = in_fresh_process(path, rows, rows > usual_rows ? 3 : 10);
        add("time of a row of " + std::to_string(rows), read.nanoseconds_per_row,
            usual.nanoseconds_per_row, "ns");
        add("memory of a row of " + std::to_string(rows), read.bytes_per_row, usual.bytes_per_row,
            "B");
        if (rows > usual_rows)
            QFile::remove(path);
    }
    return figures;
}

// The resident set of this process.
double resident_bytes()
{
    QFile file("/proc/self/status");
    if (!file.open(QIODevice::ReadOnly))
        std::exit(2);
    const QByteArray text = file.readAll();
    const QByteArray kibibytes = text.sliced(text.indexOf("VmRSS:") + 6).trimmed();
    return kibibytes.first(kibibytes.indexOf(' ')).toDouble() * 1024.0;
}

// Reads a short file as often as a file of the usual length has its rows, so that what the process
// has once only does not count.
void read_once(const QString& path, qsizetype rows)
{
    const wel_files files;
    result before;
    read(files.path("KN", 2'000), before);
    const double resident = resident_bytes();
    std::vector<result> documents(
        static_cast<std::size_t>(std::max(usual_rows / rows, qsizetype(1))));
    const auto read_all = [&] {
        for (result& document : documents)
            read(path, document);
    };
    const double time = bench::shortest(1, read_all);
    const double bytes = resident_bytes() - resident;
    const auto files_read = static_cast<double>(documents.size());
    std::printf("%f %f", time / files_read, bytes / files_read);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (const QStringList arguments = QCoreApplication::arguments(); arguments.size() == 4) {
        read_once(arguments[2], arguments[3].toLongLong());
        return 0;
    }
    const QTemporaryDir folder;
    // All that is logged goes to a file.
    if (!std::freopen(qPrintable(folder.filePath("log")), "w", stderr))
        return 2;
    const wel_files files;
    std::vector<bench::figure> figures;
    const auto add = [&](const std::vector<bench::figure>& more) {
        figures.insert(figures.end(), more.begin(), more.end());
    };
    for (const char* kind : {"KN", "B", "T", "V", "P", "E"}) {
        add(reading(files, kind));
        add(reading_with_log(files, kind, std::strchr("VPE", *kind) != nullptr));
    }
    add(growth(files));
    return bench::report(figures) ? 0 : 1;
}
