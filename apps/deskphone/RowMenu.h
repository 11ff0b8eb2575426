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
        std::string argument = {}; ///< what the text has in it; such a text keeps its language
    };

    RowMenu(Telephone& telephone, const std::vector<Action>& actions);
    RowMenu(const RowMenu&) = delete;
    RowMenu& operator=(const RowMenu&) = delete;

    void open() { mMenu.show(); }

    /// Takes it off the screen, if it is there.
    void dismiss() { mMenu.dismiss(); }

    /// Offers something else. On the threads that answer the user.
    void setActions(const std::vector<Action>& actions);

    /// What the user chooses is not heard after this. Not on the GUI thread.
    void stopListening() { mChoice.end(); }

private:
    struct Entry {
        Entry(Telephone& telephone, const Action& action);

        DisplayAPI::MenuCommand command;
        std::function<void()> run;
    };

    void chosen(const DisplayAPI::Command* command);

    Telephone& mTelephone;
    std::deque<Entry> mEntries; ///< before the menu that shows them
    DisplayAPI::ContextMenu mMenu;
    DisplayAPI::kit::Subscription mChoice;
};

} // namespace deskphone
