#include "plot/reading/row_log.h"

#include "plot/reading/debug_log.h"
#include "plot/reading/text_lines.h"
#include "plot/reading/tokens.h"

#include <QByteArray>
#include <QDebug>

#include <algorithm>

namespace {

// Whether the log quotes a text of these bytes as it stands: ASCII without controls, quotes and
// backslashes. Without an early way out, several bytes are looked at in one step.
bool is_quoted_unchanged(QByteArrayView bytes)
{
    bool all = true;
    for (const char c : bytes)
        all &= (c >= ' ') & (c <= '~') & (c != '"') & (c != '\\');
    return all;
}

char* put(QByteArrayView text, char* where)
{
    return std::ranges::copy(text, where).out;
}

// What a stream writes of the list of tokens and `ok`, put together without its many small steps.
QByteArray usual_text(QByteArrayView line, bool ok)
{
    // At most every second byte is a token, and each gets two quotes, a comma and a blank.
    QByteArray text(3 * line.size() + 16, Qt::Uninitialized);
    char* end = put("QList(", text.data());
    const char* separator = "\"";
    for (skip_blanks(line); !line.isEmpty(); skip_blanks(line)) {
        end = put(separator, end);
        end = put(take_token(line), end);
        *end++ = '"';
        separator = ", \"";
    }
    end = put(ok ? ") true" : ") false", end);
    text.truncate(end - text.data());
    return text;
}

} // namespace

// A file has millions of rows, and streaming one into the log takes longer than reading it.
void log_row(QByteArrayView line, bool ok)
{
    if (!debug_log_is_on())
        return;
    if (is_quoted_unchanged(line)) {
        const QByteArray text = usual_text(line, ok);
        ask_for_room_to_log(text.size());
        qDebug().noquote() << QLatin1StringView(text);
    } else {
        ask_for_room_to_quote(line);
        qDebug() << tokens_of(decoded(line)) << ok;
    }
}
