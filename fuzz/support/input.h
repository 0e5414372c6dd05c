#pragma once

#include <QByteArray>
#include <QStringConverter>

#include <algorithm>
#include <cstddef>
#include <cstdint>

/// What a fuzzer made up: its first byte chooses between variants of the run, the rest is the file.
struct fuzz_input
{
    fuzz_input(const std::uint8_t* data, std::size_t size)
        : choice(size > 0 ? data[0] : 0)
    {
        if (size > 1)
            file.assign(reinterpret_cast<const char*>(data) + 1,
                        reinterpret_cast<const char*>(data) + std::min(size, 1 + stream_block));
    }

    /// One of `values`, as a copy: these may be gone at once.
    template <class list>
    auto any_of(const list& values) const
    {
        return values[static_cast<decltype(values.size())>(choice) % values.size()];
    }

    /// What a text stream reads in one go. It may end a line there; the readers do not.
    static constexpr std::size_t stream_block = 16'384;

    std::uint8_t choice;
    QByteArray file;
};

/// What a fuzzer's function answers for an input that is read, but not compared.
constexpr int is_not_compared = 0;

/// Whether a file is UTF-16 or UTF-32 with half a pair of surrogates in it. Text streams keep such
/// a half as it is, while UTF-8, in which the readers work, cannot write it.
inline bool has_half_a_pair(const QByteArray& file)
{
    const auto encoding = QStringConverter::encodingForData(file);
    if (!encoding || *encoding == QStringConverter::Utf8)
        return false;
    QStringDecoder decoder(*encoding);
    const QString text = decoder.decode(file);
    return !QString(text).remove(u'\r').isValidUtf16() || !text.isValidUtf16();
}
