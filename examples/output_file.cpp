#include "examples/output_file.h"

#include <stdexcept>

namespace example {

namespace {

constexpr std::size_t piece = 1 << 18;

} // namespace

output_file::output_file(const std::filesystem::path& path)
    : path_(path)
    , stream_(path, std::ios::binary | std::ios::trunc)
{
    text_.reserve(piece + 1024);
}

void output_file::end_line()
{
    text_ += '\n';
    if (text_.size() >= piece) {
        write();
    }
}

void output_file::finish()
{
    write();
    stream_.close();
    if (!stream_) {
        throw std::runtime_error("cannot write " + path_.string());
    }
}

void output_file::write()
{
    stream_.write(text_.data(), static_cast<std::streamsize>(text_.size()));
    text_.clear();
}

} // namespace example
