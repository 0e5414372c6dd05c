#include "plot/reading/name_listing.h"

#include "plot/reading/bek_fields.h"
#include "plot/reading/debug_log.h"
#include "plot/reading/dkl_lines.h"
#include "plot/reading/line_text.h"
#include "plot/reading/text_lines.h"
#include "plot/reading/tokens.h"

#include <QDebug>

namespace {

// Words of a header line that are no part of the curve's name.
constexpr QStringView filler_words[] = {u"GOK", u"=", u"GW", u"müNHN"};

template <class text_view>
bool names_a_basin(text_view line)
{
    const text_view letter = field(line, bek_first_letter);
    return (letter == u"B" || letter == u"b") && field(line, bek_heading_word) != u"Bez" &&
           !field(line, bek_values).trimmed().isEmpty();
}

bool names_a_curve(QByteArrayView line)
{
    return !is_dkl_heading(line) && has(line, "km");
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
        with_text_of(bytes, [&](auto line) {
            if (names_a_basin(line))
                names.append(field(line, bek_identifier).toString());
        });
    }
    return names;
}

QStringList list_dkl_names(text_lines& lines)
{
    QStringList names;
    QByteArrayView bytes;
    while (lines.next(bytes)) {
        if (!names_a_curve(bytes))
            continue;
        const QString line = decoded(bytes);
        const QStringList words = header_words(line);
        if (words.size() >= 4) {
            names.append(words[3] + u'_' + words[0] + u'_' + words[1]);
        } else if (debug_log_is_on()) {
            ask_for_room_to_quote(bytes);
            qDebug() << "dkl header line with too few words: " << line;
        }
    }
    return names;
}
