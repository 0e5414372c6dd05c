#pragma once

#include <filesystem>
#include <fstream>
#include <string>

namespace example {

// Text file that is written in large pieces, with "\n" line ends on every platform.
class output_file
{
public:
    explicit output_file(const std::filesystem::path& path);

    std::string& text() { return text_; } // what is appended here goes to the file
    void end_line();
    void finish(); // throws std::runtime_error if anything could not be written

private:
    void write();

    std::filesystem::path path_;
    std::ofstream stream_;
    std::string text_;
};

} // namespace example
