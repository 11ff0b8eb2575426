#pragma once

#include "DisplayAPI/DisplayPrivateIfc.h"
#include "DisplaySystemWindow.h"
#include "VisibleRectMonitor.h"
#include "presentation/DisplayStack.h"
#include "utilities/CriticalSection.h"

#include <atomic>
#include <memory>
#include <string>
#include <vector>

class PegThing;
class StatusMessage;

namespace DisplayAPI {

class ContentWidget;
class ContentWidgetFactoryIfc;
class DisplayEventFilter;
class PegInitAndCleanUpIfc;
class StackWalk;

/// Queues a display-level request for `filter`, which may be null, and waits for its semaphore if `wait` and it has
/// one. A null request is queued as it is. From any thread.
void postEventHelper(DisplayRequestEvent* request, DisplayEventFilter* filter, bool wait);

/// The display stack: which displayables are shown, which one has the user's attention, and who owns their widgets.
///
/// A widget on the presentation manager belongs to the manager: its private side is told by releaseOwnership() after
/// the add and by gainOwnership() before the removal.
/// GUI thread only, but for what DisplayPrivateIfc names and execFinished().
/// Lock: the observer's critical section. It is recursive: an observer may call back into the display.
class DisplayPrivate : public DisplayPrivateIfc {
public:
    /// Starts the toolkit. `hardware` "WP1" is the small panel. The rectangle is not used. `factory` and `startUp` are
    /// owned afterwards; null means the real ones. With `installFilter` requests go through this display's filter.
    DisplayPrivate(bool narrow, std::string hardware, std::string softwareType, std::string locale,
                   std::string dateFormat, std::string timeFormat, DisplayAPIUtils::Rect* area,
                   ContentWidgetFactoryIfc* factory, PegInitAndCleanUpIfc* startUp, bool installFilter);
    DisplayPrivate(const DisplayPrivate&) = delete;
    DisplayPrivate& operator=(const DisplayPrivate&) = delete;
    ~DisplayPrivate() override;

    void setCurrent(Displayable* displayable) override;
    Displayable* getCurrent() override;
    void exec() override;
    void shutdown() override;
    void show() override;
    void hide() override;
    std::string serialise() override;
    std::string serialiseByRect(const std::vector<DisplayAPIUtils::Rect>& rects, bool withSystemWindow) override;
    void subscribe(DisplayEventIfc* observer) override;
    void unSubscribe() override;
    void displayChanged() override;
    void widgetDismissed(DisplayablePrivateIfc* dismissed) override;
    void localeChanged(std::string locale) override;
    void skinChanged(std::string skin) override;
    void dateFormatChanged(std::string format) override;
    void timeFormatChanged(std::string format) override;
    DisplayAPIUtils::Rect* getDisplayArea() override;
    void setMaximised(bool on) override;
    void createServerDisplay(Displayable* displayable) override;
    void setTranslator(TranslatorIfc* translator) override;
    void postEvent(DisplayRequestEvent* request) override;
    void postEventAsync(DisplayRequestEvent* request) override;
    void purgeOwnMessage(Display* display, int code, int otherCode, Displayable* displayable) override;
    std::vector<DisplayAPIUtils::Rect>* getDisplayedRects() override;
    void setSystemWindowSize(int lines) override;
    void setSystemWindowText(int line, std::string text) override;
    void setSystemWindowTop(int top) override;
    void showTimeInSystemWindow(bool on) override;
    void setTimeInSystemWindow(int hours, int minutes, int seconds) override;
    void setTimer(std::string text) override;
    void stopTimer() override;
    void setSoftwareType(const std::string& type) override;
    void copy(const std::string& text) override;
    std::string paste() const override;
    void setStatusMessage(const std::string& text, unsigned int timeout) override;
    std::string dateFormat() const override;
    std::string timeFormat() const override;

    // The system window's own operations: see DisplaySystemWindow.
    void showSW(int lines);
    void systemWindowPopup(int lines);
    void clearSWfromDisplayable();

    /// Gives the list that is current one status line more than it has; anything else is ignored.
    void listInWidgetSetSWLines(int before, int lines);

    void updateVisibleRectMonitor();

