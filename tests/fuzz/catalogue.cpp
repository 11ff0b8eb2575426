// Catalogues of languages: compiled ones, and with "#" or "msgid" at their beginning sources, which msgfmt reads.

#include "host/languages/Catalogue.h"
#include "fuzz/check.h"
#include "host/languages/CompiledTexts.h"

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace {

/// Goes with the process.
class Folder {
public:
    Folder() { create_directories(mPath); }
    ~Folder() { std::filesystem::remove_all(mPath); }

    std::filesystem::path file(const char* name) const { return mPath / name; }

private:
    std::filesystem::path mPath =
        std::filesystem::temp_directory_path() / ("fuzz-catalogue-" + std::to_string(getpid()));
};

void checkTexts(const host::Texts& texts, std::size_t bytes)
{
    std::size_t all = 0;
    for (const auto& [key, text] : texts)
        all += key.size() + text.size();
    test::check(all <= bytes, "the texts are longer than their file");
}

void checkFile(const char* name, std::string_view content)
{
    static const Folder folder;
    std::ofstream(folder.file(name), std::ios::binary) << content;
    host::Catalogue catalogue;
    catalogue.locale = "before";
    const std::string error = host::readCatalogue(folder.file(name), catalogue);
    test::check(error.empty() || error.starts_with(name), "an error without its file: " + error);
    test::check(error.empty() || catalogue.locale == "before", "a broken file has changed the catalogue");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes = test::textOf(data, size);
    if (bytes.starts_with("#") || bytes.starts_with("msgid")) {
        checkFile("fuzz.po", bytes);
        return 0;
    }
    if (const auto texts = host::readCompiledTexts(bytes))
        checkTexts(*texts, size);
    checkFile("fuzz.mo", bytes);
    return 0;
}
