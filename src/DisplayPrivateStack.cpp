#include "DisplayPrivate.h"

#include "DisplayAPI/DisplayablePrivateIfc.h"
#include "DisplayPrivateLog.h"
#include "StackEntry.h"
#include "StackWalk.h"

#include <algorithm>

namespace DisplayAPI {

namespace {

[[maybe_unused]] const bool gCanBeAsked = [] {
    gpDisplayStack = DisplayPrivate::latestStack;
    return true;
}();

} // namespace

std::vector<StackedDisplayable> DisplayPrivate::latestStack()
{
    if (living().empty())
        return {};
    std::vector<StackedDisplayable> stack;
    for (Displayable* entry : living().back()->mItemList)
        stack.push_back({&typeid(*entry), widgetOf(entry)});
    std::ranges::reverse(stack);
    return stack;
}

void DisplayPrivate::setCurrent(Displayable* displayable)
{
    if (displayable == nullptr)
        gDisplayLog(TRACE, 301, "setCurrent() this=[%p] called on disp NULL", address(this));
    else
        gDisplayLog(TRACE, 304, "setCurrent() this=[%p] called on disp [%s] [%p] priv [%p] [Pegwidget %p]",
                    address(this), nameOf(displayable), address(displayable), address(displayable->getPrivateImpl()),
                    address(widgetOf(displayable)));
    setCurrentImpl(displayable);
}

void DisplayPrivate::clearScreen()
{
    emptyScreen();
    addNewCurrent(nullptr);
    clearSWfromDisplayable();
    displayChanged();
}

void DisplayPrivate::emptyScreen()
{
    const StackChange change(mStackChangeUnderWay);
    hideContentWidget();
    for (Displayable* entry : StackWalk(mItemList, mWalks)) {
        gDisplayLog(TRACE, 322, "setCurrentImpl() calling lostFocus on [%s] [0x%p]\n", nameOf(entry), address(entry));
        lostFocus(entry);
    }
    takeLateComersOff(nullptr);
    mItemList.clear();
}

void DisplayPrivate::setCurrentImpl(Displayable* displayable)
{
    if (displayable == nullptr)
        return clearScreen();
    DisplayablePrivateIfc* const side = displayable->getPrivateImpl();
    if (side == nullptr) {
        gDisplayLog(REFUSED, 338, "setCurrentImpl() this=[%p] disp [%s] [%p] has no private side", address(this),
                    nameOf(displayable), address(displayable));
        return;
    }
    gDisplayLog(TRACE, 342, "setCurrentImpl() this=[%p] called on disp [%s] [%p] priv [%p] widget [%p]", address(this),
                nameOf(displayable), address(displayable), address(side), address(side->getWidget()));
    const bool alreadyShown = replaceStack(displayable);
    side->connectDisplayChangedSignal(this);

    const bool currentChanged = mCurrent != nullptr && mCurrent != displayable;
    if (currentChanged)
        removeOldCurrent();
    if (alreadyShown)
        showAgain(displayable);
    else if (isStacked(side))
        addNewCurrent(displayable);
    displayChanged();
    gDisplayLog(TRACE, 360, "**current, which is: [%s] [0x%p]\n", nameOf(mCurrent), address(widgetOf(mCurrent)));
    clearSWfromDisplayable();
    if (!mSystemWindow.isOn() || !currentChanged)
        return displayChanged();
    mSystemWindow.showAgain();
}

void DisplayPrivate::logItemList()
{
    gDisplayLog(TRACE, 368, "setCurrentImpl() this=[%p] mItemList:", address(this));
    for (std::size_t i = 0; i < mItemList.size(); ++i)
        gDisplayLog(TRACE, 371, "  mItemList[%d] displayable [%s] [%p]", static_cast<int>(i), nameOf(mItemList[i]),
                    address(mItemList[i]));
}

/// Makes room for `displayable` on the stack and puts it there. Returns whether its widget is on screen already.
bool DisplayPrivate::replaceStack(Displayable* displayable)
{
    bool alreadyShown = false;
    if (!mItemList.empty()) {
        logItemList();
        if (displayable->getPrivateImpl()->hideOldWidgetOnFocusGained()) {
            alreadyShown = takeStackOffScreen(displayable->getPrivateImpl());
            takeLateComersOff(displayable->getPrivateImpl());
            mItemList.clear();
        }
    }
    if (std::find(mItemList.begin(), mItemList.end(), displayable) == mItemList.end())
        mItemList.push_back(displayable);
    return alreadyShown;
}

/// Takes every widget off the screen but that of `kept`. Returns whether that one is there.
bool DisplayPrivate::takeStackOffScreen(DisplayablePrivateIfc* kept)
{
    const StackChange change(mStackChangeUnderWay);
    bool keptIsShown = false;
    for (Displayable* entry : StackWalk(mItemList, mWalks)) {
        DisplayablePrivateIfc* const side = entry->getPrivateImpl();
        if (side == nullptr)
            continue;
        PegThing* const widget = side->getWidget();
        if (side == kept && isOnScreen(widget)) {
            keptIsShown = true;
            continue;
        }
        side->connectDisplayChangedSignal(nullptr);
        side->gainOwnership();
        removeFromScreen(widget);
    }
    return keptIsShown;
}

/// What has come to the screen while the others were taken off it goes as well.
void DisplayPrivate::takeLateComersOff(const DisplayablePrivateIfc* kept)
{
    for (Displayable* entry : StackWalk(mItemList, mWalks)) {
        DisplayablePrivateIfc* const side = entry->getPrivateImpl();
        PegThing* const widget = widgetOf(side);
        if (side == kept || !isOnScreen(widget))
            continue;
        side->gainOwnership();
        removeFromScreen(widget);
    }
}

void DisplayPrivate::showAgain(Displayable* displayable)
{
    DisplayablePrivateIfc* const side = displayable->getPrivateImpl();
    PegThing* const widget = side->getWidget();
    Displayable* const before = mCurrent;
    if (showAndStay(*side)) {
        moveFocus(widget, 425, "_ setCurrentImpl this=[%p] calling MoveFocusTree on widget [%p]");
        focusChanged(widget);
        mCurrent = displayable;
    } else if (mCurrent == before) {
        makeTopmostCurrent();
    }
}

void DisplayPrivate::addNewCurrent(Displayable* displayable)
{
    if (displayable == nullptr || bringToScreen(displayable))
        mCurrent = displayable;
}

/// Returns whether `displayable` is to become the current one: it may have closed itself when it was shown, or another
/// one has been made current meanwhile.
bool DisplayPrivate::bringToScreen(Displayable* displayable)
{
    DisplayablePrivateIfc* const side = displayable->getPrivateImpl();
    PegThing* const widget = side->getWidget();
    if (widget != nullptr && widget->Parent() != nullptr) {
        gDisplayLog(TRACE, 440, "addNewCurrent() this=[%p] removing widget [%p] from parent [%p]", address(this),
                    address(widget), address(widget->Parent()));
        widget->Parent()->Remove(widget, true);
    }
    Displayable* const before = mCurrent;
    showWidget(side);
    if (mCurrent != before)
        return false;
    if (!isStacked(side)) {
        makeTopmostCurrent();
        return false;
    }
    side->releaseOwnership();
    return true;
}

bool DisplayPrivate::isStacked(const DisplayablePrivateIfc* side) const
{
    return std::any_of(mItemList.begin(), mItemList.end(),
                       [side](Displayable* entry) { return entry->getPrivateImpl() == side; });
}

/// Returns whether it is still there afterwards, and no other one has been made current.
bool DisplayPrivate::showAndStay(DisplayablePrivateIfc& side)
{
    Displayable* const before = mCurrent;
    side.show();
    return mCurrent == before && isStacked(&side);
}

/// One that closes itself when it loses the focus has been handed its widget back already.
void DisplayPrivate::removeOldCurrent()
{
    Displayable* const before = mCurrent;
    DisplayablePrivateIfc* const side = before != nullptr ? before->getPrivateImpl() : nullptr;
    if (side == nullptr)
        return;
    const StackChange change(mStackChangeUnderWay);
    side->lostFocus();
    if (mCurrent == before)
        side->gainOwnership();
}

/// Moves the focus to `widget` unless it has it; the log line comes from where it is moved.
void DisplayPrivate::moveFocus(PegThing* widget, int line, const char* text) const
{
    if (gpPresent == nullptr || widget->StatusIs(PSF_CURRENT))
        return;
    gDisplayLog(TRACE, line, text, address(this), address(widget));
    gpPresent->MoveFocusTree(widget);
}

void DisplayPrivate::cutToDisplayArea(PegThing& widget)
{
    PegRect area = widget.Area();
    if (area.right - area.left + 1 <= mDisplayArea->width())
        return;
    area.right = static_cast<std::int16_t>(area.left + mDisplayArea->width() - 1);
    widget.Resize(area);
}

void DisplayPrivate::showWidget(DisplayablePrivateIfc* shown)
{
    if (shown == nullptr)
        return;
    gDisplayLog(TRACE, 472, "showWidget() this=[%p] called on priv [%p]", address(this), address(shown));
    if (!mVisible) {
        gDisplayLog(TRACE, 475, "showWidget() this=[%p] called on priv [%p], mVisible == false", address(this),
                    address(shown));
        return;
    }
    PegThing* const widget = shown->getWidget();
    if (widget == nullptr)
        return shown->show();
    cutToDisplayArea(*widget);
    if (isOnScreen(widget)) {
        gDisplayLog(TRACE, 486, "showWidget() this=[%p] adding widget [%p] to PM _SKIPPED_ [%p]\n", address(this),
                    address(widget), address(gpPresent));
    } else {
        if (widget->Parent() != nullptr) {
            gDisplayLog(TRACE, 490, "showWidget() this=[%p] removing widget [%p] from parent widget [%p]",
                        address(this), address(widget), address(widget->Parent()));
            widget->Parent()->Remove(widget, false);
        }
        gDisplayLog(TRACE, 494, "showWidget() this=[%p] adding widget [%p] to PM [%p]", address(this), address(widget),
                    address(gpPresent));
        addToScreen(widget);
        shown->releaseOwnership();
        focusChanged(widget);
    }
    if (!showAndStay(*shown))
        return;
    moveFocus(widget, 502, "showWidget() this=[%p] calling MoveFocusTree on widget [%p]\n");
    focusChanged(widget);
}

Displayable* DisplayPrivate::getCurrent()
{
    return mCurrent;
}

} // namespace DisplayAPI
