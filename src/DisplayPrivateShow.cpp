#include "DisplayPrivate.h"

#include "DisplayPrivateLog.h"
#include "StackEntry.h"
#include "StackWalk.h"
#include "Variant.h"
#include "widgets/StatusMessage.h"

namespace DisplayAPI {

void DisplayPrivate::show()
{
    mVisible = true;
    gDisplayLog(TRACE, 580, "show() this=[%p] calling showContentWidget()", address(this));
    showContentWidget();
    if (!mItemList.empty()) {
        Displayable* const topmost = mItemList.back();
        gDisplayLog(TRACE, 584, "show() this=[%p] calling showWidget on disp [%s] [%p] priv [%p] widget [%p]",
                    address(this), nameOf(topmost), address(topmost), address(topmost->getPrivateImpl()),
                    address(widgetOf(topmost)));
        showWidget(topmost->getPrivateImpl());
    }
    if (hardwareVariant() == SMALL_PANEL)
        displayChanged();
}

void DisplayPrivate::showContentWidget()
{
    gDisplayLog(TRACE, 595, "showContentWidget() this=[%p] called", address(this));
    for (Displayable* entry : StackWalk(mItemList, mWalks, StackWalk::PASSED_OVER)) {
        PegThing* const widget = widgetOf(entry);
        if (widget == nullptr)
            continue;
        if (isOnScreen(widget)) {
            gDisplayLog(TRACE, 602, "showContentWidget() this=[%p]  widget [%p] already in PM [%p]", address(this),
                        address(widget), address(gpPresent));
            continue;
        }
        if (widget->Parent() != nullptr) {
            gDisplayLog(TRACE, 607, "showContentWidget() this=[%p] removing widget [%p] from parent [%p]",
                        address(this), address(widget), address(widget->Parent()));
            widget->Parent()->Remove(widget, true);
        }
        gDisplayLog(TRACE, 611, "showContentWidget() this=[%p] adding widget [%p] to PM [%p]", address(this),
                    address(widget), address(gpPresent));
        addToScreen(widget);
        entry->getPrivateImpl()->releaseOwnership();
    }
    if (mStatusWidget != nullptr)
        addToScreen(mStatusWidget.get());
    gDisplayLog(TRACE, 616, "showContentWidget end\n");
}

void DisplayPrivate::hide()
{
    mVisible = false;
    if (mCurrent != nullptr) {
        lostFocus(mCurrent);
        gDisplayLog(TRACE, 624, "hide() this=[%p] calling hideContentWidget()", address(this));
        hideContentWidget();
    }
    if (hardwareVariant() == SMALL_PANEL)
        displayChanged();
}

void DisplayPrivate::hideContentWidget()
{
    gDisplayLog(TRACE, 633, "hideContentWidget() this=[%p] called", address(this));
    for (Displayable* entry : StackWalk(mItemList, mWalks)) {
        PegThing* const widget = widgetOf(entry);
        gDisplayLog(TRACE, 636, "hideContentWidget() calling remove on [%s] [0x%p]", nameOf(entry), address(widget));
        if (DisplayablePrivateIfc* side = entry->getPrivateImpl())
            side->gainOwnership();
        removeFromScreen(widget);
    }
    if (mStatusWidget != nullptr)
        removeFromScreen(mStatusWidget.get());
    mSystemWindow.screenEmptied();
}

void DisplayPrivate::createServerDisplay(Displayable* displayable)
{
    DisplayablePrivateIfc* const side = displayable != nullptr ? displayable->getPrivateImpl() : nullptr;
    if (side == nullptr)
        return;
    mCurrent = displayable;
    side->connectDisplayChangedSignal(this);
    if (mServerDisplay)
        addServerDisplay(displayable);
    side->show();
}

void DisplayPrivate::addServerDisplay(Displayable* displayable)
{
    mItemList.push_back(displayable);
    gDisplayLog(TRACE, 655, "1. DisplayPrivate::createServerDisplay mItemList size is: %d [%s] [%p]\n",
                static_cast<int>(mItemList.size()), nameOf(displayable), address(displayable));
    PegThing* const widget = widgetOf(displayable);
    if (widget == nullptr)
        return;
    if (widget->Parent() != nullptr)
        widget->Parent()->Remove(widget, true);
    addToScreen(widget);
    displayable->getPrivateImpl()->releaseOwnership();
    focusChanged(widget);
}

} // namespace DisplayAPI
