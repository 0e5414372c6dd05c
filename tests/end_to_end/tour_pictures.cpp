#include "tests/end_to_end/tour_pictures.h"

#include <QColor>
#include <QDir>
#include <QPainter>
#include <QTest>

namespace {

// Other versions of the libraries draw letters and corners a little differently, and a text cursor
// blinks. A curve that is missing, or another number in a box, shows in the tile where it is.
constexpr int visible_difference = 64; // of 255
constexpr int tile = 40;               // pixels wide and high
constexpr int tolerated = tile * tile / 10;

bool is_another(QRgb a, QRgb b)
{
    return qAbs(qRed(a) - qRed(b)) > visible_difference ||
           qAbs(qGreen(a) - qGreen(b)) > visible_difference ||
           qAbs(qBlue(a) - qBlue(b)) > visible_difference;
}

int others_in(const QRect& area, const QImage& a, const QImage& b)
{
    int others = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            others += is_another(a.pixel(x, y), b.pixel(x, y)) ? 1 : 0;
    }
    return others;
}

// In the tile that differs most.
int most_others(const QImage& a, const QImage& b)
{
    int most = 0;
    for (int y = 0; y < a.height(); y += tile) {
        for (int x = 0; x < a.width(); x += tile)
            most = qMax(most, others_in(QRect(x, y, tile, tile) & a.rect(), a, b));
    }
    return most;
}

QImage without(const QRect& changing, QImage picture)
{
    picture.setDevicePixelRatio(1.0); // a screenshot has that of its screen
    QPainter(&picture).fillRect(changing, Qt::black);
    return picture;
}

} // namespace

void show_picture(const QString& name, const QImage& picture, const QRect& changing)
{
    const QString file_name = name + ".png";
    const QString folder = qEnvironmentVariable("KORIMO_TOUR");
    if (!folder.isEmpty()) {
        QVERIFY2(picture.save(QDir(folder).filePath(file_name)), qPrintable(file_name));
        return;
    }
    const QImage kept(QStringLiteral(TOUR "/") + file_name);
    const bool same_size = kept.size() == picture.size();
    const int others =
        same_size ? most_others(without(changing, kept), without(changing, picture)) : -1;
    if (same_size && others <= tolerated)
        return;
    picture.save(file_name);
    QFAIL(qPrintable(file_name + " is no longer what the program shows (" +
                     QString::number(others) + " pixels); script/tour renews it"));
}
