#pragma once

#include <QBuffer>

#include <algorithm>

/// A file in memory, open as the readers want it or, for the literal readers, in text mode.
class open_buffer : public QBuffer
{
public:
    explicit open_buffer(const QByteArray& file, OpenMode mode = ReadOnly)
    {
        setData(file);
        open(mode);
    }
};

inline constexpr QIODevice::OpenMode text_mode = QIODevice::ReadOnly | QIODevice::Text;

/// A file that gives at most `piece` bytes at a time, so that a short one has many borders between
/// what is read in one go and in the next.
class piecewise_file : public QIODevice
{
public:
    piecewise_file(const QByteArray& file, qint64 piece)
        : file(file)
        , piece(piece)
    {
        open(ReadOnly | Unbuffered);
    }

protected:
    qint64 readData(char* data, qint64 most) override
    {
        const qint64 count = std::min({most, piece, file.size() - given});
        std::copy_n(file.constData() + given, count, data);
        given += count;
        return count;
    }
    qint64 writeData(const char*, qint64) override { return -1; }
    bool isSequential() const override { return true; }

private:
    QByteArray file;
    qint64 piece;
    qint64 given = 0;
};
