#include "tests/end_to_end/tour_pictures.h"

#include <QColor>
#include <QDir>
#include <QTest>

namespace {

// Other versions of the libraries draw letters and corners a little differently.
constexpr int visible_difference = 64;   // of 255
constexpr double tolerated_share = 0.02; // of the pixels

bool is_another(QRgb a, QRgb b)
{
    return qAbs(qRed(a) - qRed(b)) > visible_difference ||
           qAbs(qGreen(a) - qGreen(b)) > visible_difference ||
           qAbs(qBlue(a) - qBlue(b)) > visible_difference;
}

double share_of_others(const QImage& a, const QImage& b)
{
    qint64 others = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            others += is_another(a.pixel(x, y), b.pixel(x, y)) ? 1 : 0;
    }
    return static_cast<double>(others) / (static_cast<double>(a.width()) * a.height());
}

} // namespace

void show_picture(const QString& name, const QImage& picture)
{
    const QString file_name = name + ".png";
    const QString folder = qEnvironmentVariable("KORIMO_TOUR");
    if (!folder.isEmpty()) {
        QVERIFY2(picture.save(QDir(folder).filePath(file_name)), qPrintable(file_name));
        return;
    }
    const QImage kept(QStringLiteral(TOUR "/") + file_name);
    if (kept.size() == picture.size() && share_of_others(kept, picture) <= tolerated_share)
        return;
    picture.save(file_name);
    QFAIL(qPrintable(file_name + " is no longer what the program shows; script/tour renews it"));
}
