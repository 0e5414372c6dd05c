// Writes the inputs that the fuzzers start from: make_seeds FOLDER makes a folder for each target.
#include "tests/support/kind_names.h"
#include "tests/support/random_files.h"
#include "tests/support/read_file.h"
#include "tests/support/write_file.h"

#include <QDir>
#include <QRandomGenerator>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr qsizetype longest = 4000;

class seed_folder
{
public:
    explicit seed_folder(const QString& path)
        : folder(path)
    {
        if (!QDir().mkpath(path))
            qFatal("cannot make %s", qPrintable(path));
    }

    void add(const QByteArray& seed)
    {
        write_file(folder.filePath(QString::number(count++)), seed);
    }

    // With every choice that the first byte is for.
    void add_all(const QByteArray& file, int choices)
    {
        for (int choice = 0; choice < choices; ++choice)
            add(static_cast<char>(choice) + file.first(std::min(file.size(), longest)));
    }

private:
    QDir folder;
    int count = 0;
};

// The files of the examples and of the tests that end so, and made-up ones.
QByteArrayList files_of_kind(const QString& ending, int made_up)
{
    QByteArrayList files;
    for (const char* folder :
         {EXAMPLES_DIR, TESTS_DIR "/wel/samples", TESTS_DIR "/names/samples"}) {
        const QFileInfoList found = QDir(folder).entryInfoList({"*." + ending}, QDir::Files);
        for (const QFileInfo& file : found)
            files.append(read_file(file.filePath()));
    }
    if (files.isEmpty())
        qFatal("no sample file ends with %s", qPrintable(ending));
    QRandomGenerator random(20264);
    for (int i = 0; i < made_up; ++i)
        files.append(random_file("x." + ending, random));
    return files;
}

// As many as there are kinds of element, and one more for a file of no kind.
constexpr int each_kind = 0;

int count_of(int choices)
{
    return choices == each_kind ? static_cast<int>(names_of_every_kind().size()) + 1 : choices;
}

struct seed_rule
{
    const char* target;
    const char* ending;
    int made_up;
    int choices;
};

constexpr seed_rule rules[] = {
    {"fuzz_wel", "wel", 200, each_kind}, {"fuzz_names", "bek", 200, 2},
    {"fuzz_names", "dkl", 200, 2},       {"fuzz_bek", "bek", 300, 3},
    {"fuzz_dkl", "dkl", 300, 3},         {"fuzz_lines", "wel", 100, 2},
    {"fuzz_lines", "dkl", 100, 2},
};

} // namespace

int main(int count, char** arguments)
{
    if (count != 2)
        return EXIT_FAILURE;
    const QDir all(arguments[1]);
    for (const seed_rule& rule : rules) {
        seed_folder seeds(all.filePath(QString(rule.target) + "/" + rule.ending));
        const QByteArrayList files = files_of_kind(rule.ending, rule.made_up);
        for (const QByteArray& file : files)
            seeds.add_all(file, count_of(rule.choices));
    }
    seed_folder numbers(all.filePath("fuzz_number"));
    const QByteArrayList files = files_of_kind("wel", 200);
    for (const QByteArray& file : files) {
        const QByteArrayList lines = file.first(std::min(file.size(), longest)).split('\n');
        for (const QByteArray& line : lines)
            numbers.add(line);
    }
    return EXIT_SUCCESS;
}
