#include "host/widgets/edit/KeypadLetters.h"

#include "toolkit/PegMessage.h"
#include "widgets/KestrelTextEdit.h"

#include <array>

namespace host {

namespace {

using Edit = KestrelTextEdit;

const std::array<const PegString*, 8> LOWER{&Edit::msKeypad2lower, &Edit::msKeypad3lower, &Edit::msKeypad4lower,
                                            &Edit::msKeypad5lower, &Edit::msKeypad6lower, &Edit::msKeypad7lower,
                                            &Edit::msKeypad8lower, &Edit::msKeypad9lower};
const std::array<const PegString*, 8> UPPER{&Edit::msKeypad2upper, &Edit::msKeypad3upper, &Edit::msKeypad4upper,
                                            &Edit::msKeypad5upper, &Edit::msKeypad6upper, &Edit::msKeypad7upper,
                                            &Edit::msKeypad8upper, &Edit::msKeypad9upper};

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
    const bool upper = mode == InputMode::UPPER || (mode == InputMode::CAPITALISED && beginsWord);
    return *(upper ? UPPER : LOWER)[static_cast<std::size_t>(key - '2')];
}

const PegString& nameOf(InputMode mode)
{
    switch (mode) {
    case InputMode::LOWER: return Edit::msTextInputModeLowerCase;
    case InputMode::CAPITALISED: return Edit::msTextInputModeCapitalised;
    case InputMode::UPPER: return Edit::msTextInputModeUpperCase;
    default: return Edit::msTextInputModeNumeric;
    }
}

} // namespace host
