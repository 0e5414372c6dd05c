#include "plot/korimo_plot.h"

#include "plot/reading/bek_reader.h"
#include "plot/reading/dkl_reader.h"
#include "plot/reading/file_kind.h"
#include "plot/reading/name_listing.h"
#include "plot/reading/result_file.h"
#include "plot/reading/text_lines.h"
#include "plot/reading/wel_reader.h"

#include <new>

namespace {

// Only "/" parts a name from its folder; a backslash may stand in a name.
QStringView file_name_of(QStringView path)
{
    return path.sliced(path.lastIndexOf(u'/') + 1);
}

} // namespace

bool korimo_plot::open_or_report(QFile& file)
{
    const bool opened = open_result_file(file);
    if (!opened)
        report_unreadable_file();
    return opened;
}

void korimo_plot::report_unreadable_file()
{
    show_error(QStringLiteral("Error"), QStringLiteral("Could not open or read file"));
}

// A file that is too large for the memory counts as unreadable. What was read of it is given back
// before anything else is done.
void korimo_plot::read_or_report(QFile& file, const std::function<void(text_lines&)>& read)
{
    const int mode_before = plot_mode;
    try {
        text_lines lines(file);
        read(lines);
        return;
    } catch (const std::bad_alloc&) {
        plot_mode = mode_before;
        wel_title.clear();
        series = {};
    }
    report_unreadable_file();
}

void korimo_plot::readFile(QString filepath)
{
    kennlinien_list.clear();
    QFile file(filepath);
    if (!open_or_report(file))
        return;
    const file_kind kind = file_kind_of(filepath);
    read_or_report(file, [&](text_lines& lines) {
        if (kind == file_kind::wel)
            read_wel(lines, file_name_of(filepath), {plot_mode, wel_title, series});
        else if (kind == file_kind::bek)
            kennlinien_list = list_bek_names(lines);
        else if (kind == file_kind::dkl)
            kennlinien_list = list_dkl_names(lines);
    });
}

// Unlike the other two, this reader says nothing about a file that cannot be opened; that is
// deliberate.
void korimo_plot::read_BEK(QString filepath, QString bek_item)
{
    plot_mode = 9;
    QFile file(filepath);
    if (!open_result_file(file))
        return;
    read_or_report(file, [&](text_lines& lines) { read_bek(lines, bek_item, series); });
}

void korimo_plot::read_DKL(QString filepath, QString dkl_item)
{
    plot_mode = 8;
    QFile file(filepath);
    if (!open_or_report(file))
        return;
    read_or_report(file, [&](text_lines& lines) { read_dkl(lines, dkl_item, wel_title, series); });
}
