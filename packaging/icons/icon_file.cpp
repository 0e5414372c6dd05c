#include "packaging/icons/icon_file.h"

#include <QBuffer>
#include <QDataStream>
#include <QImageWriter>
#include <QPainter>
#include <QSvgRenderer>

namespace {

constexpr int directory_size = 6;
constexpr int entry_size = 16;
constexpr int offset_in_entry = 12; ///< of the place where the picture begins in the file

// A mask of one bit for each pixel ends the picture. Qt leaves what fills its rows up as it was in
// the memory, and the same drawing would give other bytes each time.
void clear_row_ends(QByteArray& file, qsizetype size)
{
    const qsizetype used = (size + 7) / 8;
    const qsizetype row = (size + 31) / 32 * 4;
    for (qsizetype end = file.size(); end > file.size() - size * row; end -= row) {
        for (qsizetype i = end - row + used; i < end; ++i)
            file[i] = '\0';
    }
}

// Qt writes icon files of one picture: a directory, its entry and the picture.
QByteArray file_of_one(const QImage& picture)
{
    QBuffer file;
    QImageWriter(&file, "ico").write(picture);
    QByteArray bytes = file.data();
    clear_row_ends(bytes, picture.width());
    return bytes;
}

} // namespace

QImage drawn_icon(const QString& svg_file, int size)
{
    QSvgRenderer drawing(svg_file);
    if (!drawing.isValid())
        return {};
    QImage picture(size, size, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawing.render(&painter);
    return picture;
}

QByteArray ico_of(const QList<QImage>& pictures)
{
    QByteArray entries;
    QByteArray data;
    const qsizetype data_at = directory_size + entry_size * pictures.size();
    for (const QImage& picture : pictures) {
        const QByteArray one = file_of_one(picture);
        QByteArray offset;
        QDataStream out(&offset, QIODevice::WriteOnly);
        out.setByteOrder(QDataStream::LittleEndian);
        out << quint32(data_at + data.size());
        entries += one.mid(directory_size, offset_in_entry) + offset;
        data += one.mid(directory_size + entry_size);
    }
    const auto count = static_cast<char>(pictures.size());
    return QByteArray("\0\0\1\0", 4) + count + '\0' + entries + data;
}
