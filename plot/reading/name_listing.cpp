#include "plot/reading/name_listing.h"

#include "plot/reading/bek_fields.h"
#include "plot/reading/debug_log.h"
#include "plot/reading/dkl_lines.h"
#include "plot/reading/text_lines.h"
#include "plot/reading/tokens.h"

#include <QDebug>

namespace {

// Words of a header line that are no part of the curve's name.
constexpr QStringView filler_words[] = {u"GOK", u"=", u"GW", u"müNHN"};

bool names_a_basin(const QString& line)
{
    const QStringView letter = field(line, bek_first_letter);
    return letter.compare(u"B", Qt::CaseInsensitive) == 0 &&
           field(line, bek_heading_word) != u"Bez" && !field(line, bek_values).trimmed().isEmpty();
}

bool names_a_curve(const QString& line)
{
    return !is_dkl_heading(line) && line.contains(u"km");
}

QStringList header_words(const QString& line)
{
    QStringList words = tokens_of(line);
    for (const QStringView filler : filler_words)
        words.removeAll(filler);
    return words;
}

} // namespace

QStringList list_bek_names(text_lines& lines)
{
    QStringList names;
    QByteArrayView bytes;
    while (lines.next(bytes)) {
        const QString line = decoded(bytes);
        if (names_a_basin(line))
            names.append(field(line, bek_identifier).toString());
    }
    return names;
}

QStringList list_dkl_names(text_lines& lines)
{
    QStringList names;
    QByteArrayView bytes;
    while (lines.next(bytes)) {
        const QString line = decoded(bytes);
        if (!names_a_curve(line))
            continue;
        const QStringList words = header_words(line);
        if (words.size() >= 4)
            names.append(words[3] + u'_' + words[0] + u'_' + words[1]);
        else if (debug_log_is_on())
            qDebug() << "dkl header line with too few words: " << line;
    }
    return names;
}
