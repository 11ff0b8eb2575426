#include "simulator/script/ScriptText.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <stdexcept>

namespace simulator {

namespace {

using Texts = std::vector<std::string>;

constexpr std::string_view TRANSLATED = "_(";
constexpr int DEEPEST = 8;

struct NoText : std::invalid_argument {
    using std::invalid_argument::invalid_argument;
};

void skipBlanks(std::string_view& rest)
{
    rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
}

bool takeIf(std::string_view& rest, std::string_view word)
{
    skipBlanks(rest);
    if (!rest.starts_with(word))
        return false;
    rest.remove_prefix(word.size());
    return true;
}

std::string utf8Of(char32_t character)
{
    std::string text;
    const auto byte = [&](std::uint32_t bits) { text += static_cast<char>(bits); };
    if (character < 0x80) {
        byte(character);
    } else if (character < 0x800) {
        byte(0xC0U | character >> 6U);
        byte(0x80U | (character & 0x3FU));
    } else {
        byte(0xE0U | character >> 12U);
        byte(0x80U | (character >> 6U & 0x3FU));
        byte(0x80U | (character & 0x3FU));
    }
    return text;
}

std::uint32_t takeNumber(std::string_view& rest, std::size_t digits)
{
    constexpr int HEXADECIMAL = 16;
    std::uint32_t number = 0;
    const char* const end = rest.data() + std::min(digits, rest.size());
    const auto read = std::from_chars(rest.data(), end, number, HEXADECIMAL);
    if (rest.size() < digits || read.ptr != end)
        throw NoText("a number of " + std::to_string(digits) + " hexadecimal digits is missing");
    rest.remove_prefix(digits);
    return number;
}

std::string takeEscaped(std::string_view& rest)
{
    const char kind = rest.empty() ? '\0' : rest.front();
    rest.remove_prefix(rest.empty() ? 0 : 1);
    switch (kind) {
    case '"':
    case '\\': return {kind};
    case 'n': return "\n";
    case 't': return "\t";
    case 'x': return {static_cast<char>(takeNumber(rest, 2))};
    case 'u': return utf8Of(takeNumber(rest, 4));
    default: throw NoText("behind a backslash there may be \", \\, n, t, x1B or u200F");
    }
}

std::string takeQuoted(std::string_view& rest)
{
    if (!takeIf(rest, "\""))
        throw NoText("a text in double quotes is missing");
    std::string text;
    for (;;) {
        const std::size_t end = rest.find_first_of("\"\\");
        if (end == std::string_view::npos)
            throw NoText("the text has no second double quote");
        text += rest.substr(0, end);
        const bool isEnd = rest[end] == '"';
        rest.remove_prefix(end + 1);
        if (isEnd)
            return text;
        text += takeEscaped(rest);
    }
}

ScriptText takeText(std::string_view& rest, int depth);

ScriptText::Piece takeTranslated(std::string_view& rest, int depth)
{
    ScriptText::Piece piece{true, {takeQuoted(rest)}};
    while (takeIf(rest, "or"))
        piece.texts.push_back(takeQuoted(rest));
    while (takeIf(rest, ",")) {
        if (piece.arguments.size() == ScriptText::MOST_ARGUMENTS)
            throw NoText("there are only %1 to %9 to be filled in");
        piece.arguments.push_back(takeText(rest, depth + 1));
    }
    if (!takeIf(rest, ")"))
        throw NoText("the bracket of _( is not closed");
    return piece;
}

ScriptText takeText(std::string_view& rest, int depth)
{
    if (depth > DEEPEST)
        throw NoText("there are too many brackets");
    ScriptText text;
    for (skipBlanks(rest); ScriptText::isQuoted(rest); skipBlanks(rest)) {
        if (text.pieces.size() == ScriptText::MOST_PIECES)
            throw NoText("the text has more than " + std::to_string(ScriptText::MOST_PIECES) + " pieces");
        text.pieces.push_back(takeIf(rest, TRANSLATED) ? takeTranslated(rest, depth)
                                                       : ScriptText::Piece{false, {takeQuoted(rest)}});
    }
    if (text.pieces.empty())
        throw NoText("a text in double quotes is missing");
    return text;
}

/// What one does not see on a line, or what turns others round.
bool isOdd(char32_t character)
{
    const auto isIn = [=](char32_t first, char32_t last) { return character >= first && character <= last; };
    return character < 0x20 || isIn(0x7F, 0x9F) || character == 0xAD || isIn(0x200B, 0x200F) || isIn(0x2028, 0x202E) ||
           isIn(0x2060, 0x206F) || character == 0x061C || character == 0xFEFF || isIn(0xFFF9, 0xFFFB);
}

std::string hexadecimal(std::uint32_t number, int digits)
{
    constexpr char DIGITS[] = "0123456789ABCDEF";
    std::string text;
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4)
        text += DIGITS[number >> static_cast<unsigned>(shift) & 0xFU];
    return text;
}

/// The bytes of one character at the front; one where they are none.
std::size_t lengthOf(std::string_view text)
{
    const auto first = static_cast<unsigned char>(text.front());
    const std::size_t length = first < 0x80 ? 1 : first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC2 ? 2 : 0;
    const auto isRest = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80; };
    const bool isWhole =
        length > 0 && length <= text.size() && first < 0xF5 && std::ranges::all_of(text.substr(1, length - 1), isRest);
    return isWhole ? length : 0;
}

