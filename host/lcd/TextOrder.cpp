#include "host/lcd/TextOrder.h"

#include "host/lcd/Drawing.h"
#include "host/lcd/Scripts.h"
#include "host/lcd/Utf8.h"

#include <algorithm>
#include <numeric>
#include <string>

namespace host {

namespace {

constexpr char16_t FIRST_MARK = 0x300;
constexpr std::uint8_t READ_FROM_THE_RIGHT = 1; ///< the lowest bit of a level

/// Each unit is a character, and is read from the left.
bool isSimple(char16_t unit)
{
    return unit < FIRST_MARK || isPlain(unit);
}

} // namespace

TextOrder::TextOrder(std::u16string_view line)
{
    std::u16string text(line);
    std::ranges::transform(text, text.begin(), drawn);
    mCharacters.reserve(text.size());
    if (std::ranges::all_of(text, isSimple)) {
        for (std::size_t at = 0; at < text.size(); ++at)
            mCharacters.push_back({at, at + 1, 0});
    } else {
        const TextReading reading = drawing().read(text);
        mFromTheRight = reading.fromTheRight;
        for (std::size_t at = 0; at < text.size(); ++at) {
            if (mCharacters.empty() || reading.begins[at])
                mCharacters.push_back({at, at, reading.levels[at]});
            mCharacters.back().end = at + 1;
        }
    }
    bringIntoOrder();
}

/// From the highest level down, what is at least of that level is turned round.
void TextOrder::bringIntoOrder()
{
    mOnScreen.resize(mCharacters.size());
    std::iota(mOnScreen.begin(), mOnScreen.end(), 0u);
    std::uint8_t highest = 0;
    for (const Character& character : mCharacters)
        highest = std::max(highest, character.level);
    for (std::uint8_t level = highest; level > 0; --level) {
        const auto isInside = [&](std::size_t index) { return mCharacters[index].level >= level; };
        for (auto at = mOnScreen.begin(); at != mOnScreen.end();) {
            const auto begin = std::find_if(at, mOnScreen.end(), isInside);
            at = std::find_if_not(begin, mOnScreen.end(), isInside);
            std::reverse(begin, at);
        }
    }
    mPositions.resize(mOnScreen.size());
    for (std::size_t position = 0; position < mOnScreen.size(); ++position)
        mPositions[mOnScreen[position]] = position;
}

/// Of the last character that begins before `at`, or of none.
std::size_t TextOrder::indexBefore(std::size_t at) const
{
    const auto next = std::ranges::lower_bound(mCharacters, at, {}, &Character::begin);
    return static_cast<std::size_t>(next - mCharacters.begin()) - 1;
}

std::size_t TextOrder::before(std::size_t at) const
{
    return at == 0 || mCharacters.empty() ? 0 : mCharacters[indexBefore(at)].begin;
}

std::size_t TextOrder::behind(std::size_t at) const
{
    const auto next = std::ranges::upper_bound(mCharacters, at, {}, &Character::end);
    return next == mCharacters.end() ? at : next->end;
}

/// How many characters stand to its left.
std::size_t TextOrder::gapOf(const Caret& caret) const
{
    const bool isBehind = caret.at > 0 && (caret.behind || caret.at >= mCharacters.back().end);
    const std::size_t index = isBehind ? indexBefore(caret.at) : indexBefore(caret.at + 1);
    const bool fromTheRight = (mCharacters[index].level & READ_FROM_THE_RIGHT) != 0;
    return mPositions[index] + (isBehind != fromTheRight ? 1 : 0);
}

/// The cursor stays with the character that it has passed.
std::optional<Caret> TextOrder::moved(const Caret& caret, bool right) const
{
    if (mCharacters.empty())
        return std::nullopt;
    const std::size_t gap = gapOf(caret);
    if (gap == (right ? mCharacters.size() : 0))
        return std::nullopt;
    const Character& passed = mCharacters[mOnScreen[right ? gap : gap - 1]];
    const bool fromTheRight = (passed.level & READ_FROM_THE_RIGHT) != 0;
    return right != fromTheRight ? Caret{passed.end, true} : Caret{passed.begin, false};
}

} // namespace host
