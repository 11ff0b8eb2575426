#pragma once

#include "simulator/core/Screen.h"

namespace simulator {

/// What the program says of its screen, by the library's display. On the GUI thread, between two messages.
ScreenWords displayedWords();

/// The program's language, as the web names it; empty where it names none. On the GUI thread.
std::string displayedLanguage();

/// What the program's catalogue has for the key; the key where it has nothing. On the GUI thread.
std::string displayedText(const std::string& key);

} // namespace simulator
