#include "DisplayPrivate.h"

#include "DisplayPrivateLog.h"
#include "StackEntry.h"
#include "StackWalk.h"
#include "Survival.h"

#include <algorithm>

namespace DisplayAPI {

void DisplayPrivate::eraseDismissed(DisplayablePrivateIfc* dismissed)
{
    const auto found = std::find_if(mItemList.begin(), mItemList.end(),
                                    [=](Displayable* d) { return d->getPrivateImpl() == dismissed; });
    PegThing* const widget = dismissed->getWidget();
    if (found != mItemList.end()) {
        Displayable* const entry = *found;
        gDisplayLog(TRACE, 514, "widgetDismissed() this=[%p] removing from list disp [%s] [%p] priv [%p] widget [%p]",
                    address(this), nameOf(entry), address(entry), address(dismissed), address(widget));
        dismissed->gainOwnership();
        eraseEntry(entry);
    }
    if (widget != nullptr && widget->Parent() != nullptr) {
        dismissed->gainOwnership();
        widget->Parent()->Remove(widget, true);
    }
}

void DisplayPrivate::eraseEntry(Displayable* entry)
{
    const auto found = std::find(mItemList.begin(), mItemList.end(), entry);
    if (found != mItemList.end())
        mItemList.erase(found);
    for (StackWalk* walk : mWalks)
        walk->isDismissed(entry);
}

void DisplayPrivate::widgetDismissed(DisplayablePrivateIfc* dismissed)
{
    if (dismissed == nullptr)
        return;
    eraseDismissed(dismissed);
    if (mCurrent != nullptr && mCurrent->getPrivateImpl() == dismissed)
        makeTopmostCurrent();
}

/// After the one that was current has closed itself.
void DisplayPrivate::makeTopmostCurrent()
{
    if (mItemList.empty() && !mStackChangeUnderWay)
        return setCurrent(nullptr);
    if (!mItemList.empty())
        mSystemWindow.forgetPrevious();
    mCurrent = mItemList.empty() ? nullptr : mItemList.back();
    if (mVisible && !mStackChangeUnderWay)
        restoreTopmost();
}

/// Shows the displayable that lay under the dismissed one.
void DisplayPrivate::restoreTopmost()
{
    DisplayablePrivateIfc* const side = mCurrent->getPrivateImpl();
    if (side == nullptr)
        return;
    if (side->getWidget() != nullptr)
        restoreWidget(side);
    side->show();
}

void DisplayPrivate::restoreWidget(DisplayablePrivateIfc* side)
{
    PegThing* const widget = side->getWidget();
    gDisplayLog(TRACE, 552,
                "widgetDismissed() this=[%p] showing the previous current disp [%s] [%p] priv [%p] widget [%p]",
                address(this), nameOf(mCurrent), address(mCurrent), address(side), address(widget));
    widget->Layer(LAYER_RESTORED);
    if (widget->Parent() != nullptr) {
        gDisplayLog(TRACE, 557, "widgetDismissed() this=[%p] removing widget [%p] from parent [%p]", address(this),
                    address(widget), address(widget->Parent()));
        widget->Parent()->Remove(widget, false);
        gDisplayLog(TRACE, 560, "widgetDismissed() this=[%p] adding widget [%p] to PM [%p]", address(this),
                    address(widget), address(gpPresent));
        side->releaseOwnership();
        addToScreen(widget);
        focusChanged(widget);
        moveFocus(widget, 565, "widgetDismissed() this=[%p] calling MoveFocusTree on widget [%p]");
        focusChanged(widget);
    } else {
        side->releaseOwnership();
        addToScreen(widget);
        focusChanged(widget);
        gDisplayLog(TRACE, 571, "widgetDismissed() this=[%p] NOT calling MoveFocusTree on widget [%p]", address(this),
                    address(widget));
    }
}

/// Whoever is told by one display may delete it, which takes it off the others.
void DisplayPrivate::dismissEverywhere(Displayable* displayable)
{
    const Survival survival(displayable);
    for (DisplayPrivate* display : living()) {
        const bool wasHeld = display->holdOnce(displayable);
        if (wasHeld || display->mCurrent == displayable)
            display->widgetDismissed(displayable->getPrivateImpl());
        if (!survival)
            return;
        display->forget(displayable);
    }
}

/// A server display may hold a displayable more than once: dismissed, it must not come back from under itself. Returns
/// whether it is held at all.
bool DisplayPrivate::holdOnce(Displayable* displayable)
{
    const auto first = std::find(mItemList.begin(), mItemList.end(), displayable);
    if (first == mItemList.end())
        return false;
    mItemList.erase(std::remove(first + 1, mItemList.end(), displayable), mItemList.end());
    return true;
}

void DisplayPrivate::forgetEverywhere(Displayable* displayable)
{
    if (!Widget::isGuiThread())
        return;
    for (DisplayPrivate* display : living())
        display->forget(displayable);
}

void DisplayPrivate::forget(Displayable* displayable)
{
    std::erase(mItemList, displayable);
    for (StackWalk* walk : mWalks)
        walk->isDeleted(displayable);
    mVisibleRectMonitor.remove(*displayable);
    mSystemWindow.forget(displayable);
    if (mCurrent == displayable)
        mCurrent = mItemList.empty() ? nullptr : mItemList.back();
}

} // namespace DisplayAPI
