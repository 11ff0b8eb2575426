#pragma once

#include "toolkit/PString.h"

#include <vector>

namespace host {

/// What the number keys type. The plain ones are the letters that every language has; where a language's own are of
/// another script, the capitalised mode is made of them.
enum class InputMode { LOWER, CAPITALISED, UPPER, NUMBERS, PLAIN_LOWER, PLAIN_UPPER };

/// The characters that repeated presses of a key cycle through, in the language of the moment; empty where the key
/// types nothing. `beginsWord` is for the capitalised mode. GUI thread only.
PegString keypadLetters(int key, InputMode mode, bool beginsWord);

/// The modes in the language of the moment: where its own letters are of another script they come first, and the plain
/// ones stand beside them.
std::vector<InputMode> modesInLanguage(const std::vector<InputMode>& modes);

/// What the mode is called on the screen.
const PegString& nameOf(InputMode mode);

} // namespace host
