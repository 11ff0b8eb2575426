#pragma once

#include "toolkit/PString.h"

namespace host {

/// What the number keys type.
enum class InputMode { LOWER, CAPITALISED, UPPER, NUMBERS };

/// The characters that repeated presses of a key cycle through, in the language of the moment; empty where the key
/// types nothing. `beginsWord` is for the capitalised mode. GUI thread only.
PegString keypadLetters(int key, InputMode mode, bool beginsWord);

/// What the mode is called on the screen.
const PegString& nameOf(InputMode mode);

} // namespace host
