#include "audit/Catalogue.h"

#include "audit/Lines.h"

#include <cctype>

namespace audit {

namespace {

constexpr std::string_view KEY = "msgid \"";

bool isOfKeypad(const std::string& key)
{
    return key.starts_with("Keypad.") || key.starts_with("Text.input.mode.");
}

/// The length of a mark such as %1 at the beginning of `text`; 0 where there is none.
std::size_t markLength(const std::string& text)
{
    return text.size() > 1 && text[0] == '%' && std::isdigit(static_cast<unsigned char>(text[1])) ? 2 : 0;
}

} // namespace

std::set<std::string> keysOf(const std::string& fileName)
{
    std::set<std::string> keys;
    for (const std::string& line : readLines(fileName)) {
        if (!line.starts_with(KEY) || line.size() <= KEY.size() + 1)
            continue;
        const std::string key = line.substr(KEY.size(), line.rfind('"') - KEY.size());
        if (!isOfKeypad(key))
            keys.insert(key);
    }
    return keys;
}

bool isThatText(const std::string& text, const std::string& shown)
{
    if (text.empty())
        return shown.empty();
    if (const std::size_t mark = markLength(text)) {
        for (std::size_t length = 0; length <= shown.size(); ++length)
            if (isThatText(text.substr(mark), shown.substr(length)))
                return true;
        return false;
    }
    return !shown.empty() && shown[0] == text[0] && isThatText(text.substr(1), shown.substr(1));
}

} // namespace audit
