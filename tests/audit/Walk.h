#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace audit {

/// A step on the way to a screen: the row that is chosen, or where another key than OK is pressed on it. "next" is the
/// key that goes to the next tab.
struct Step {
    int row = 0;
    std::string key = "ok";
    std::string line = {}; ///< of a script, in the place of those; empty where there is none
};

/// A screen, and the steps that lead to it from the first one.
struct Screen {
    std::string name;
    int rows = 0;
    std::vector<Step> path;
    std::string wayBack = {}; ///< lines of a script to where left leads further; empty where it does from the screen
};

/// Reads a list of screens: see the file `screens`. Throws where it cannot be read.
std::vector<Screen> readScreens(const std::string& fileName);

/// A script that chooses the language in row `language` of the settings, and writes what each screen shows with each
/// row selected, and what the screen shows that it is left for, as NAME.json, NAME.1.json and so on, and
/// from-NAME.json. Where the language is read `fromTheRight`, the next tab stands to the left.
std::string scriptThrough(const std::vector<Screen>& screens, int language, bool fromTheRight);

/// A number from 1 on; throws where `text` is none.
int toContacts(std::string_view text);

/// A script that writes all pages of the contacts, `step` rows apart.
std::string scriptThroughContacts(int contacts, int step);

/// A script that writes the cards of the first contacts.
std::string scriptThroughCards(int cards);

} // namespace audit
