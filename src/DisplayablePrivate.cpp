#include "DisplayAPI/DisplayablePrivate.h"

#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/DisplayPrivateIfc.h"
#include "DisplayAPI/ScreenText.h"
#include "GuiThread.h"

#include <algorithm>

namespace DisplayAPI {

std::atomic<TranslatorIfc*> DisplayablePrivate::commonTranslator{nullptr};

DisplayablePrivate::DisplayablePrivate() = default;

DisplayablePrivate::~DisplayablePrivate() = default;

bool DisplayablePrivate::hideOldWidgetOnFocusGained()
{
    return true;
}

int DisplayablePrivate::widgetPosition()
{
    return 0;
}

/// Only those that are on its stack at its end are told that a display goes.
DisplayPrivateIfc* DisplayablePrivate::display() const
{
    return DisplayPrivateIfc::lives(mDisplay) ? mDisplay : nullptr;
}

void DisplayablePrivate::connectDisplayChangedSignal(DisplayPrivateIfc* display)
{
    onlyOnGuiThread("DisplayablePrivate::connectDisplayChangedSignal()");
    mDisplay = display;
}

std::string DisplayablePrivate::serialise()
{
    return screen::object("Not Implemented", {});
}

std::string DisplayablePrivate::serialise(const std::vector<DisplayAPIUtils::Rect>&)
{
    return serialise();
}

void DisplayablePrivate::widgetDismissed(DisplayablePrivate* dismissed)
{
    onlyOnGuiThread("DisplayablePrivate::widgetDismissed()");
    if (DisplayPrivateIfc* attachedTo = display())
        attachedTo->widgetDismissed(dismissed);
}

void DisplayablePrivate::enable(bool) {}

void DisplayablePrivate::addCommandListener(CommandListener* listener)
{
    onlyOnGuiThread("DisplayablePrivate::addCommandListener()");
    const auto known = std::find(mCommandListeners.begin(), mCommandListeners.end(), listener);
    if (listener != nullptr && known == mCommandListeners.end())
        mCommandListeners.push_back(listener);
}

void DisplayablePrivate::removeCommandListener(CommandListener* listener)
{
    onlyOnGuiThread("DisplayablePrivate::removeCommandListener()");
    std::erase(mCommandListeners, listener);
}

void DisplayablePrivate::join(DisplayablePrivate* other)
{
    onlyOnGuiThread("DisplayablePrivate::join()");
    if (other != nullptr)
        mDisplay = other->display();
}

void DisplayablePrivate::disjoin()
{
    onlyOnGuiThread("DisplayablePrivate::disjoin()");
    mDisplay = nullptr;
}

bool DisplayablePrivate::hasCaption()
{
    return false;
}

void DisplayablePrivate::setSysWindowSize(int) {}

void DisplayablePrivate::setSysWindowText(std::string, int) {}

bool DisplayablePrivate::hasSystemWindow()
{
    return false;
}

void DisplayablePrivate::postCommand(Command* command, Displayable* displayable)
{
    onlyOnGuiThread("DisplayablePrivate::postCommand()");
    // A listener may change the list while it is told.
    const std::vector<CommandListener*> listeners = mCommandListeners;
    for (CommandListener* listener : listeners)
        listener->postCommandAction(command, displayable);
}

void DisplayablePrivate::generateDisplayChangedEvent()
{
    onlyOnGuiThread("DisplayablePrivate::generateDisplayChangedEvent()");
    if (DisplayPrivateIfc* attachedTo = display())
        attachedTo->displayChanged();
}

} // namespace DisplayAPI
