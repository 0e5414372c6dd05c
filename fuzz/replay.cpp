// Runs a fuzzer's function once for each file of the folders that are named, without a fuzzer.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

// A vector as long as the file shows the sanitizers every step beyond its end.
bool run(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::vector<std::uint8_t> bytes(std::istreambuf_iterator<char>(file), {});
    if (!file.is_open() || file.bad())
        return false;
    std::fprintf(stderr, "%s\n", path.string().c_str());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    return true;
}

// The number of files run, or -1 if the folder or one of them cannot be read.
int run_all(const char* folder)
{
    std::error_code error;
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        if (!run(entry.path()))
            return -1;
        ++count;
    }
    return error ? -1 : count;
}

} // namespace

int main(int count, char** arguments)
{
    for (int i = 1; i < count; ++i) {
        const int files = run_all(arguments[i]);
        std::printf("%s: %d files\n", arguments[i], files);
        if (files <= 0)
            return 1;
    }
    return count > 1 ? 0 : 1;
}
