#pragma once

#include "DisplayAPI/Export.h"
#include "utilities/PhysDefs.h"

#include <string>
#include <vector>

class Semaphore;
class TranslatorIfc;

namespace DisplayAPIUtils {
class Rect;
}

namespace DisplayAPI {

class DisplayEventIfc;
class DisplayPrivateIfc;
class DisplayRequestEvent;
class Displayable;

/// The one object of an application through which its screens reach the telephone's screen: a stack of displayables.
/// A full screen replaces the stack, a popup goes on top.
///
/// Make it before any other facade. It starts hidden: show() it, then run exec() on the GUI thread until shutdown().
/// Threads: safe from any thread. Operations run at once on the GUI thread; elsewhere they wait until they have been
/// carried out, but for setSystemWindowSize and setSystemWindowText, which return at once.
/// Ownership: displayables stay the application's; a displayable must not be deleted while it is on the stack.
class DISPLAYAPI_EXPORT Display {
public:
    /// Starts the toolkit on the calling thread. `hardware` "WP1" is the 208 x 42 panel, anything else the 240 x 128
    /// one, 168 wide when `narrow`. The sub-variant, the rectangle and the last flag are accepted and not used.
    Display(std::string hardware, PhysDefs::hardwareSubVariant subVariant, std::string softwareType, std::string locale,
            std::string dateFormat, std::string timeFormat, bool narrow, DisplayAPIUtils::Rect* area, bool flag);
    Display(std::string hardware, std::string softwareType, std::string locale, std::string dateFormat,
            std::string timeFormat, bool narrow, DisplayAPIUtils::Rect* area);
    Display(std::string hardware, std::string locale, std::string dateFormat, std::string timeFormat, bool narrow,
            DisplayAPIUtils::Rect* area);

    /// Adopts an implementation and deletes it in the end; it must not be null.
    explicit Display(DisplayPrivateIfc* implementation);

    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;

    /// Stops the toolkit and hands the widgets back to their displayables. GUI thread only, after exec() has returned.
    /// Calls of other threads that still wait return with neutral values; no thread may begin one meanwhile.
    virtual ~Display();

    /// The display that was made last, for tools that look at a screen they have not made; null when it is gone. From
    /// any thread; whoever uses it sees to it that it is not deleted meanwhile.
    static Display* latest();

    /// Carries out one request and completes it. GUI thread only.
    virtual void processDisplayRequest(DisplayRequestEvent* request);

    /// Shows the stack, or takes it off the screen without forgetting it.
    void show();
    void hide();

    /// Makes `displayable` current; null clears the screen.
    void setCurrent(Displayable* displayable);

    /// Makes each element current in turn, so that the last one ends up current.
    void setCurrent(const std::vector<Displayable*>& displayables);

    Displayable* getCurrent();

    /// The current displayable, or nothing.
    std::vector<Displayable*> getCurrentWidgets() const;

    /// Runs the toolkit's loop until shutdown(). On the GUI thread; it does not post.
    void exec();

    /// Ends the loop.
    void shutdown();

    /// Makes `displayable` current beside what is shown; null is ignored.
    void createServerDisplay(Displayable* displayable);
    void setMaximised(bool on);

    /// The rectangles of the displayables on the stack, owned by the display and valid until they are asked for again.
    std::vector<DisplayAPIUtils::Rect>* getDisplayedRects();

    /// What is shown, as text in ASCII: all of it, or what lies in `rects`, with the system window if asked for. Empty
    /// as yet.
    std::string serialise();
    std::string serialiseByRect(const std::vector<DisplayAPIUtils::Rect>& rects, bool withSystemWindow);

    void localeChanged(std::string locale);
    void dateFormatChanged(std::string format);
    void timeFormatChanged(std::string format);

    /// There are no skins: does nothing.
    void skinChanged(std::string skin);

    /// Sets or clears the one observer of changes. Not owned. Runs on the calling thread, under the observer's lock.
    void subscribe(DisplayEventIfc* observer);
    void unSubscribe();

    /// Sets the translator of the texts that belong to no displayable. Not owned. Runs on the calling thread.
    void setTranslator(TranslatorIfc* translator);

    /// The area that the display may use, owned by the display. Runs on the calling thread.
    DisplayAPIUtils::Rect* getDisplayArea();

    // The status lines. Size, texts, top and status message have no effect yet. Hours, minutes and seconds are those of
    // a clock: of larger numbers only the first two digits arrive from another thread.
    void setSystemWindowSize(int lines);
    void setSystemWindowText(int line, std::string text);
    void setSystemWindowTop(int top);
    void showTimeInSystemWindow(bool on);
    void setTimeInSystemWindow(int hours, int minutes, int seconds);
    void setTimer(std::string text);
    void stopTimer();
    void setSoftwareType(const std::string& type);
    void setStatusMessage(const std::string& text, unsigned int timeout);

    /// The display's clipboard.
    void copy(const std::string& text);
    std::string paste() const;

    /// Fixed answers of this telephone.
    bool isCurrentForKeyEvents(Displayable* displayable);
    bool isVisible();
    bool hasSoftKeyBar() const;
    void setPopupMode(bool on);
    void enableKeypadEventSending();
    void disableKeypadEventSending();

private:
    void init(DisplayPrivateIfc* implementation);
    void processSystemWindowRequest(DisplayRequestEvent& request);
    void serialiseRects(DisplayRequestEvent& request);
    void giveResult(DisplayRequestEvent& request, std::string result);
    std::string takeResult(const std::string& mark);

    DisplayPrivateIfc* mImplementation = nullptr;
    std::string mResult;
    Semaphore* mResultLock = nullptr;
    std::string mHardware;
    std::string mSoftwareType;
};

} // namespace DisplayAPI
