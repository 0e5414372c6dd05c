#include "plot/reading/file_kind.h"

#include <QString>

namespace {

struct ending
{
    QLatin1StringView letters;
    file_kind kind;
};

constexpr ending endings[] = {
    {QLatin1StringView("WEL"), file_kind::wel},
    {QLatin1StringView("BEK"), file_kind::bek},
    {QLatin1StringView("DKL"), file_kind::dkl},
};

} // namespace

file_kind file_kind_of(QStringView path)
{
    const QString upper = path.toString().toUpper();
    for (const ending& each : endings) {
        if (upper.endsWith(each.letters))
            return each.kind;
    }
    return file_kind::none;
}
