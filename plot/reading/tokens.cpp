#include "plot/reading/tokens.h"

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

QStringList tokens_of(const QString& line)
{
    return line.split(u' ', Qt::SkipEmptyParts);
}
