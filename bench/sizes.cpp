// How much time and memory the viewer needs for files far larger than any real one: each in a
// process of its own, from its start to its end, less what the same process needs without a file.
// What the viewer shows in the end must be right, too.

#include "bench/child_process.h"
#include "bench/wel_files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <functional>

namespace {

constexpr qint64 five_gb = 5'000'000'000;
constexpr qint64 hundred_mb = 100'000'000;
constexpr qsizetype rows_of_five_gb = 45'900'000;
constexpr int files = 10'000;
constexpr int names = 100'000;
constexpr int many_curves = 10'000;
constexpr int points_of_basin = 7'800;     // 64 bytes each
constexpr int points_of_throttle = 45'000; // 11 bytes each
constexpr char short_row[] = "0 1 2 3 4 5 6 7 8 9\n";

// A kind of file, how it is made, and what it may take at most.
struct size
{
    const char* what;
    const char* name;
    std::function<void(const QString& path)> make;
    double megabytes;  ///< limit of the memory
    double seconds;    ///< limit of the time
    std::string shown; ///< what one_size tells of the window
    bool log = false;  ///< with the debug log on
};

// Writes `start`, then `piece` until the file has so many bytes, then `end`.
void write_repeated(const QString& path, const QByteArray& start, const QByteArray& piece,
                    qint64 bytes, const QByteArray& end = "\n")
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("a large file cannot be written");
    file.write(start);
    const QByteArray block = piece.repeated(1'000'000 / piece.size() + 1);
    for (qint64 size = start.size(); size < bytes; size += block.size())
        file.write(block);
    if (file.write(end) != end.size() || !file.flush())
        qFatal("a large file cannot be written");
}

std::function<void(const QString&)> repeated(const QByteArray& start, const QByteArray& piece,
                                             qint64 bytes, const QByteArray& end = "\n")
{
    return [=](const QString& path) { write_repeated(path, start, piece, bytes, end); };
}

std::function<void(const QString&)> rows(qsizetype count)
{
    return [=](const QString& path) { bench::write_wel_file(path, count, "KN"); };
}

// Zeros that take no room on the disk.
void make_hole(const QString& path)
{
    write_repeated(path, QByteArray("Ganglinien\n") + short_row, " ", 0);
    if (!QFile::resize(path, five_gb))
        qFatal("a large file cannot be written");
}

void make_many_files(const QString& path)
{
    QDir().mkpath(path);
    for (int i = 0; i < files; ++i)
        write_repeated(path + QString("/Ergebnis_%1_K.wel").arg(i), short_row, " ", 0);
}

QByteArray padded(int value)
{
    return QByteArray::number(value).rightJustified(4, '0');
}

// Five characters are too few for as many names: some occur more than once.
QByteArray basin(int number, int points)
{
    const QByteArray values = " 101.50  0.50  0.00   0.00\n";
    return "   B" + padded(number % 10'000) + QByteArray(29, ' ') + values +
           (QByteArray(37, ' ') + values).repeated(points - 1);
}

QByteArray throttle(int number, int points)
{
    const QByteArray name = QByteArray::number(number);
    return " " + name + " Auslass" + name + " km " + name + ".5\n Wo Qd\n " +
           QByteArray::number(points) + "\n" + QByteArray(" 101.5 1.0\n").repeated(points);
}

// So many curves with so many points each.
std::function<void(const QString&)> curves(QByteArray (*curve)(int number, int points), int count,
                                           int points)
{
    return [=](const QString& path) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("a large file cannot be written");
        for (int i = 0; i < count; ++i)
            file.write(curve(i, points));
        if (!file.flush())
            qFatal("a large file cannot be written");
    };
}

// What the window shows of a WEL file with so many rows for both curves of a node.
std::string node_of(qsizetype count)
{
    const std::string points = std::to_string(count) + " points";
    return "1 files, 0 names, " + points + ", " + points;
}

