#include "apps/deskphone/ContactIndex.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <iterator>
#include <optional>
#include <string_view>

namespace deskphone {

namespace {

constexpr std::string_view NUMBER = "\n "; ///< before each number: no word has it

/// How well something fits, the best first.
enum Rank : std::size_t { BEGINS, BEGINS_WORD, IS_WITHIN, RANKS };

bool isPlain(const std::string& text)
{
    return std::ranges::all_of(text, [](unsigned char letter) { return letter < 0x80; });
}

struct Likeness {
    char16_t letter;
    const char16_t* typed;
};

/// Small letters from which no accent comes off, and what people type for them.
constexpr std::array<Likeness, 9> LIKENESSES{{{u'ø', u"o"},
                                              {u'ł', u"l"},
                                              {u'đ', u"d"},
                                              {u'ð', u"d"},
                                              {u'ħ', u"h"},
                                              {u'ı', u"i"},
                                              {u'æ', u"ae"},
                                              {u'œ', u"oe"},
                                              {u'þ', u"th"}}};

void append(icu::UnicodeString& words, UChar32 letter)
{
    const auto* const found = std::ranges::find(LIKENESSES, letter, &Likeness::letter);
    if (found != LIKENESSES.end())
        words += found->typed;
    else
        words += letter;
}

icu::UnicodeString decomposed(const std::string& text)
{
    UErrorCode error = U_ZERO_ERROR;
    const icu::UnicodeString folded =
        icu::Normalizer2::getNFKCCasefoldInstance(error)->normalize(icu::UnicodeString::fromUTF8(text), error);
    return icu::Normalizer2::getNFDInstance(error)->normalize(folded, error);
}

bool isAccent(UChar32 letter)
{
    return (U_GET_GC_MASK(letter) & U_GC_M_MASK) != 0;
}

/// Letters and digits; a space for each run of others.
icu::UnicodeString wordsOf(const icu::UnicodeString& text)
{
    icu::UnicodeString words;
    for (int at = 0; at < text.length(); at = text.moveIndex32(at, 1))
        if (const UChar32 letter = text.char32At(at); u_isalnum(letter) != 0)
            append(words, letter);
        else if (!isAccent(letter) && words.endsWith(u' ') == 0)
            words += u' ';
    return words;
}

std::string spacedWords(std::string_view words)
{
    const std::size_t begin = std::min(words.find_first_not_of(' '), words.size());
    words.remove_prefix(begin);
    while (words.ends_with(' '))
        words.remove_suffix(1);
    return words.empty() ? std::string() : " " + std::string(words);
}

std::string plainWords(const std::string& text)
{
    std::string words;
    for (const unsigned char letter : text)
        if (std::isalnum(letter) != 0)
            words += static_cast<char>(std::tolower(letter));
        else if (!words.ends_with(' '))
            words += ' ';
    return words;
}

std::string digitsIn(const std::string& text)
{
    std::string digits;
    std::ranges::copy_if(text, std::back_inserter(digits), [](unsigned char one) { return std::isdigit(one) != 0; });
    return digits;
}

bool isNumber(const std::string& typed)
{
    constexpr std::string_view IN_NUMBERS = "0123456789 +-/()*#";
    return typed.find_first_of("0123456789") != typed.npos && typed.find_first_not_of(IN_NUMBERS) == typed.npos;
}

std::vector<std::string> wordsIn(const std::string& typed)
{
    if (isNumber(typed))
        return {" " + digitsIn(typed)};
    std::vector<std::string> words;
    const std::string folded = foldedWords(typed);
    for (std::size_t at = 0; at < folded.size();) {
        const std::size_t end = std::min(folded.find(' ', at + 1), folded.size());
        words.push_back(folded.substr(at, end - at));
        at = end;
    }
    return words;
}

/// The letters first, which few texts have; the space before them is in all.
std::optional<Rank> rankOf(const std::string& text, const std::string& word)
{
    if (text.starts_with(word))
        return BEGINS;
    const std::string_view letters = std::string_view(word).substr(1);
    std::optional<Rank> rank;
    for (std::size_t at = text.find(letters); at != text.npos; at = text.find(letters, at + 1)) {
        if (text[at - 1] == ' ')
            return BEGINS_WORD;
        rank = IS_WITHIN;
    }
    return rank;
}

/// As the worst of the words, but for a name that begins with one of them.
std::optional<Rank> rankOf(const std::string& text, const std::vector<std::string>& words)
{
    Rank worst = BEGINS, best = words.empty() ? BEGINS : IS_WITHIN;
    for (const std::string& word : words) {
        const std::optional<Rank> rank = rankOf(text, word);
        if (!rank)
            return std::nullopt;
        worst = std::max(worst, *rank);
        best = std::min(best, *rank);
    }
    return worst == BEGINS_WORD ? best : worst;
}

} // namespace

std::string foldedWords(const std::string& text)
{
    if (isPlain(text))
        return spacedWords(plainWords(text));
    std::string words;
    return spacedWords(wordsOf(decomposed(text)).toUTF8String(words));
}

void ContactIndex::put(const Contact& contact)
{
    std::string text = foldedWords(contact.name);
    for (const ContactNumber& number : contact.numbers)
        text.append(NUMBER).append(digitsIn(number.number));
    mTexts[contact.id] = std::move(text);
}

void ContactIndex::remove(ContactId contact)
{
    mTexts.erase(contact);
}

ContactIndex::Found ContactIndex::find(const std::string& typed, std::size_t most) const
{
    const std::vector<std::string> words = wordsIn(typed);
    std::array<std::vector<ContactId>, RANKS> found;
    Found result;
    for (const auto& [contact, text] : mTexts)
        if (const std::optional<Rank> rank = rankOf(text, words)) {
            ++result.count;
            if (found[*rank].size() < most)
                found[*rank].push_back(contact);
        }
    for (const std::vector<ContactId>& ranked : found)
        for (std::size_t at = 0; at < ranked.size() && result.best.size() < most; ++at)
            result.best.push_back(ranked[at]);
    return result;
}

} // namespace deskphone
