#include "simulator/record/TextOrigin.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace simulator {

namespace {

using Origin = host::TranslationMemory::Origin;

constexpr int DEEPEST = 4;
constexpr std::string_view BETWEEN_PARTS = ", ";
constexpr std::size_t MOST_KEYS = 4;

/// A pattern in pieces: what stands in it, and after each but the last the number of an argument.
struct Pattern {
    std::vector<std::string> texts{std::string()};
    std::vector<std::size_t> arguments;
};

Pattern patternOf(std::string_view text)
{
    Pattern pattern;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool isMark = text[at] == '%' && at + 1 < text.size() && text[at + 1] >= '1' && text[at + 1] <= '9';
        if (!isMark) {
            pattern.texts.back() += text[at];
            continue;
        }
        pattern.arguments.push_back(static_cast<std::size_t>(text[++at] - '1'));
        pattern.texts.emplace_back();
    }
    return pattern;
}

/// What has been filled in where the text is of the pattern: each as short as can be.
std::optional<std::vector<std::string>> argumentsIn(std::string_view text, const Pattern& pattern)
{
    std::vector<std::string> arguments;
    if (!text.starts_with(pattern.texts.front()))
        return {};
    text.remove_prefix(pattern.texts.front().size());
    for (std::size_t i = 0; i < pattern.arguments.size(); ++i) {
        const std::string& behind = pattern.texts[i + 1];
        const bool isLast = i + 1 == pattern.arguments.size();
        const bool mayBeLast = isLast && text.ends_with(behind);
        const std::size_t end = isLast ? (mayBeLast ? text.size() - behind.size() : text.npos) : text.find(behind);
        if (end == text.npos)
            return {};
        const std::size_t number = pattern.arguments[i];
        arguments.resize(std::max(arguments.size(), number + 1));
        std::string& argument = arguments[number];
        if (!argument.empty() && argument != text.substr(0, end))
            return {};
        argument = text.substr(0, end);
        text.remove_prefix(end + behind.size());
    }
    return text.empty() ? std::optional(arguments) : std::nullopt;
}

/// As it stands, to the last piece where that is such a one.
void append(ScriptText& whole, const std::string& text)
{
    if (whole.pieces.back().isTranslated)
        whole.pieces.push_back({false, {std::string()}});
    whole.pieces.back().texts.front() += text;
}

} // namespace

/// Keys whose texts are the same stand together where nothing is filled in, and behind them the text: it may be the
/// user's own word, and be no other in another language.
ScriptText TextOrigin::of(const std::string& text, int depth) const
{
    const std::vector<Origin> origins = depth < DEEPEST ? mOrigins(text) : std::vector<Origin>();
    ScriptText::Piece whole{true, {}};
    for (const Origin& origin : origins)
        if (origin.addition.empty() && origin.pattern == text && whole.texts.size() < MOST_KEYS)
            whole.texts.push_back(origin.key);
    if (!whole.texts.empty()) {
        if (std::ranges::find(whole.texts, text) == whole.texts.end())
            whole.texts.push_back(text);
        return {{whole}};
    }
    for (const Origin& origin : origins) {
        if (!text.ends_with(origin.addition))
            continue;
        const std::string filled = text.substr(0, text.size() - origin.addition.size());
        const auto arguments = argumentsIn(filled, patternOf(origin.pattern));
        if (!arguments)
            continue;
        ScriptText::Piece piece{true, {origin.key}};
        for (const std::string& argument : *arguments)
            piece.arguments.push_back(of(argument, depth + 1));
        ScriptText found{{piece}};
        if (!origin.addition.empty())
            found.pieces.push_back({false, {origin.addition}});
        return found;
    }
    return depth == 0 ? ofParts(text) : ScriptText::literal(text);
}

/// Programs put names and words side by side, "Ada, home".
ScriptText TextOrigin::ofParts(const std::string& text) const
{
    ScriptText whole = ScriptText::literal({});
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find(BETWEEN_PARTS, begin), text.size());
        ScriptText::Piece part{false, {text.substr(begin, end - begin)}};
        const std::string& word = part.texts.front();
        ScriptText found = word != text ? of(word, 1) : ScriptText::literal(word);
        if (found.pieces.size() == 1 && found.pieces.front().isTranslated && found.pieces.front().arguments.empty())
            whole.pieces.push_back(std::move(found.pieces.front()));
        else
            append(whole, word);
        if (end < text.size())
            append(whole, std::string(BETWEEN_PARTS));
        begin = end + BETWEEN_PARTS.size();
    }
    if (whole.pieces.size() > 1 && whole.pieces.front().texts.front().empty())
        whole.pieces.erase(whole.pieces.begin());
    return whole.pieces.size() <= ScriptText::MOST_PIECES ? whole : ScriptText::literal(text);
}

} // namespace simulator
