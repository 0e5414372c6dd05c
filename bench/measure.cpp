#include "bench/measure.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace bench {

namespace {

const char* verdict(const figure& each)
{
    if (!each.is_measured())
        return "not measured";
    if (!each.limit)
        return "told";
    return each.keeps_limit() ? "ok" : "over";
}

// What was not measured must not look like a good figure.
std::string text_of(double value, const std::string& unit)
{
    if (!(value > 0.0))
        return "-";
    char text[64];
    std::snprintf(text, sizeof text, "%.2f%s%s", value, unit.empty() ? "" : " ", unit.c_str());
    return text;
}

std::string ratio(const figure& each)
{
    return text_of(each.is_measured() ? each.ratio() : 0.0, "");
}

std::string limit(const figure& each)
{
    return text_of(each.limit.value_or(0.0), "");
}

void print(const figure& each)
{
    std::printf("%-28s %12s  %6s of %-24s %12s  limit %5s  %s\n", each.what.c_str(),
                text_of(each.amount, each.unit).c_str(), ratio(each).c_str(), each.against.c_str(),
                text_of(each.base, each.unit).c_str(), limit(each).c_str(), verdict(each));
}

void append(std::FILE* results, const figure& each)
{
    std::fprintf(results, "%s\t%s\t%s\t%s, %s\t%s\t%s\t%s\n", each.goal.c_str(), each.what.c_str(),
                 text_of(each.amount, each.unit).c_str(), text_of(each.base, each.unit).c_str(),
                 each.against.c_str(), ratio(each).c_str(), limit(each).c_str(), verdict(each));
}

// Without the file nothing would be known of these figures in the end: that must not go unnoticed.
bool append_all(const std::vector<figure>& figures)
{
    const char* const path = std::getenv("KORIMO_BENCH_RESULTS");
    if (!path)
        return true;
    std::FILE* const results = std::fopen(path, "a");
    if (!results)
        return false;
    for (const figure& each : figures)
        append(results, each);
    return std::fclose(results) == 0;
}

} // namespace

bool report(const std::vector<figure>& figures)
{
    for (const figure& each : figures)
        print(each);
    return append_all(figures) && std::ranges::all_of(figures, &figure::keeps_limit);
}

} // namespace bench
