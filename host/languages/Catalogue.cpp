#include "host/languages/Catalogue.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <gettext-po.h>
#include <limits>
#include <memory>
#include <mutex>
#include <string_view>
#include <strings.h>

namespace host {

namespace {

namespace fs = std::filesystem;

using File = std::unique_ptr<po_file, decltype(&po_file_free)>;
using Iterator = std::unique_ptr<struct po_message_iterator, decltype(&po_message_iterator_free)>;

constexpr std::size_t NO_LINE = static_cast<std::size_t>(-1);

std::string sentence(const fs::path& file, std::size_t line, std::string text)
{
    while (!text.empty() && text.back() == '\n')
        text.pop_back();
    const std::string where = line != NO_LINE && line != 0 ? ":" + std::to_string(line) : "";
    return file.filename().string() + where + ": " + text;
}

/// The file that is being read and the first complaint about it. The parser's handlers know nothing of who reads, so
/// one reads at a time.
struct Reading {
    fs::path file;
    std::string complaint;
} gReading;

/// The parser means to be left for good after a fatal error, which would end the process; it copes with going on, but
/// not with exceptions.
void complain(int severity, po_message_t, const char*, std::size_t line, std::size_t, int, const char* text) noexcept
{
    if (severity != PO_SEVERITY_WARNING && gReading.complaint.empty())
        gReading.complaint = sentence(gReading.file, line, text);
}

void complainOfTwo(int severity, po_message_t message, const char* file, std::size_t line, std::size_t column,
                   int multiline, const char* text, po_message_t, const char*, std::size_t, std::size_t, int,
                   const char*) noexcept
{
    complain(severity, message, file, line, column, multiline, text);
}

constexpr po_xerror_handler HANDLER = {complain, complainOfTwo};

/// The parser has no good words for a file that is not there, and forgets what it has read when reading fails.
std::string whyUnreadable(const fs::path& file)
{
    std::error_code error;
    if (fs::is_directory(file, error))
        return "This is a folder.";
    if (fs::exists(file, error) && !fs::is_regular_file(file, error)) // opening a pipe waits for its other end
        return "This is no regular file.";
    errno = 0;
    std::ifstream stream(file);
    stream.ignore(std::numeric_limits<std::streamsize>::max());
    const bool isReadable = stream.is_open() && !stream.bad();
    return isReadable ? std::string() : std::string("The file cannot be read: ") + std::strerror(errno) + ".";
}

/// Some editors write one; the parser takes it for a keyword.
bool beginsWithByteOrderMark(const fs::path& file)
{
    static constexpr std::string_view MARK = "\xEF\xBB\xBF";
    std::string start(MARK.size(), '\0');
    return std::ifstream(file).read(start.data(), static_cast<std::streamsize>(start.size())) && start == MARK;
}

std::string field(const char* header, const char* name)
{
    const std::unique_ptr<char, decltype(&std::free)> value(po_header_field(header, name), &std::free);
    return value != nullptr ? value.get() : std::string();
}

std::string charsetOf(const char* header)
{
    static constexpr std::string_view MARK = "charset=";
    const std::string type = field(header, "Content-Type");
    const std::size_t at = type.find(MARK);
    return at == std::string::npos ? std::string() : type.substr(at + MARK.size());
}

/// What is wrong with the header; empty where nothing is.
std::string complaintOf(const char* header)
{
    if (header == nullptr)
        return "The catalogue has no header.";
    const std::string charset = charsetOf(header);
    if (charset.empty())
        return "The header names no charset.";
    if (strcasecmp(charset.c_str(), "UTF-8") != 0)
        return "The charset is " + charset + ", not UTF-8.";
    return field(header, "Language").empty() ? "The header names no language." : "";
}

bool isText(po_message_t message)
{
    return *po_message_msgid(message) != '\0' && po_message_msgctxt(message) == nullptr &&
           *po_message_msgstr(message) != '\0' && !po_message_is_fuzzy(message) && !po_message_is_obsolete(message);
}

Catalogue catalogueOf(po_file_t file, const char* header)
{
    Catalogue catalogue;
    catalogue.locale = field(header, "Language");
    const Iterator iterator(po_message_iterator(file, nullptr), &po_message_iterator_free);
    while (po_message_t message = po_next_message(iterator.get()))
        if (isText(message))
            catalogue.texts.emplace(po_message_msgid(message), po_message_msgstr(message));
    return catalogue;
}

} // namespace

std::string readCatalogue(const fs::path& path, Catalogue& catalogue)
{
    if (const std::string reason = whyUnreadable(path); !reason.empty())
        return sentence(path, NO_LINE, reason);
    if (beginsWithByteOrderMark(path))
        return sentence(path, 1, "The file begins with a byte order mark.");

    static std::mutex oneAtATime;
    const std::lock_guard lock(oneAtATime);
    gReading = {path, {}};
    const File file(po_file_read(path.c_str(), &HANDLER), &po_file_free);
    if (file == nullptr)
        return sentence(path, NO_LINE, "The file cannot be read.");
    if (!gReading.complaint.empty())
        return gReading.complaint;
    const char* const header = po_file_domain_header(file.get(), nullptr);
    if (const std::string complaint = complaintOf(header); !complaint.empty())
        return sentence(path, 1, complaint);
    catalogue = catalogueOf(file.get(), header);
    return {};
}

} // namespace host