char32_t characterOf(std::string_view bytes)
{
    constexpr unsigned MASKS[] = {0x7F, 0x1F, 0x0F, 0x07};
    char32_t character = static_cast<unsigned char>(bytes.front()) & MASKS[bytes.size() - 1];
    for (const char byte : bytes.substr(1))
        character = character << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
    return character;
}

std::string escaped(std::string_view character)
{
    if (character == "\"" || character == "\\")
        return '\\' + std::string(character);
    if (character == "\n")
        return "\\n";
    const char32_t code = characterOf(character);
    if (!isOdd(code))
        return std::string(character);
    return character.size() == 1 ? "\\x" + hexadecimal(code, 2) : "\\u" + hexadecimal(code, 4);
}

std::string filled(std::string_view pattern, const Texts& arguments)
{
    std::string text;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        const bool isMark =
            pattern[at] == '%' && at + 1 < pattern.size() && pattern[at + 1] >= '1' && pattern[at + 1] <= '9';
        const auto argument = isMark ? static_cast<std::size_t>(pattern[at + 1] - '1') : arguments.size();
        if (argument < arguments.size()) {
            text += arguments[argument];
            ++at;
        } else {
            text += pattern[at];
        }
    }
    return text;
}

/// Each of the one with each of the other, as many as there may be.
template <typename Join>
auto joined(const auto& left, const Texts& right, Join join)
{
    std::vector<decltype(join(left.front(), right.front()))> all;
    for (const auto& first : left)
        for (const std::string& second : right)
            if (all.size() < ScriptText::MOST_TEXTS)
                all.push_back(join(first, second));
    return all;
}

Texts shownOf(const ScriptText::Piece& piece, const ScriptText::Translate& translate)
{
    if (!piece.isTranslated)
        return piece.texts;
    std::vector<Texts> arguments(1);
    for (const ScriptText& argument : piece.arguments)
        arguments = joined(arguments, argument.shown(translate), [](Texts before, const std::string& next) {
            before.push_back(next);
            return before;
        });
    Texts all;
    for (const std::string& key : piece.texts)
        for (const Texts& each : arguments)
            if (all.size() < ScriptText::MOST_TEXTS)
                all.push_back(filled(translate(key), each));
    return all;
}

std::string writtenOf(const ScriptText::Piece& piece)
{
    if (!piece.isTranslated)
        return quotedForScript(piece.texts.front());
    std::string text(TRANSLATED);
    for (const std::string& key : piece.texts)
        text += (&key == &piece.texts.front() ? "" : " or ") + quotedForScript(key);
    for (const ScriptText& argument : piece.arguments)
        text += ", " + argument.written();
    return text + ")";
}

} // namespace

ScriptText ScriptText::literal(std::string text)
{
    return {{{false, {std::move(text)}}}};
}

bool ScriptText::isQuoted(std::string_view text)
{
    return text.starts_with('"') || text.starts_with(TRANSLATED);
}

ScriptText ScriptText::take(std::string_view& rest)
{
    return takeText(rest, 0);
}

std::string ScriptText::written() const
{
    std::string text;
    for (const Piece& piece : pieces)
        text += (text.empty() ? "" : " ") + writtenOf(piece);
    return text;
}

std::vector<std::string> ScriptText::shown(const Translate& translate) const
{
    Texts all(1);
    for (const Piece& piece : pieces)
        all = joined(all, shownOf(piece, translate),
                     [](const std::string& before, const std::string& next) { return before + next; });
    Texts each;
    for (std::string& text : all)
        if (std::ranges::find(each, text) == each.end())
            each.push_back(std::move(text));
    return each;
}

std::string onOneLine(std::string_view text)
{
    if (isPlainLine(text))
        return std::string(text);
    const std::string quoted = quotedForScript(text);
    return quoted.substr(1, quoted.size() - 2);
}

bool isPlainLine(std::string_view text)
{
    while (!text.empty()) {
        const std::size_t length = lengthOf(text);
        if (length == 0 || isOdd(characterOf(text.substr(0, length))))
            return false;
        text.remove_prefix(length);
    }
    return true;
}

std::string quotedForScript(std::string_view text)
{
    std::string quoted = "\"";
    while (!text.empty()) {
        const std::size_t length = lengthOf(text);
        quoted += length > 0 ? escaped(text.substr(0, length))
                             : "\\x" + hexadecimal(static_cast<unsigned char>(text.front()), 2);
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return quoted + '"';
}

} // namespace simulator
