#include "host/languages/Languages.h"

#include "host/languages/Catalogue.h"
#include "host/utilities/Beside.h"
#include "host/utilities/TranslationMemory.h"
#include "utilities/Logging.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace host {

namespace {

namespace fs = std::filesystem;

constexpr int REFUSED = 3;
constexpr const char* BESIDE = "displayapi-1/languages";
constexpr const char* OWN_NAME = "Language.name";

Language describe(const std::string& code, const Catalogue& catalogue)
{
    const auto name = catalogue.texts.find(OWN_NAME);
    return {code, name != catalogue.texts.end() ? name->second : code, catalogue.locale};
}

void log(int line, const std::string& text)
{
    if (loggingOnUni())
        logAppUni("host::Languages", "host/languages/Languages", REFUSED, line, "%s", text.c_str());
}

/// A code becomes a part of a path.
bool isCode(const std::string& text)
{
    return !text.empty() && text.find_first_of("./") == std::string::npos;
}

bool isCatalogue(const fs::directory_entry& entry)
{
    std::error_code error;
    const fs::path& file = entry.path();
    const bool isNamedSo = file.extension() == SOURCE_ENDING || file.extension() == COMPILED_ENDING;
    return isNamedSo && isCode(file.stem().string()) && entry.is_regular_file(error);
}

void tellIfUseless(const char* folder)
{
    std::error_code error;
    const fs::directory_iterator entries(folder, error);
    if (error)
        std::fprintf(stderr, "DISPLAYAPI_LANGUAGES is '%s'; there is no such folder\n", folder);
    else if (std::none_of(begin(entries), end(entries), isCatalogue))
        std::fprintf(stderr, "DISPLAYAPI_LANGUAGES is '%s'; that folder has no catalogue\n", folder);
}

} // namespace

Languages::Languages(std::string folder) : mFolder(std::move(folder)) {}

Languages::~Languages() = default;

std::string Languages::folder()
{
    if (const char* const asked = std::getenv("DISPLAYAPI_LANGUAGES"); asked != nullptr && *asked != '\0') {
        tellIfUseless(asked);
        return asked;
    }
    return besideTheHost(BESIDE);
}

std::vector<Language> Languages::available() const
{
    std::vector<Language> all;
    for (const std::string& code : codes()) {
        Catalogue catalogue;
        readCatalogue(fileOf(code), catalogue);
        all.push_back(describe(code, catalogue));
    }
    return all;
}

std::string Languages::use(const std::string& code)
{
    if (!isCode(code))
        return "There is no language '" + code + "'.";
    auto catalogue = std::make_shared<Catalogue>();
    const fs::path file = fileOf(code);
    if (std::string complaint = readCatalogue(file, *catalogue); !complaint.empty()) {
        log(__LINE__, complaint);
        return complaint;
    }
    const std::lock_guard lock(mMutex);
    mInUse = {std::move(catalogue), code, file.filename()};
    return {};
}

Language Languages::current() const
{
    const InUse now = inUse();
    return now.catalogue != nullptr ? describe(now.code, *now.catalogue) : Language();
}

std::string Languages::translate(const std::string& key)
{
    const InUse now = inUse();
    if (now.catalogue == nullptr)
        return key;
    const auto found = now.catalogue->texts.find(key);
    if (found != now.catalogue->texts.end()) {
        if (TranslationMemory::isOn())
            TranslationMemory::instance().answered(key, found->second);
        return found->second;
    }
    reportMissing(now, key);
    return key;
}

Languages::InUse Languages::inUse() const
{
    const std::lock_guard lock(mMutex);
    return mInUse;
}

void Languages::reportMissing(const InUse& now, const std::string& key)
{
    if (!loggingOnUni())
        return;
    {
        const std::lock_guard lock(mMutex);
        if (!mReported.insert(now.code + ' ' + key).second)
            return;
    }
    log(__LINE__, now.file + " has no text for '" + key + "'");
}

std::set<std::string> Languages::codes() const
{
    std::set<std::string> found;
    std::error_code error;
    for (fs::directory_iterator entry(mFolder, error), end; entry != end; entry.increment(error))
        if (isCatalogue(*entry))
            found.insert(entry->path().stem());
    return found;
}

/// A source goes before what has been compiled of it: whoever has put both there has changed the source.
std::string Languages::fileOf(const std::string& code) const
{
    std::error_code error;
    const fs::path source = fs::path(mFolder) / (code + SOURCE_ENDING);
    const fs::path compiled = fs::path(mFolder) / (code + COMPILED_ENDING);
    return !fs::exists(source, error) && fs::exists(compiled, error) ? compiled : source;
}

} // namespace host
