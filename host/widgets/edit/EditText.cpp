#include "host/widgets/edit/EditText.h"

#include "host/widgets/edit/Utf16.h"
#include "toolkit/PegMessage.h"

#include <algorithm>

namespace host {

namespace {

constexpr char16_t HIDING_DOT = u'\u2022';

} // namespace

void EditText::set(std::u16string_view text)
{
    clear();
    put(text);
}

void EditText::clear()
{
    endCandidate();
    mText.clear();
    mCaret = {};
}

std::u16string EditText::masked() const
{
    return mHidden ? std::u16string(mText.size(), HIDING_DOT) : mText;
}

std::u16string EditText::shown() const
{
    std::u16string dots = masked();
    if (mHidden && isChoosing())
        dots[mCaret.at - 1] = mText[mCaret.at - 1];
    return dots;
}

void EditText::setCaret(const Caret& caret)
{
    endCandidate();
    mCaret = caret;
}

void EditText::setMaximum(std::size_t characters)
{
    mMaximum = characters;
    if (mText.size() > mMaximum)
        set(std::u16string(mText));
}

void EditText::setKind(EditKind kind)
{
    mKind = kind;
    mHasKind = true;
    mHidden = kind == EditKind::PASSWORD;
    setModes(modesOf(kind));
    set(std::u16string(mText));
}

void EditText::setModes(std::vector<InputMode> modes)
{
    if (modes.empty())
        return;
    endCandidate();
    mModes = std::move(modes);
    mMode.reset();
}

/// The language may have changed since the user has chosen one.
InputMode EditText::mode() const
{
    const std::vector<InputMode> modes = modesInLanguage(mModes);
    const bool isThere = mMode && std::ranges::find(modes, *mMode) != modes.end();
    return isThere ? *mMode : modes.front();
}

void EditText::nextMode()
{
    endCandidate();
    const std::vector<InputMode> modes = modesInLanguage(mModes);
    const auto next = std::ranges::find(modes, mode()) + 1;
    mMode = next == modes.end() ? modes.front() : *next;
}

std::u16string_view EditText::symbols() const
{
    return mHasKind || mode() != InputMode::NUMBERS ? symbolsOf(mKind) : std::u16string_view();
}

bool EditText::types(int key) const
{
    if (key == PK_STAR && !symbols().empty())
        return false;
    const PegString letters = keypadLetters(key, mode(), true);
    return mMaximum > 0 && !letters.empty() && fits(mKind, {}, 0, letters.data()[0]);
}

EditText::Typed EditText::type(int key)
{
    if (mCandidateKey == key && changeCandidate(key))
        return Typed::CANDIDATE;
    endCandidate();
    const PegString letters = keypadLetters(key, mode(), beginsWord(mCaret.at));
    if (letters.empty())
        return Typed::NOTHING;
    if (!putOne(letters.data()[0]))
        return Typed::REFUSED;
    if (letters.length() == 1)
        return Typed::CHARACTER;
    mCandidateKey = key;
    mCandidateIndex = 0;
    return Typed::CANDIDATE;
}

/// The next character of the same key takes the place of the last one, unless the keys have others by now.
bool EditText::changeCandidate(int key)
{
    const PegString letters = keypadLetters(key, mode(), beginsWord(mCaret.at - 1));
    char16_t& chosen = mText[mCaret.at - 1];
    if (mCandidateIndex >= letters.length() || letters.data()[mCandidateIndex] != chosen)
        return false;
    mCandidateIndex = (mCandidateIndex + 1) % letters.length();
    chosen = letters.data()[mCandidateIndex];
    return true;
}

bool EditText::put(std::u16string_view characters)
{
    endCandidate();
    bool all = true;
    for (const char16_t character : characters)
        all = putOne(character) && all;
    return all;
}

/// With what has to stand before it.
bool EditText::putOne(char16_t character)
{
    if (mText.size() >= mMaximum)
        return false;
    if (!fits(mKind, mText, mCaret.at, character)) {
        const char16_t separator = separatorBefore(mKind, mText, mCaret.at);
        if (separator == 0 || separator == character || !putOne(separator))
            return false;
        return putOne(character) || (deleteBack(), false);
    }
    mText.insert(mCaret.at, 1, character);
    mCaret = {mCaret.at + 1, true};
    return true;
}

bool EditText::replaceLast(char16_t character)
{
    if (mCaret.at == 0)
        return false;
    std::u16string without = mText;
    without.erase(mCaret.at - 1, 1);
    if (!fits(mKind, without, mCaret.at - 1, character))
        return false;
    mText[mCaret.at - 1] = character;
    return true;
}

bool EditText::deleteBack()
{
    endCandidate();
    for (std::size_t end = mCaret.at; end > 0;) {
        const std::size_t begin = TextOrder(shown()).before(end);
        std::u16string without = mText;
        without.erase(begin, end - begin);
        if (couldBe(mKind, without)) {
            mText = std::move(without);
            mCaret = {begin, begin > 0};
            return true;
        }
        end = begin;
    }
    return false;
}

bool EditText::beginsWord(std::size_t at) const
{
    constexpr std::u16string_view BEFORE_WORDS = u" -\n";
    return at == 0 || BEFORE_WORDS.find(mText[at - 1]) != BEFORE_WORDS.npos;
}

} // namespace host
