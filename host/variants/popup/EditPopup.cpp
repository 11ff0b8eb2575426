#include "host/variants/popup/EditPopup.h"

#include "DisplayAPI/ItemStateListener.h"
#include "DisplayAPI/MenuCommand.h"

#include <algorithm>

namespace DisplayAPI {

EditPopup::EditPopup(PopupSide& side, Displayable* facade, Command* hidden) : Popup(side, facade, hidden)
{
    field->setMessageTarget(this);
    field->line().setMessageTarget(this);
    box->setField(field);
}

EditPopup::~EditPopup()
{
    if (box == nullptr)
        return;
    field->setMessageTarget(nullptr);
    field->line().setMessageTarget(nullptr);
}

void EditPopup::hear(const PegMessage& message)
{
    switch (message.wType) {
    case PM_CURRENT_CHANGED: message.pSource == &field->line() ? userHasEdited() : moved(); break;
    case PM_CLICKED: choose(message.iData); break;
    case PM_LEFT: goBack(); break;
    case PM_KEY: key(message.iData); break;
    default: break;
    }
}

/// What neither the field nor the bar has a use for.
void EditPopup::key(int key)
{
    if (key == PK_UP)
        moveTo(box->bar().current() - 1);
    else if (key == PK_DOWN)
        moveTo(box->bar().current() + 1);
}

void EditPopup::moveTo(int command)
{
    const int before = box->bar().current();
    box->bar().setCurrent(command);
    if (box->bar().current() != before)
        moved();
}

void EditPopup::moved()
{
    commands.userMoved();
    changed();
}

void EditPopup::choose(int command)
{
    if (Command* const chosen = commands.at(command))
        raise(chosen);
}

void EditPopup::letGo()
{
    if (box != nullptr)
        field->line().letGo();
}

void EditPopup::tellEdited(Item* item)
{
    {
        const std::lock_guard lock(mListenersLock);
        for (ItemStateListener* const listener : mListeners)
            listener->postItemStateChange(item);
    }
    changed();
}

void EditPopup::addListener(ItemStateListener* listener)
{
    const std::lock_guard lock(mListenersLock);
    if (listener != nullptr && std::ranges::find(mListeners, listener) == mListeners.end())
        mListeners.push_back(listener);
}

void EditPopup::removeListener(ItemStateListener* listener)
{
    const std::lock_guard lock(mListenersLock);
    std::erase(mListeners, listener);
}

void EditPopup::layOut()
{
    field->setRoomForSecond(!host::hasTwoLines() || box->bar().count() == 0);
    box->fitField();
}

void EditPopup::add(MenuCommand* command)
{
    if (commands.add(command))
        changed();
}

void EditPopup::remove(MenuCommand* command)
{
    if (commands.remove(command))
        changed();
}

void EditPopup::clear()
{
    commands.clear();
    if (box != nullptr)
        changed();
}

void EditPopup::setDefault(MenuCommand* command)
{
    commands.setDefault(command);
    changed();
}

} // namespace DisplayAPI
