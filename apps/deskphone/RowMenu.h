#pragma once

#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/MenuCommand.h"
#include "kit/Subscription.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace deskphone {

class Telephone;

/// What the user can do with a row of a screen, as a menu over the screen. Make and delete it on the GUI thread.
class RowMenu {
public:
    struct Action {
        std::string text;          ///< its key
        std::function<void()> run; ///< on a thread of the library's
    };

    RowMenu(Telephone& telephone, const std::vector<Action>& actions);
    RowMenu(const RowMenu&) = delete;
    RowMenu& operator=(const RowMenu&) = delete;

    void open() { mMenu.show(); }

    /// What the user chooses is not heard after this. Not on the GUI thread.
    void stopListening() { mChoice.end(); }

private:
    struct Entry {
        Entry(Telephone& telephone, const Action& action);

        DisplayAPI::MenuCommand command;
        std::function<void()> run;
    };

    void chosen(const DisplayAPI::Command* command);

    std::deque<Entry> mEntries; ///< before the menu that shows them
    DisplayAPI::ContextMenu mMenu;
    DisplayAPI::kit::Subscription mChoice;
};

} // namespace deskphone
