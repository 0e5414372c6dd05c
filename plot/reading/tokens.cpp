#include "plot/reading/tokens.h"

#include "plot/reading/text_lines.h"

bool token_cursor::next(QByteArrayView& token)
{
    qsizetype first = 0;
    while (first < rest.size() && rest[first] == ' ')
        ++first;
    qsizetype last = first;
    while (last < rest.size() && rest[last] != ' ')
        ++last;
    token = rest.sliced(first, last - first);
    rest = rest.sliced(last);
    return !token.isEmpty();
}

QStringList tokens_of(QByteArrayView line)
{
    return decoded(line).split(u' ', Qt::SkipEmptyParts);
}
