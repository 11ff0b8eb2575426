// Feeds a fuzz target with files, in place of libFuzzer: fuzz_NAME FILE|FOLDER...
// Whatever it finds ends the process.

#include "fuzz/check.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

std::vector<std::filesystem::path> filesOf(const std::filesystem::path& path)
{
    std::vector<std::filesystem::path> files;
    if (!is_directory(path))
        return {path};
    for (const auto& entry : std::filesystem::directory_iterator(path))
        files.push_back(entry.path());
    std::ranges::sort(files);
    return files;
}

} // namespace

int main(int count, char** words)
{
    int fed = 0;
    for (int i = 1; i < count; ++i) {
        for (const auto& path : filesOf(words[i])) {
            std::fprintf(stderr, "%s\n", path.c_str());
            std::ifstream file(path, std::ios::binary);
            const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
            ++fed;
        }
    }
    std::printf("%d inputs\n", fed);
    return fed > 0 ? 0 : 1;
}
