#include "fuzz/support/agree.h"

#include <QDebug>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace {

bool same(double a, double b)
{
    return std::bit_cast<quint64>(a) == std::bit_cast<quint64>(b) ||
           (std::isnan(a) && std::isnan(b));
}

template <class value>
QByteArray shown(const value& each)
{
    QString text;
    QDebug(&text) << each;
    return text.toUtf8();
}

template <class value>
[[noreturn]] void differ(const char* what, const value& read, const value& literal)
{
    std::fprintf(stderr, "DIFFERENCE: %s\n  read:      %s\n  literally: %s\n", what,
                 shown(read).constData(), shown(literal).constData());
    std::abort();
}

} // namespace

void must_agree(const char* what, const QString& read, const QString& literal)
{
    if (read != literal)
        differ(what, read, literal);
}

void must_agree(const char* what, const QStringList& read, const QStringList& literal)
{
    if (read != literal)
        differ(what, read, literal);
}

void must_agree(const char* what, int read, int literal)
{
    if (read != literal)
        differ(what, read, literal);
}

void must_agree(const char* what, double read, double literal)
{
    if (!same(read, literal))
        differ(what, read, literal);
}

void must_agree(const char* what, const QList<double>& read, const QList<double>& literal)
{
    if (!std::ranges::equal(read, literal, same))
        differ(what, read, literal);
}

void must_agree(const series_store& read, const series_store& literal)
{
    for (std::size_t i = 0; i < read.size(); ++i) {
        const std::string name = "series " + std::to_string(i);
        must_agree(name.c_str(), read[i], literal[i]);
    }
}