    /// Where the entries of the stack lay when the monitor was last updated, from bottom to top.
    const std::vector<DisplayAPIUtils::Rect>& monitoredRects() const { return mVisibleRectMonitor.getVisibleRects(); }

    /// What can be seen of each entry of the stack, in its order; nothing of an entry without a widget.
    std::vector<std::vector<DisplayAPIUtils::Rect>> findVisibleRects() const;

    /// Fills the keypad tables and the names of the input modes; null leaves them. On the thread that sets the
    /// translator, while no editor reads them.
    static void setSpellerLang(TranslatorIfc* translator);

    bool execFinished() const { return mExecFinished; }
    bool isShown() const { return mVisible; }
    bool isMaximised() const { return mMaximised; }
    ContentWidget* getContentWidget() const { return mContentWidget.get(); }
    const std::vector<Displayable*>& itemList() const { return mItemList; }

    /// For a displayable whose private side is about to be deleted: dismisses it from every display. GUI thread only.
    static void dismissEverywhere(Displayable* displayable);

    /// For a displayable that is about to be gone: drops the pointers to it. Does nothing off the GUI thread, where the
    /// displayable's destroy request has dismissed it already.
    static void forgetEverywhere(Displayable* displayable);

    /// What the latest display has on its stack, the top first.
    static std::vector<StackedDisplayable> latestStack();

private:
    static std::vector<DisplayPrivate*>& living();

    void initialiseApplication(const std::string& hardware, const std::string& softwareType);
    void cleanup();
    void handBackWidgets();
    void completeQueuedRequests();

    void setCurrentImpl(Displayable* displayable);
    void clearScreen();
    void emptyScreen();
    bool replaceStack(Displayable* displayable);
    bool takeStackOffScreen(DisplayablePrivateIfc* kept);
    void logItemList();
    void takeLateComersOff(const DisplayablePrivateIfc* kept);
    void addNewCurrent(Displayable* displayable);
    bool bringToScreen(Displayable* displayable);
    bool isStacked(const DisplayablePrivateIfc* side) const;
    bool showAndStay(DisplayablePrivateIfc& side);
    void showAgain(Displayable* displayable);
    void removeOldCurrent();
    void showWidget(DisplayablePrivateIfc* shown);
    void moveFocus(PegThing* widget, int line, const char* text) const;
    void cutToDisplayArea(PegThing& widget);
    void showContentWidget();
    void hideContentWidget();
    void eraseDismissed(DisplayablePrivateIfc* dismissed);
    void eraseEntry(Displayable* entry);
    void makeTopmostCurrent();
    void restoreTopmost();
    void restoreWidget(DisplayablePrivateIfc* side);
    void addServerDisplay(Displayable* displayable);
    DisplayEventIfc* displayChangeListener();
    std::string serialiseStack(const std::vector<std::vector<DisplayAPIUtils::Rect>>& visible,
                               const std::vector<DisplayAPIUtils::Rect>& requested);
    bool holdOnce(Displayable* displayable);
    void forget(Displayable* displayable);

    Displayable* mCurrent = nullptr;
    std::vector<Displayable*> mItemList;
    DisplayEventIfc* mDisplayChangeListener = nullptr;
    std::unique_ptr<ContentWidget> mContentWidget;
    std::unique_ptr<DisplayEventFilter> mFilter;
    bool mVisible = false;
    std::atomic<bool> mExecFinished{false};
    bool mServerDisplay;
    bool mMaximised = false;
    std::string mLocale;
    std::string mDateFormat;
    std::string mTimeFormat;
    std::unique_ptr<DisplayAPIUtils::Rect> mDisplayArea;
    std::vector<DisplayAPIUtils::Rect> mDisplayedRects;
    DisplaySystemWindow mSystemWindow{*this};
    VisibleRectMonitor mVisibleRectMonitor;
    std::unique_ptr<StatusMessage> mStatusWidget; ///< null when none is up
    std::string mClipboard;
    CriticalSection mListenerSection;
    std::unique_ptr<ContentWidgetFactoryIfc> mFactory;
    std::unique_ptr<PegInitAndCleanUpIfc> mStartUp;
    std::vector<StackWalk*> mWalks;    ///< over mItemList, under way; the innermost is the last
    bool mStackChangeUnderWay = false; ///< who is shown in the end is still to be decided
};

} // namespace DisplayAPI