QList<size> sizes()
{
    const QByteArray title = QByteArray("Ganglinien Knoten K1\n") + short_row;
    const double series_of_rows = 80.0; // bytes: ten columns
    const std::string nothing =
        "box: Could not open or read file\n"
        "box: An Error occured and an invalid plot mode was triggered. Please check the "
        "selected WEL-Files formatting as well as its name!\n1 files, 0 names";
    return {
        {"10,000,000 rows", "x_K.wel", rows(10'000'000), 1.6 * series_of_rows * 10, 20,
         node_of(10'000'000)},
        {"the same with the log", "x_K.wel", rows(10'000'000), 1.6 * series_of_rows * 10, 120,
         node_of(10'000'000), true},
        {"5 GB of rows", "x_K.wel", rows(rows_of_five_gb), 1.6 * series_of_rows * 45.9, 120,
         node_of(rows_of_five_gb)},
        {"5 GB without a row", "x_K.wel", repeated(title, "Text und keine Zahl\n", five_gb), 20,
         240, node_of(1)},
        {"5 GB in one line", "x_K.wel", make_hole, 700, 20, nothing},
        {"100 MB, one token", "x_K.wel", repeated(title, "1234567890", hundred_mb), 1000, 10,
         node_of(1)},
        {"100 MB, many tokens", "x_K.wel", repeated(title, "1 ", hundred_mb), 1500, 10, node_of(2)},
        {"the same with the log", "x_K.wel", repeated(title, "1 ", hundred_mb), 3000, 20,
         node_of(2), true},
        {"100 MB, no line end", "x_K.wel", repeated(title, "1 ", hundred_mb, ""), 1500, 10,
         node_of(2)},
        {"a title of 100 MB", "x_K.wel",
         repeated("", "Ganglinien ", hundred_mb, QByteArray("\n") + short_row), 1000, 10,
         node_of(1)},
        {"100 MB in one line, BEK", "x.bek", repeated("", "   B1    101.50", hundred_mb), 700, 10,
         "1 files, 1 names, 1 points, 1 points"},
        {"100 MB in one line, DKL", "x.dkl", repeated("", " 1 Auslass1 km 1.5", hundred_mb), 4000,
         20, "1 files, 1 names, 0 points"},
        {"a name of 100 MB, DKL", "x.dkl",
         repeated(" 1 ", "Auslass", hundred_mb, " km 1.5\n Wo Qd\n 2\n 101.5 1\n 102 2\n"), 4000,
         20, "1 files, 1 names, 2 points"},
        {"5 GB of basins", "x.bek", curves(basin, many_curves, points_of_basin), 100, 120,
         "1 files, 10000 names, 7800 points, 7800 points"},
        {"5 GB of curves", "x.dkl", curves(throttle, many_curves, points_of_throttle), 100, 240,
         "1 files, 10000 names, 45000 points"},
        {"100,000 names, BEK", "x.bek", curves(basin, names, 1), 100, 10,
         "1 files, 100000 names, 10 points, 10 points"},
        {"100,000 names, DKL", "x.dkl", curves(throttle, names, 2), 100, 10,
         "1 files, 100000 names, 2 points"},
        {"10,000 files", "files", make_many_files, 100, 10,
         "10000 files, 0 names, 1 points, 1 points"},
    };
}

// Runs the viewer with a file, or without one.
bench::ended_process run(const std::string& path, bool log)
{
    const std::string rules = log ? "QT_LOGGING_RULES=*=true" : "QT_LOGGING_RULES=*=false";
    return bench::run_process({"sh", "-c", R"(exec env "$0" "$@" 2>/dev/null)", rules,
                               bench::built_beside("one_size"), path});
}

struct result
{
    double seconds;
    double megabytes;
    const char* verdict;
};

// Less what the process needs without a file.
result measure(const size& each, const bench::ended_process& without_file)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(each.name);
    each.make(path);
    const bench::ended_process process = run(path.toStdString(), each.log);
    const double seconds = (process.milliseconds - without_file.milliseconds) / 1000;
    const double megabytes = process.peak_megabytes - without_file.peak_megabytes;
    const bool is_over = seconds > each.seconds || megabytes > each.megabytes;
    const bool is_right = process.output == each.shown + "\n";
    if (!is_right)
        std::printf("shown: %swanted: %s\n", process.output.c_str(), each.shown.c_str());
    return {seconds, megabytes,
            !process.succeeded ? "failed"
            : !is_right        ? "wrong"
            : is_over          ? "over"
                               : "ok"};
}

// Prints a line for the size and answers whether all is well.
bool is_well(const size& each, const bench::ended_process& without_file)
{
    const result found = measure(each, without_file);
    std::printf("%-26s %8.2f s  limit %4.0f  %8.1f MB  limit %5.0f  %s\n", each.what, found.seconds,
                each.seconds, found.megabytes, each.megabytes, found.verdict);
    std::fflush(stdout);
    return std::string_view(found.verdict) == "ok";
}

} // namespace

int main()
{
    const bench::ended_process without_file = run("", false);
    if (!without_file.succeeded)
        qFatal("the viewer does not run");
    bool all_are_well = true;
    const auto all = sizes();
    for (const size& each : all)
        all_are_well = is_well(each, without_file) && all_are_well;
    return all_are_well ? 0 : 1;
}
