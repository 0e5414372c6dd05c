#include "bench/measure.h"

#include <algorithm>
#include <cstdio>

namespace bench {

bool report(const std::vector<figure>& figures)
{
    for (const figure& each : figures) {
        std::printf("%-28s %9.2f ms  %6.2f of %-24s %9.2f ms  limit %5.2f  %s\n", each.what.c_str(),
                    each.milliseconds, each.ratio(), each.against.c_str(), each.base_milliseconds,
                    each.limit, each.ratio() <= each.limit ? "ok" : "TOO SLOW");
    }
    return std::ranges::all_of(figures,
                               [](const figure& each) { return each.ratio() <= each.limit; });
}

} // namespace bench
