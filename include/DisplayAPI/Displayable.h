#pragma once

#include "DisplayAPI/Widget.h"

#include <utility>
#include <vector>

namespace DisplayAPI {

class DisplayablePrivateIfc;
class Item;
class ItemStateListener;

/// Anything that a Display can make current: a screen, a list, a form or a popup.
///
/// Ownership: created and deleted by the application; a display never deletes one. Its toolkit widget belongs to the
/// presentation manager while it is on a display's stack. A class of its own deletes its private side with
/// deletePrivateSide(), in a request that its destructor waits for; a displayable without such a request is deleted on
/// the GUI thread, or when no display has shown it. A request that a class does not handle is not completed here: do
/// not wait for one.
class DISPLAYAPI_EXPORT Displayable : public Widget {
public:
    Displayable();

    /// Recalls what is queued for this displayable's command listeners: none of it is delivered afterwards.
    ~Displayable() override;

    void processGuiRequest(GuiRequestEvent& request) override;

    /// The GUI-thread side; null while there is none. Owned by the displayable. GUI thread only.
    virtual DisplayablePrivateIfc* getPrivateImpl() = 0;

    /// The class name; "Displayable with no name" until the class has set its own, which it does with the private side,
    /// on the GUI thread: ask there, or after a call that has waited.
    const std::string& getName() const { return name; }

    /// Appends a listener; one that is added twice is called twice, null is ignored. Not owned: it has to outlive the
    /// displayable. Runs on the calling thread: before the displayable is shown, or the GUI thread.
    void addItemStateListener(ItemStateListener* listener);

    /// Queues the change of `item` for every listener, in order of addition. GUI thread only.
    void callListeners(Item* item);

    /// Soft keys do not exist on this telephone: these do nothing.
    void useSoftKeys();
    void doNotUseSoftKeys();
    void doNotUseSoftKeysForContent();
    void useSoftKeysBasedOnCommands();

protected:
    /// Deletes the private side, if there is one; `side` is null afterwards. GUI thread only. Every display that still
    /// shows this lets go of it first, as if it had been dismissed. An interface with a protected destructor that names
    /// this class as its friend is deleted in no other way; one that has destroy() deletes itself. False where whoever
    /// is told of that by a display has deleted this, with its side: touch neither.
    template <typename Side>
    bool deletePrivateSide(Side*& side)
    {
        if (side == nullptr)
            return true;
        if (!leaveDisplay())
            return false;
        Side* const left = std::exchange(side, nullptr);
        if constexpr (requires { left->destroy(); }) {
            if (left != nullptr)
                left->destroy();
        } else {
            delete left;
        }
        return true;
    }

private:
    bool leaveDisplay();

    std::vector<ItemStateListener*> mItemStateListeners;
};

} // namespace DisplayAPI
