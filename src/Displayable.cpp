#include "DisplayAPI/Displayable.h"

#include "CommandExecutor.h"
#include "DisplayAPI/ItemStateListener.h"
#include "DisplayAPI/TabScreen.h"
#include "DisplayPrivate.h"
#include "GuiThread.h"
#include "Survival.h"

namespace DisplayAPI {

Displayable::Displayable()
{
    name = "Displayable with no name";
}

/// On other threads nothing of it is under way: the request that its class has waited for was the last.
Displayable::~Displayable()
{
    Survival::end(this);
    CommandExecutor::retrieveCommand(nullptr, nullptr, this);
    DisplayPrivate::forgetEverywhere(this);
}

void Displayable::processGuiRequest(GuiRequestEvent&) {}

void Displayable::addItemStateListener(ItemStateListener* listener)
{
    if (listener != nullptr)
        mItemStateListeners.push_back(listener);
}

void Displayable::callListeners(Item* item)
{
    onlyOnGuiThread("Displayable::callListeners()");
    for (std::size_t i = 0; i < mItemStateListeners.size(); ++i)
        mItemStateListeners[i]->postItemStateChange(item);
}

/// False where whoever observes a display has deleted it at that.
bool Displayable::leaveDisplay()
{
    onlyOnGuiThread("Displayable::leaveDisplay()");
    const Survival survival(this);
    DisplayPrivate::dismissEverywhere(this);
    if (survival)
        TabScreen::forgetEverywhere(this);
    return static_cast<bool>(survival);
}

void Displayable::useSoftKeys() {}

void Displayable::doNotUseSoftKeys() {}

void Displayable::doNotUseSoftKeysForContent() {}

void Displayable::useSoftKeysBasedOnCommands() {}

} // namespace DisplayAPI
