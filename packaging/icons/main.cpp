// draw_icon --png SVG FOLDER SIZE…: a picture SIZE.png of each size.
// draw_icon --ico SVG ICO: the icon file of the program.
// draw_icon --check SVG ICO: whether that file is what --ico would write.

#include "packaging/icons/icon_file.h"

#include <QFile>
#include <QGuiApplication>

#include <cstdio>

namespace {

bool write_pictures(const QStringList& words)
{
    const QStringList sizes = words.mid(2);
    bool all_written = !sizes.isEmpty();
    for (const QString& size : sizes) {
        const QImage picture = drawn_icon(words[0], size.toInt());
        all_written &= picture.save(words[1] + QLatin1Char('/') + size + QStringLiteral(".png"));
    }
    return all_written;
}

QByteArray icon_file(const QString& svg)
{
    QList<QImage> pictures;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        pictures.append(drawn_icon(svg, size));
    return ico_of(pictures);
}

bool write_icon_file(const QStringList& words)
{
    QFile file(words.value(1));
    const QByteArray bytes = icon_file(words.value(0));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

bool check_icon_file(const QStringList& words)
{
    QFile file(words.value(1));
    return file.open(QIODevice::ReadOnly) && file.readAll() == icon_file(words.value(0));
}

struct command
{
    const char* name;
    bool (*run)(const QStringList& words);
};

constexpr command commands[] = {
    {"--png", write_pictures},
    {"--ico", write_icon_file},
    {"--check", check_icon_file},
};

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList words = QGuiApplication::arguments();
    for (const command& each : commands) {
        if (words.value(1) == QLatin1StringView(each.name))
            return each.run(words.mid(2)) ? 0 : 1;
    }
    std::fputs("usage: draw_icon --png SVG FOLDER SIZE… | --ico SVG ICO | --check SVG ICO\n",
               stderr);
    return 2;
}
