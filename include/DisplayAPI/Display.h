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
    /// Calls of other threads that still wait return with neutral values, those that have been carried out with their
    /// results: it waits for the reader of a text. No thread may begin a call meanwhile.
    virtual ~Display();

    /// The display that was made last, for tools that look at a screen they have not made; null when it is gone. From
    /// any thread; whoever uses it sees to it that it is not deleted meanwhile.
    static Display* latest();

    /// Carries out one request and completes it. GUI thread only.
    virtual void processDisplayRequest(DisplayRequestEvent* request);

    /// Shows the stack, or takes it off the screen without forgetting it.
    void show();
    void hide();

    /// Makes `displayable` current; null clears the screen. One without a private side is refused with a log line.
    void setCurrent(Displayable* displayable);

    /// Makes each element current in turn, so that the last one ends up current.
    void setCurrent(const std::vector<Displayable*>& displayables);

    /// Null where there is none.
    Displayable* getCurrent();

    /// The current displayable, or nothing.
    std::vector<Displayable*> getCurrentWidgets() const;

    /// Runs the toolkit's loop until shutdown(). GUI thread only.
    void exec();

    /// Ends the loop, also before it has begun.
    void shutdown();

    /// Makes `displayable` current beside what is shown; null is ignored.
    void createServerDisplay(Displayable* displayable);

    /// Kept, without effect on what is shown.
    void setMaximised(bool on);

    /// The rectangles of the displayables on the stack, owned by the display and valid until they are asked for again.
    std::vector<DisplayAPIUtils::Rect>* getDisplayedRects();

    /// What is shown, as text in ASCII (other characters become "?"): an object for each displayable of the stack,
    /// bottom to top.
    ///
    ///     object:
    ///     name:KestrelListBox
    ///     caption:Contacts
    ///     subitem:
    ///     name:KestrelListBoxItem
    ///     string0:Ada
    ///     endsubitem:
    ///     end:
    ///
    /// By rectangles: what can be seen of the stack and lies in `rects`, which needs an observer to be subscribed, and
    /// the system window: always on the small panel, on the full one where it floats and is asked for. Rectangles
    /// outside the screen show nothing.
    std::string serialise();
    std::string serialiseByRect(const std::vector<DisplayAPIUtils::Rect>& rects, bool withSystemWindow);

    /// Keeps the text; everything that is shown looks its texts up again.
    void localeChanged(std::string locale);

    /// Keep the text, which clocks and applications read: docs/running.md has the formats.
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

    /// The status lines of the system window: line 0 is its caption. Displayables that draw them themselves are handed
    /// the lines that have changed; above all others the window floats, with at most two. Set the texts, then the size,
    /// which shows them; 0 takes them away. Only while the display is shown; lines outside 0 to 5 and negative sizes
    /// are ignored, 7 and more show nothing. An empty text becomes a blank. On the small panel a floating window goes
    /// when all its lines are blank. From another thread these two return at once.
    void setSystemWindowSize(int lines);
    void setSystemWindowText(int line, std::string text);

    /// Pixels from the panel's top; 0 on the small panel whatever is asked for.
    void setSystemWindowTop(int top);

    /// The clock in the system window. Of larger numbers only the first two digits arrive from another thread.
    void showTimeInSystemWindow(bool on);
    void setTimeInSystemWindow(int hours, int minutes, int seconds);

    /// The call timer, which takes the clock's place: "HH:MM:SS" and "MM:SS" count up from there, any other text stands
    /// still, an empty one stops it.
    void setTimer(std::string text);
    void stopTimer();

    /// "Corvane SIP", "Corvane KVX"; anything else is unknown software.
    void setSoftwareType(const std::string& type);

    /// Shows a message above everything else for `timeout` milliseconds (0: until the next one); an empty text takes
    /// it down.
    void setStatusMessage(const std::string& text, unsigned int timeout);

    /// The display's clipboard. UTF-8; empty at first.
    void copy(const std::string& text);
    std::string paste() const;

    /// Fixed answers of this telephone, on the calling thread: true, true and false.
    bool isCurrentForKeyEvents(Displayable* displayable);
    bool isVisible();
    bool hasSoftKeyBar() const;

    /// These do nothing.
    void setPopupMode(bool on);
    void enableKeypadEventSending();
    void disableKeypadEventSending();

private:
    void init(DisplayPrivateIfc* implementation);
    void processOddRequest(DisplayRequestEvent& request);
    void serialiseRects(DisplayRequestEvent& request);
    void giveResult(DisplayRequestEvent& request, std::string result);
    std::string requestResult(DisplayRequestEvent* request);

    DisplayPrivateIfc* mImplementation = nullptr;
    std::string mResult;
    Semaphore* mResultLock = nullptr;
    std::string mHardware;
    std::string mSoftwareType;
};

} // namespace DisplayAPI
