#pragma once

#include "DisplayAPI/MenuCommand.h"
#include "kit/Text.h"

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

namespace deskphone {

class Place;
class Telephone;

/// What the telephone offers: commands, each of which leads somewhere.
class MainMenu {
public:
    struct Entry {
        std::string text;      ///< its key
        std::string shortText; ///< that of a word for a programmable key
        Place* target;
    };

    MainMenu(Telephone& telephone, const std::vector<Entry>& entries);
    MainMenu(const MainMenu&) = delete;
    MainMenu& operator=(const MainMenu&) = delete;

    std::vector<DisplayAPI::MenuCommand*> commands();

    /// In the same order, in the language of the moment.
    std::vector<std::string> shortTexts() const;

    /// Opens what the command leads to, or what stands there; one that is not in the menu does nothing.
    void choose(const DisplayAPI::Command* command);
    void chooseAt(std::size_t index);

private:
    struct Item {
        Item(Telephone& telephone, const Entry& entry);

        DisplayAPI::MenuCommand command;
        DisplayAPI::kit::Text shortText;
        Place* target;
    };

    std::deque<Item> mItems;
};

} // namespace deskphone
