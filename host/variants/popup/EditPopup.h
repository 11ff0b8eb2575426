#pragma once

#include "host/variants/popup/BarCommands.h"
#include "host/variants/popup/Popup.h"
#include "host/widgets/popup/DialerField.h"

#include <mutex>
#include <vector>

namespace DisplayAPI {

class Item;
class ItemStateListener;
class MenuCommand;

/// The data of a popup in which something is typed, above commands: up and down move in these, too, as left and right
/// are the edit line's.
struct EditPopup : public PopupSide::Popup {
    EditPopup(PopupSide& side, Displayable* facade, Command* hidden);
    ~EditPopup() override;

    void opened() override { commands.begin(); }
    void leaving() override { letGo(); }

    void add(MenuCommand* command);
    void remove(MenuCommand* command);
    void clear();
    void setDefault(MenuCommand* command);

    /// Each is told once of what the user types; null is ignored. Any thread.
    void addListener(ItemStateListener* listener);
    void removeListener(ItemStateListener* listener);

    /// The key that is held is somebody else's from now on.
    void letGo();

    host::DialerField* const field = new host::DialerField; ///< the box's, and lives as long
    BarCommands commands{[this] { return box != nullptr ? &box->bar() : nullptr; }, [this] { layOut(); }};

protected:
    void hear(const PegMessage& message) override;

    /// The user has pressed left where there is nothing on that side of the cursor.
    virtual void goBack() = 0;

    /// He has typed. Ends with tellEdited().
    virtual void userHasEdited() = 0;

    /// The last thing that a handler does. Null is no item.
    void tellEdited(Item* item);

    /// On two lines the bar's room is that of the second line.
    void layOut();

private:
    void key(int key);
    void moveTo(int command);
    void moved();
    void choose(int command);

    std::mutex mListenersLock; ///< held while a notification is queued for each of them
    std::vector<ItemStateListener*> mListeners;
};

} // namespace DisplayAPI
