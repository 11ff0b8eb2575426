#include "apps/exchange/Words.h"

#include "apps/exchange/Line.h"
#include "apps/exchange/Sentence.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

namespace exchange {

namespace {

constexpr std::size_t LONGEST_SENTENCE = 1000;
constexpr std::size_t LONGEST_NUMBER = 32;

/// The length of the character at `at`; 0 where there is none.
std::size_t characterLength(std::string_view text, std::size_t at)
{
    const auto lead = static_cast<unsigned char>(text[at]);
    const std::size_t length = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if ((lead >= 0x80 && lead < 0xC2) || lead > 0xF4 || at + length > text.size())
        return 0;
    const auto follows = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; };
    return std::all_of(text.begin() + at + 1, text.begin() + at + length, follows) ? length : 0;
}

/// Surrogates, and characters written longer than they need.
bool isMisspelt(std::string_view character)
{
    const auto lead = static_cast<unsigned char>(character[0]);
    const auto next = character.size() > 1 ? static_cast<unsigned char>(character[1]) : 0;
    return (lead == 0xE0 && next < 0xA0) || (lead == 0xED && next >= 0xA0) || (lead == 0xF0 && next < 0x90) ||
           (lead == 0xF4 && next >= 0x90);
}

/// REQUIRES: it is no misspelt one.
bool isControl(std::string_view character)
{
    const auto lead = static_cast<unsigned char>(character[0]);
    const bool isLatin = lead == 0xC2 && static_cast<unsigned char>(character[1]) < 0xA0;
    return (lead < ' ' && lead != '\t') || lead == 0x7F || isLatin;
}

void check(std::string_view sentence)
{
    if (sentence.size() > LONGEST_SENTENCE)
        throw Mistake("longer than " + std::to_string(LONGEST_SENTENCE) + " bytes");
    for (std::size_t at = 0; at < sentence.size();) {
        const std::size_t length = characterLength(sentence, at);
        if (length == 0 || isMisspelt(sentence.substr(at, length)))
            throw Mistake("byte " + std::to_string(at + 1) + " is no UTF-8");
        if (isControl(sentence.substr(at, length)))
            throw Mistake("byte " + std::to_string(at + 1) + " is a control character");
        at += length;
    }
}

std::optional<double> toMilliseconds(std::string_view unit)
{
    if (unit == "ms")
        return 1;
    if (unit == "s")
        return 1000;
    if (unit == "min")
        return 60 * 1000;
    return {};
}

} // namespace

bool isNumber(std::string_view text)
{
    if (text.starts_with('+'))
        text.remove_prefix(1);
    return !text.empty() && text.size() <= LONGEST_NUMBER &&
           text.find_first_not_of("0123456789*#") == std::string_view::npos;
}

Words::Words(std::string_view sentence)
{
    check(sentence);
    while ((sentence.remove_prefix(std::min(sentence.find_first_not_of(" \t"), sentence.size())), !sentence.empty())) {
        const bool isQuoted = sentence.front() == '"';
        std::size_t length = sentence.front() == ',' ? 1 : std::min(sentence.find_first_of(" \t,\""), sentence.size());
        if (isQuoted && (length = sentence.find('"', 1)) == std::string_view::npos)
            throw Mistake("the second double quote is missing");
        mWords.push_back(
            {std::string(isQuoted ? sentence.substr(1, length - 1) : sentence.substr(0, length)), isQuoted});
        sentence.remove_prefix(length + (isQuoted ? 1 : 0));
    }
}

bool Words::is(std::size_t at, std::string_view word) const
{
    return at < mWords.size() && !mWords[at].isQuoted && mWords[at].text == word;
}

bool Words::skip(std::string_view words)
{
    std::size_t at = mAt;
    while (!words.empty()) {
        const std::size_t length = std::min(words.find(' '), words.size());
        if (!is(at++, words.substr(0, length)))
            return false;
        words.remove_prefix(std::min(length + 1, words.size()));
    }
    mAt = at;
    return true;
}

void Words::expect(std::string_view words)
{
    if (!skip(words))
        throw Mistake("expected '" + std::string(words) + "', not " + here());
}

bool Words::isText() const
{
    return !areOver() && mWords[mAt].isQuoted;
}

bool Words::isNumber() const
{
    return !areOver() && !isText() && exchange::isNumber(mWords[mAt].text);
}

std::string Words::takeWord(std::string_view what)
{
    if (areOver() || isText())
        throw Mistake("expected " + std::string(what) + ", not " + here());
    return mWords[mAt++].text;
}

std::string Words::takeText(std::string_view what)
{
    if (!isText())
        throw Mistake("expected " + std::string(what) + " in double quotes, not " + here());
    return mWords[mAt++].text;
}

std::string Words::takeNumber()
{
    if (!isNumber())
        throw Mistake("expected a number of digits, * and #, not " + here());
    return mWords[mAt++].text;
}

int Words::takeCount(std::string_view what, int lowest, int highest)
{
    const std::string instead = here();
    const std::string word = takeWord(what);
    int count = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), count);
    if (error != std::errc() || end != word.data() + word.size() || count < lowest || count > highest)
        throw Mistake("expected " + std::string(what) + " from " + std::to_string(lowest) + " to " +
                      std::to_string(highest) + ", not " + instead);
    return count;
}

std::int64_t Words::takeTime()
{
    const std::string instead = here();
    const std::string word = takeWord("a time such as 3 s");
    double count = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), count, std::chars_format::fixed);
    if (error != std::errc() || end != word.data() + word.size() || !std::isfinite(count) || count < 0)
        throw Mistake("expected a time such as 3 s, not " + instead);
    const std::string unitHere = here();
    const auto unit = areOver() || isText() ? std::nullopt : toMilliseconds(mWords[mAt].text);
    if (!unit)
        throw Mistake("expected ms, s or min behind " + word + ", not " + unitHere);
    ++mAt;
    if (count * *unit > static_cast<double>(LONGEST_TIME))
        throw Mistake("no time may be longer than a day");
    return std::llround(count * *unit);
}

std::string Words::here() const
{
    if (areOver())
        return "the end of the line";
    return mWords[mAt].isQuoted ? '"' + mWords[mAt].text + '"' : "'" + mWords[mAt].text + "'";
}

} // namespace exchange
