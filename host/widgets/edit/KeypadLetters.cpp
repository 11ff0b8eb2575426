#include "host/widgets/edit/KeypadLetters.h"

#include "toolkit/PegMessage.h"
#include "utilities/ICC.h"
#include "widgets/KestrelTextEdit.h"

#include <algorithm>
#include <array>

namespace host {

namespace {

using Edit = KestrelTextEdit;

using Tables = std::array<const PegString*, 8>;

const Tables OWN_LOWER{&Edit::msKeypad2lower, &Edit::msKeypad3lower, &Edit::msKeypad4lower, &Edit::msKeypad5lower,
                       &Edit::msKeypad6lower, &Edit::msKeypad7lower, &Edit::msKeypad8lower, &Edit::msKeypad9lower};
const Tables OWN_UPPER{&Edit::msKeypad2upper, &Edit::msKeypad3upper, &Edit::msKeypad4upper, &Edit::msKeypad5upper,
                       &Edit::msKeypad6upper, &Edit::msKeypad7upper, &Edit::msKeypad8upper, &Edit::msKeypad9upper};

const Tables SHARED_LOWER{&Edit::msKeypad2lowerRestricted, &Edit::msKeypad3lowerRestricted,
                          &Edit::msKeypad4lowerRestricted, &Edit::msKeypad5lowerRestricted,
                          &Edit::msKeypad6lowerRestricted, &Edit::msKeypad7lowerRestricted,
                          &Edit::msKeypad8lowerRestricted, &Edit::msKeypad9lowerRestricted};
const Tables SHARED_UPPER{&Edit::msKeypad2upperRestricted, &Edit::msKeypad3upperRestricted,
                          &Edit::msKeypad4upperRestricted, &Edit::msKeypad5upperRestricted,
                          &Edit::msKeypad6upperRestricted, &Edit::msKeypad7upperRestricted,
                          &Edit::msKeypad8upperRestricted, &Edit::msKeypad9upperRestricted};

/// Whether the tables' letters are those that every language has, and more of the same script.
bool isPlainScript(const Tables& tables)
{
    const PegString& first = *tables.front();
    return !first.empty() && first.data()[0] < 0x80;
}

const Tables& tablesOf(InputMode mode, bool beginsWord)
{
    switch (mode) {
    case InputMode::PLAIN_LOWER: return SHARED_LOWER;
    case InputMode::PLAIN_UPPER: return SHARED_UPPER;
    case InputMode::CAPITALISED:
        if (!isPlainScript(OWN_LOWER))
            return beginsWord ? SHARED_UPPER : SHARED_LOWER;
        return beginsWord ? OWN_UPPER : OWN_LOWER;
    case InputMode::UPPER: return OWN_UPPER;
    default: return OWN_LOWER;
    }
}

PegString oneCharacter(int key)
{
    const PegChar character = static_cast<PegChar>(key);
    return PegString(&character, 1);
}

/// The keys without letters: zero is the space bar.
PegString withoutLetters(int key)
{
    constexpr PegChar SPACE_AND_ZERO[] = {' ', '0', 0};
    if (key == PK_0)
        return PegString(SPACE_AND_ZERO);
    return key == '1' ? oneCharacter(key) : PegString();
}

} // namespace

PegString keypadLetters(int key, InputMode mode, bool beginsWord)
{
    if (!isOfKeypad(key))
        return {};
    if (mode == InputMode::NUMBERS)
        return oneCharacter(key);
    if (key < '2' || key > PK_9)
        return withoutLetters(key);
    return *tablesOf(mode, beginsWord)[static_cast<std::size_t>(key - '2')];
}

std::vector<InputMode> modesInLanguage(const std::vector<InputMode>& modes)
{
    using enum InputMode;
    if (isPlainScript(OWN_LOWER))
        return modes;
    const auto isWanted = [&](InputMode mode) { return std::ranges::find(modes, mode) != modes.end(); };
    const InputMode plainUpper = isPlainScript(OWN_UPPER) ? UPPER : PLAIN_UPPER;
    std::vector<InputMode> all;
    const auto add = [&](InputMode mode, bool wanted) {
        if (wanted && std::ranges::find(all, mode) == all.end())
            all.push_back(mode);
    };
    add(LOWER, isWanted(LOWER));
    add(UPPER, isWanted(UPPER) && plainUpper != UPPER);
    add(CAPITALISED, isWanted(CAPITALISED));
    add(PLAIN_LOWER, isWanted(LOWER) || isWanted(PLAIN_LOWER));
    add(plainUpper, isWanted(UPPER));
    add(PLAIN_UPPER, isWanted(PLAIN_UPPER));
    add(NUMBERS, isWanted(NUMBERS));
    return all;
}

const PegString& nameOf(InputMode mode)
{
    static const PegString lowerName = ICC::fromUTF8toUNICODE("abc");
    static const PegString upperName = ICC::fromUTF8toUNICODE("ABC");
    switch (mode) {
    case InputMode::LOWER: return Edit::msTextInputModeLowerCase;
    case InputMode::CAPITALISED: return Edit::msTextInputModeCapitalised;
    case InputMode::UPPER: return Edit::msTextInputModeUpperCase;
    case InputMode::PLAIN_LOWER: return lowerName;
    case InputMode::PLAIN_UPPER: return upperName;
    default: return Edit::msTextInputModeNumeric;
    }
}

} // namespace host
