#include "host/languages/Catalogue.h"

#include "host/languages/Msgfmt.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string_view>
#include <strings.h>

namespace host {

namespace {

namespace fs = std::filesystem;

constexpr char CONTEXT_MARK = '\4'; ///< between a context and its key

/// Returns why the file cannot be read; nothing where it can.
std::string readFile(const fs::path& file, std::string& content)
{
    std::error_code error;
    if (fs::is_directory(file, error))
        return "This is a folder.";
    if (fs::exists(file, error) && !fs::is_regular_file(file, error)) // opening a pipe waits for its other end
        return "This is no regular file.";
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    std::array<char, 16384> part;
    while (stream.read(part.data(), part.size()) || stream.gcount() > 0)
        content.append(part.data(), static_cast<std::size_t>(stream.gcount()));
    const bool isRead = stream.is_open() && !stream.bad();
    return isRead ? std::string() : std::string("The file cannot be read: ") + std::strerror(errno) + ".";
}

/// What is wrong with a source, behind the file's name; empty where nothing is.
std::string compile(std::string& content)
{
    static constexpr std::string_view BYTE_ORDER_MARK =
        "\xEF\xBB\xBF"; // some editors write one, msgfmt does not take it
    if (content.starts_with(BYTE_ORDER_MARK))
        return ":1: The file begins with a byte order mark.";
    return compileWithMsgfmt(std::string(content), content);
}

std::string field(const std::string& header, const std::string& name)
{
    std::istringstream lines(header);
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with(name + ": "))
            return line.substr(name.size() + 2);
    return {};
}

std::string charsetOf(const std::string& header)
{
    static constexpr std::string_view MARK = "charset=";
    const std::string type = field(header, "Content-Type");
    const std::size_t at = type.find(MARK);
    return at == std::string::npos ? std::string() : type.substr(at + MARK.size());
}

/// What is wrong with the header; empty where nothing is.
std::string complaintOf(const std::string& header)
{
    if (header.empty())
        return "The catalogue has no header.";
    const std::string charset = charsetOf(header);
    if (charset.empty())
        return "The header names no charset.";
    if (strcasecmp(charset.c_str(), "UTF-8") != 0)
        return "The charset is " + charset + ", not UTF-8.";
    return field(header, "Language").empty() ? "The header names no language." : "";
}

bool isText(const Texts::value_type& text)
{
    return !text.first.empty() && text.first.find(CONTEXT_MARK) == std::string::npos && !text.second.empty();
}

} // namespace

std::string readCatalogue(const fs::path& path, Catalogue& catalogue)
{
    const std::string name = path.filename().string();
    const bool isSource = path.extension() == SOURCE_ENDING;
    std::string content;
    if (const std::string reason = readFile(path, content); !reason.empty())
        return name + ": " + reason;
    if (const std::string complaint = isSource ? compile(content) : ""; !complaint.empty())
        return name + complaint;
    auto texts = readCompiledTexts(content);
    if (!texts)
        return name + ": This is no catalogue that msgfmt has compiled.";
    const std::string header = (*texts)[""];
    if (const std::string complaint = complaintOf(header); !complaint.empty())
        return name + (isSource ? ":1: " : ": ") + complaint;
    std::erase_if(*texts, [](const auto& text) { return !isText(text); });
    catalogue = {std::move(*texts), field(header, "Language")};
    return {};
}

} // namespace host
