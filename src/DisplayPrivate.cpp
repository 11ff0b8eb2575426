#include "DisplayPrivate.h"

#include "ContentWidget.h"
#include "ContentWidgetFactory.h"
#include "DisplayAPI/DisplayEventIfc.h"
#include "DisplayAPI/DisplayRequestEvent.h"
#include "DisplayAPI/Displayable.h"
#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayEventFilter.h"
#include "Log.h"
#include "PegInitAndCleanUp.h"
#include "RequestQueue.h"
#include "StackEntry.h"
#include "StackWalk.h"
#include "Variant.h"
#include "WidgetSync.h"
#include "utilities/ICC.h"
#include "utilities/Semaphore.h"
#include "widgets/StatusMessage.h"
#include "widgets/SystemWindow.h"

#include <algorithm>

namespace DisplayAPI {

namespace {

constexpr Log gLog{"DisplayAPI::DisplayPrivate", "./src/DisplayPrivate"};
constexpr const char* SOURCE_FILE = "./src/DisplayPrivate";

/// The displays that live now. GUI thread only.
std::vector<DisplayPrivate*>& displays()
{
    // Never destroyed: a static displayable asks as late as at process exit.
    static auto* const live = new std::vector<DisplayPrivate*>;
    return *live;
}

/// Moves the focus to `widget` unless it has it; the log line comes from where it is moved.
void moveFocus(const DisplayPrivate* display, PegThing* widget, int line, const char* text)
{
    if (gpPresent == nullptr || widget->StatusIs(PSF_CURRENT))
        return;
    gLog(TRACE, line, text, address(display), address(widget));
    gpPresent->MoveFocusTree(widget);
}

void lostFocus(Displayable* displayable)
{
    if (DisplayablePrivateIfc* side = displayable->getPrivateImpl())
        side->lostFocus();
}

} // namespace

void postEventHelper(DisplayRequestEvent* request, DisplayEventFilter* filter, bool wait)
{
    if (loggingOnUni()) {
        if (request == nullptr) {
            gLog(TRACE, 1236, "postEventHelper(DisplayRequestEvent *, bool)____________postEvent: NULL\n");
        } else {
            gLog(TRACE, 1240,
                 "postHelperEvent(DisplayRequestEvent *, bool)___________display postEvent: %d, wait = %d\n",
                 static_cast<int>(request->getType()), static_cast<int>(wait));
            gLog(TRACE, 1244, "postEventHelper(DisplayRequestEvent *, bool)__________________ %s \n",
                 request->getStringParam().c_str());
        }
    }
    PegMessage* const message = takeMessage();
    if (message == nullptr) {
        gLog(LOST, 1270, "postEvent() no more PegMessage objects in the pool, this one will be lost!");
        delete request;
        return;
    }
    message->wType = PM_DISPLAY_REQUEST;
    message->iData = 0;
    message->pTarget = filter;
    message->pSource = filter;
    message->pData = request;

    // Once the mutex is released the GUI thread may have deleted the request: read what to wait for before.
    Semaphore* semaphore = nullptr;
    enqueue(message, Place::TAIL, [&] {
        semaphore = request != nullptr ? request->getSemaphore() : nullptr;
        return true;
    });
    if (wait && semaphore != nullptr)
        semaphore->take(-1);
}

DisplayPrivate::DisplayPrivate(bool narrow, std::string hardware, std::string softwareType, std::string locale,
                               std::string dateFormat, std::string timeFormat, DisplayAPIUtils::Rect*,
                               ContentWidgetFactoryIfc* factory, PegInitAndCleanUpIfc* startUp, bool installFilter)
    : mServerDisplay(!narrow), mLocale(std::move(locale)), mDateFormat(std::move(dateFormat)),
      mTimeFormat(std::move(timeFormat)), mFactory(factory), mStartUp(startUp)
{
    initialiseApplication(hardware, softwareType);
    if (mFactory == nullptr)
        mFactory = std::make_unique<ContentWidgetFactory>();
    if (mStartUp == nullptr)
        mStartUp = std::make_unique<PegInitAndCleanUp>();
    mStartUp->init();
    if (isFullPanel())
        mDisplayArea = std::make_unique<DisplayAPIUtils::Rect>(0, 0, narrow ? 168 : 240, 128);
    else
        mDisplayArea = std::make_unique<DisplayAPIUtils::Rect>(0, 0, 208, 42);
    if (installFilter)
        mFilter = std::make_unique<DisplayEventFilter>(true);
    mContentWidget.reset(mFactory->createContentWidget());
    mContentWidget->setParent(this);
    displays().push_back(this);
}

DisplayPrivate::~DisplayPrivate()
{
    cleanup();
}

void DisplayPrivate::initialiseApplication(const std::string& hardware, const std::string& softwareType)
{
    KestrelApplication* const application = KestrelApplication::getCurrentApplication();
    if (application == nullptr)
        return;
    application->setHardwareVariant(hardware == "WP1" ? SMALL_PANEL : FULL_PANEL);
    setSoftwareType(softwareType);
    application->setLocale(ICC::fromUTF8toUNICODE(mLocale));
    application->setDateFormat(ICC::fromUTF8toUNICODE(mDateFormat));
    application->setTimeFormat(ICC::fromUTF8toUNICODE(mTimeFormat));
}

void DisplayPrivate::cleanup()
{
    handBackWidgets();
    std::erase(displays(), this);
    mStatusWidget.reset();
    completeQueuedRequests();
    mStartUp->cleanUp();
    mContentWidget.reset();
    mFilter.reset();
    mDisplayArea.reset();
}

/// The application's displayables and the content widget outlive the presentation manager: it must not take their
/// widgets with it.
void DisplayPrivate::handBackWidgets()
{
    if (mContentWidget != nullptr && isOnScreen(mContentWidget->getSystemWindow()))
        gpPresent->Remove(mContentWidget->getSystemWindow(), false);
    if (mCurrent != nullptr && std::find(mItemList.begin(), mItemList.end(), mCurrent) == mItemList.end())
        mItemList.push_back(mCurrent);
    const StackChange change(mStackChangeUnderWay);
    for (StackWalk walk(mItemList, mWalks); Displayable* entry = walk.next();) {
        DisplayablePrivateIfc* const side = entry->getPrivateImpl();
        if (side == nullptr)
            continue;
        side->connectDisplayChangedSignal(nullptr);
        side->gainOwnership();
        if (PegThing* widget = side->getWidget(); isOnScreen(widget))
            gpPresent->Remove(widget, false);
    }
}

/// Nobody will carry out what is still queued for this display's filter: let those who wait go on.
void DisplayPrivate::completeQueuedRequests()
{
    if (mFilter == nullptr)
        return;
    mFilter->uninstall();
    removeMessages([this](const PegMessage& message) { return message.pTarget == mFilter.get(); },
                   [](PegMessage* message) {
                       if (message->wType == PM_DISPLAY_REQUEST && message->pData != nullptr) {
                           auto* request = static_cast<DisplayRequestEvent*>(message->pData);
                           request->requestCompleted();
                           delete request;
                       } else if (message->wType == PM_WIDGET_REQUEST) {
                           completeUnserved(takeRequest(*message));
                       }
                       giveBackMessage(message);
                   });
}

void DisplayPrivate::setCurrent(Displayable* displayable)
{
    if (displayable == nullptr)
        gLog(TRACE, 301, "setCurrent() this=[%p] called on disp NULL", address(this));
    else
        gLog(TRACE, 304, "setCurrent() this=[%p] called on disp [%s] [%p] priv [%p] [Pegwidget %p]", address(this),
             nameOf(displayable), address(displayable), address(displayable->getPrivateImpl()),
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
    for (StackWalk walk(mItemList, mWalks); Displayable* entry = walk.next();) {
        gLog(TRACE, 322, "setCurrentImpl() calling lostFocus on [%s] [0x%p]\n", nameOf(entry), address(entry));
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
        gLog(REFUSED, 338, "setCurrentImpl() this=[%p] disp [%s] [%p] has no private side", address(this),
             nameOf(displayable), address(displayable));
        return;
    }
    gLog(TRACE, 342, "setCurrentImpl() this=[%p] called on disp [%s] [%p] priv [%p] widget [%p]", address(this),
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
    gLog(TRACE, 360, "**current, which is: [%s] [0x%p]\n", nameOf(mCurrent), address(widgetOf(mCurrent)));
    clearSWfromDisplayable();
    if (!mSystemWindowOn || !currentChanged)
        return displayChanged();
    mSystemWindowReset = true;
    mPopupShown = false;
    showSW(mContentWidget->getSWCurrentNumLines());
}

void DisplayPrivate::logItemList()
{
    gLog(TRACE, 368, "setCurrentImpl() this=[%p] mItemList:", address(this));
    for (std::size_t i = 0; i < mItemList.size(); ++i)
        gLog(TRACE, 371, "  mItemList[%d] displayable [%s] [%p]", static_cast<int>(i), nameOf(mItemList[i]),
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
    for (StackWalk walk(mItemList, mWalks); Displayable* entry = walk.next();) {
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
    for (StackWalk walk(mItemList, mWalks); Displayable* entry = walk.next();) {
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
        moveFocus(this, widget, 425, "_ setCurrentImpl this=[%p] calling MoveFocusTree on widget [%p]");
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
        gLog(TRACE, 440, "addNewCurrent() this=[%p] removing widget [%p] from parent [%p]", address(this),
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
    gLog(TRACE, 472, "showWidget() this=[%p] called on priv [%p]", address(this), address(shown));
    if (!mVisible) {
        gLog(TRACE, 475, "showWidget() this=[%p] called on priv [%p], mVisible == false", address(this),
             address(shown));
        return;
    }
    PegThing* const widget = shown->getWidget();
    if (widget == nullptr)
        return shown->show();
    cutToDisplayArea(*widget);
    if (isOnScreen(widget)) {
        gLog(TRACE, 486, "showWidget() this=[%p] adding widget [%p] to PM _SKIPPED_ [%p]\n", address(this),
             address(widget), address(gpPresent));
    } else {
        if (widget->Parent() != nullptr) {
            gLog(TRACE, 490, "showWidget() this=[%p] removing widget [%p] from parent widget [%p]", address(this),
                 address(widget), address(widget->Parent()));
            widget->Parent()->Remove(widget, false);
        }
        gLog(TRACE, 494, "showWidget() this=[%p] adding widget [%p] to PM [%p]", address(this), address(widget),
             address(gpPresent));
        addToScreen(widget);
        shown->releaseOwnership();
        focusChanged(widget);
    }
    if (!showAndStay(*shown))
        return;
    moveFocus(this, widget, 502, "showWidget() this=[%p] calling MoveFocusTree on widget [%p]\n");
    focusChanged(widget);
}

void DisplayPrivate::eraseDismissed(DisplayablePrivateIfc* dismissed)
{
    const auto found = std::find_if(mItemList.begin(), mItemList.end(),
                                    [=](Displayable* d) { return d->getPrivateImpl() == dismissed; });
    PegThing* const widget = dismissed->getWidget();
    if (found != mItemList.end()) {
        Displayable* const entry = *found;
        gLog(TRACE, 514, "widgetDismissed() this=[%p] removing from list disp [%s] [%p] priv [%p] widget [%p]",
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
        mPreviousCurrent = nullptr;
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
    gLog(TRACE, 552, "widgetDismissed() this=[%p] showing the previous current disp [%s] [%p] priv [%p] widget [%p]",
         address(this), nameOf(mCurrent), address(mCurrent), address(side), address(widget));
    widget->Layer(LAYER_RESTORED);
    if (widget->Parent() != nullptr) {
        gLog(TRACE, 557, "widgetDismissed() this=[%p] removing widget [%p] from parent [%p]", address(this),
             address(widget), address(widget->Parent()));
        widget->Parent()->Remove(widget, false);
        gLog(TRACE, 560, "widgetDismissed() this=[%p] adding widget [%p] to PM [%p]", address(this), address(widget),
             address(gpPresent));
        side->releaseOwnership();
        addToScreen(widget);
        focusChanged(widget);
        moveFocus(this, widget, 565, "widgetDismissed() this=[%p] calling MoveFocusTree on widget [%p]");
        focusChanged(widget);
    } else {
        side->releaseOwnership();
        addToScreen(widget);
        focusChanged(widget);
        gLog(TRACE, 571, "widgetDismissed() this=[%p] NOT calling MoveFocusTree on widget [%p]", address(this),
             address(widget));
    }
}

void DisplayPrivate::show()
{
    mVisible = true;
    gLog(TRACE, 580, "show() this=[%p] calling showContentWidget()", address(this));
    showContentWidget();
    if (!mItemList.empty()) {
        Displayable* const topmost = mItemList.back();
        gLog(TRACE, 584, "show() this=[%p] calling showWidget on disp [%s] [%p] priv [%p] widget [%p]", address(this),
             nameOf(topmost), address(topmost), address(topmost->getPrivateImpl()), address(widgetOf(topmost)));
        showWidget(topmost->getPrivateImpl());
    }
    if (hardwareVariant() == SMALL_PANEL)
        displayChanged();
}

void DisplayPrivate::showContentWidget()
{
    gLog(TRACE, 595, "showContentWidget() this=[%p] called", address(this));
    for (StackWalk walk(mItemList, mWalks, StackWalk::PASSED_OVER); Displayable* entry = walk.next();) {
        PegThing* const widget = widgetOf(entry);
        if (widget == nullptr)
            continue;
        if (isOnScreen(widget)) {
            gLog(TRACE, 602, "showContentWidget() this=[%p]  widget [%p] already in PM [%p]", address(this),
                 address(widget), address(gpPresent));
            continue;
        }
        if (widget->Parent() != nullptr) {
            gLog(TRACE, 607, "showContentWidget() this=[%p] removing widget [%p] from parent [%p]", address(this),
                 address(widget), address(widget->Parent()));
            widget->Parent()->Remove(widget, true);
        }
        gLog(TRACE, 611, "showContentWidget() this=[%p] adding widget [%p] to PM [%p]", address(this), address(widget),
             address(gpPresent));
        addToScreen(widget);
        entry->getPrivateImpl()->releaseOwnership();
    }
    if (mStatusWidget != nullptr)
        addToScreen(mStatusWidget.get());
    gLog(TRACE, 616, "showContentWidget end\n");
}

void DisplayPrivate::hide()
{
    mVisible = false;
    if (mCurrent != nullptr) {
        lostFocus(mCurrent);
        gLog(TRACE, 624, "hide() this=[%p] calling hideContentWidget()", address(this));
        hideContentWidget();
    }
    if (hardwareVariant() == SMALL_PANEL)
        displayChanged();
}

void DisplayPrivate::hideContentWidget()
{
    gLog(TRACE, 633, "hideContentWidget() this=[%p] called", address(this));
    for (StackWalk walk(mItemList, mWalks); Displayable* entry = walk.next();) {
        PegThing* const widget = widgetOf(entry);
        gLog(TRACE, 636, "hideContentWidget() calling remove on [%s] [0x%p]", nameOf(entry), address(widget));
        if (DisplayablePrivateIfc* side = entry->getPrivateImpl())
            side->gainOwnership();
        removeFromScreen(widget);
    }
    if (mStatusWidget != nullptr)
        removeFromScreen(mStatusWidget.get());
    mSavedPopupLines = mPopupLines;
    mContentWidget->setSystemWindowSize(0);
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
    gLog(TRACE, 655, "1. DisplayPrivate::createServerDisplay mItemList size is: %d [%s] [%p]\n",
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

void DisplayPrivate::dismissEverywhere(Displayable* displayable)
{
    for (DisplayPrivate* display : displays()) {
        const bool wasHeld = display->holdOnce(displayable);
        if (wasHeld || display->mCurrent == displayable)
            display->widgetDismissed(displayable->getPrivateImpl());
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
    for (DisplayPrivate* display : displays())
        display->forget(displayable);
}

void DisplayPrivate::forget(Displayable* displayable)
{
    std::erase(mItemList, displayable);
    for (StackWalk* walk : mWalks)
        walk->isDeleted(displayable);
    mVisibleRectMonitor.remove(*displayable);
    if (mPreviousCurrent == displayable)
        mPreviousCurrent = nullptr;
    if (mCurrent == displayable)
        mCurrent = mItemList.empty() ? nullptr : mItemList.back();
}

Displayable* DisplayPrivate::getCurrent()
{
    return mCurrent;
}

void DisplayPrivate::exec()
{
    if (gpPresent != nullptr)
        gpPresent->Execute(SOURCE_FILE);
    else
        gLog(LOST, 728, "qtPresent is NULL");
    mExecFinished = true;
}

void DisplayPrivate::shutdown()
{
    if (PegThing::mpMessageQueue == nullptr)
        return;
    PegMessage message;
    message.wType = PM_EXIT;
    message.pTarget = gpPresent;
    PegThing::mpMessageQueue->Push(message);
}

void DisplayPrivate::subscribe(DisplayEventIfc* observer)
{
    mListenerSection.enter();
    mDisplayChangeListener = observer;
    mListenerSection.leave();
}

void DisplayPrivate::unSubscribe()
{
    subscribe(nullptr);
}

DisplayEventIfc* DisplayPrivate::displayChangeListener()
{
    mListenerSection.enter();
    DisplayEventIfc* const observer = mDisplayChangeListener;
    mListenerSection.leave();
    return observer;
}

void DisplayPrivate::displayChanged()
{
    mListenerSection.enter();
    if (mDisplayChangeListener != nullptr)
        mDisplayChangeListener->displayChanged(std::string());
    mListenerSection.leave();
}

void DisplayPrivate::localeChanged(std::string locale)
{
    mLocale = std::move(locale);
    if (KestrelApplication* application = KestrelApplication::getCurrentApplication())
        application->setLocale(ICC::fromUTF8toUNICODE(mLocale));
}

void DisplayPrivate::skinChanged(std::string) {}

void DisplayPrivate::dateFormatChanged(std::string format)
{
    mDateFormat = std::move(format);
    if (KestrelApplication* application = KestrelApplication::getCurrentApplication())
        application->setDateFormat(ICC::fromUTF8toUNICODE(mDateFormat));
}

void DisplayPrivate::timeFormatChanged(std::string format)
{
    mTimeFormat = std::move(format);
    if (KestrelApplication* application = KestrelApplication::getCurrentApplication())
        application->setTimeFormat(ICC::fromUTF8toUNICODE(mTimeFormat));
}

DisplayAPIUtils::Rect* DisplayPrivate::getDisplayArea()
{
    return mDisplayArea.get();
}

void DisplayPrivate::setMaximised(bool on)
{
    mMaximised = on;
}

void DisplayPrivate::setTranslator(TranslatorIfc* translator)
{
    DisplayablePrivate::commonTranslator = translator;
    setSpellerLang(translator);
}

void DisplayPrivate::postEvent(DisplayRequestEvent* request)
{
    postEventHelper(request, mFilter.get(), true);
}

void DisplayPrivate::postEventAsync(DisplayRequestEvent* request)
{
    postEventHelper(request, mFilter.get(), false);
}

void DisplayPrivate::purgeOwnMessage(Display* display, int code, int otherCode, Displayable* displayable)
{
    const auto matches = [=](const PegMessage& message) {
        auto* request = static_cast<DisplayRequestEvent*>(message.pData);
        if (message.wType != PM_DISPLAY_REQUEST || request == nullptr || request->requesterDisplay() != display)
            return false;
        return (request->getType() == code || request->getType() == otherCode) &&
               (displayable == nullptr || request->getDisplayable() == displayable);
    };
    removeMessages(matches, [](PegMessage* message) {
        auto* request = static_cast<DisplayRequestEvent*>(message->pData);
        message->pData = nullptr;
        request->requestCompleted();
        delete request;
        giveBackMessage(message);
    });
}

void DisplayPrivate::setSoftwareType(const std::string& type)
{
    KestrelApplication* const application = KestrelApplication::getCurrentApplication();
    if (application == nullptr)
        return;
    if (type == "Corvane SIP")
        application->setSoftwareType(SIP);
    else
        application->setSoftwareType(type == "Corvane KVX" ? KVX : UNKNOWN);
}

void DisplayPrivate::copy(const std::string& text)
{
    mClipboard = text;
}

std::string DisplayPrivate::paste() const
{
    return mClipboard;
}

std::string DisplayPrivate::dateFormat() const
{
    return mDateFormat;
}

std::string DisplayPrivate::timeFormat() const
{
    return mTimeFormat;
}

} // namespace DisplayAPI
