#include "DisplayAPI/Displayable.h"

#include "CommandExecutor.h"
#include "DisplayAPI/ItemStateListener.h"
#include "DisplayAPI/TabScreen.h"
#include "DisplayPrivate.h"
#include "GuiThread.h"

namespace DisplayAPI {

Displayable::Displayable()
{
    name = "Displayable with no name";
}

Displayable::~Displayable()
{
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

void Displayable::leaveDisplay()
{
    onlyOnGuiThread("Displayable::leaveDisplay()");
    DisplayPrivate::dismissEverywhere(this);
    TabScreen::forgetEverywhere(this);
}

void Displayable::useSoftKeys() {}

void Displayable::doNotUseSoftKeys() {}

void Displayable::doNotUseSoftKeysForContent() {}

void Displayable::useSoftKeysBasedOnCommands() {}

} // namespace DisplayAPI
