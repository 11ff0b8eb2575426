#pragma once

#include "DisplayAPI/Export.h"

#include <string>
#include <vector>

class TranslatorIfc;

namespace DisplayAPIUtils {
class Rect;
}

namespace DisplayAPI {

class Display;
class DisplayEventIfc;
class DisplayRequestEvent;
class Displayable;
class DisplayablePrivateIfc;

/// The GUI-thread side of a Display. GUI thread only, but for posting, purging, subscribing, setTranslator() and
/// getDisplayArea(). What has a name of the display's does what that promises of it; only postEvent() waits
/// for the GUI thread.
class DISPLAYAPI_EXPORT DisplayPrivateIfc {
public:
    DisplayPrivateIfc();
    DisplayPrivateIfc(const DisplayPrivateIfc&) = delete;
    DisplayPrivateIfc& operator=(const DisplayPrivateIfc&) = delete;
    virtual ~DisplayPrivateIfc();

    /// Whether `display` is one that has been made and is not gone. Null is not.
    static bool lives(const DisplayPrivateIfc* display);

    /// Whether `displayable` is on the stack of `display`; not where that does not live or has no stack.
    static bool holds(const DisplayPrivateIfc* display, const Displayable* displayable);

    virtual void setCurrent(Displayable* displayable) = 0;
    virtual Displayable* getCurrent() = 0;
    virtual void exec() = 0;
    virtual void shutdown() = 0;
    virtual void show() = 0;
    virtual void hide() = 0;
    virtual std::string serialise() = 0;
    virtual std::string serialiseByRect(const std::vector<DisplayAPIUtils::Rect>& rects, bool withSystemWindow) = 0;
    virtual void subscribe(DisplayEventIfc* observer) = 0;
    virtual void unSubscribe() = 0;

    /// Something on screen looks different: tells the observer.
    virtual void displayChanged() = 0;

    /// Takes the displayable off the stack and the screen; what lies below is shown again. Null is ignored.
    virtual void widgetDismissed(DisplayablePrivateIfc* dismissed) = 0;
    virtual void localeChanged(std::string locale) = 0;
    virtual void skinChanged(std::string skin) = 0;
    virtual void dateFormatChanged(std::string format) = 0;
    virtual void timeFormatChanged(std::string format) = 0;
    virtual DisplayAPIUtils::Rect* getDisplayArea() = 0;
    virtual void setMaximised(bool on) = 0;
    virtual void createServerDisplay(Displayable* displayable) = 0;
    virtual void setTranslator(TranslatorIfc* translator) = 0;

    /// Queues a request, which is the library's from then on, and waits for its semaphore. From any thread.
    virtual void postEvent(DisplayRequestEvent* request) = 0;

    /// The same without waiting.
    virtual void postEventAsync(DisplayRequestEvent* request) = 0;

    /// Removes and completes the queued requests of `display` whose code is one of the two and whose displayable is the
    /// given one; null matches any.
    virtual void purgeOwnMessage(Display* display, int code, int otherCode, Displayable* displayable) = 0;

    virtual std::vector<DisplayAPIUtils::Rect>* getDisplayedRects() = 0;
    virtual void setSystemWindowSize(int lines) = 0;
    virtual void setSystemWindowText(int line, std::string text) = 0;
    virtual void setSystemWindowTop(int top) = 0;
    virtual void showTimeInSystemWindow(bool on) = 0;
    virtual void setTimeInSystemWindow(int hours, int minutes, int seconds) = 0;
    virtual void setTimer(std::string text) = 0;
    virtual void stopTimer() = 0;
    virtual void setSoftwareType(const std::string& type) = 0;
    virtual void copy(const std::string& text) = 0;
    virtual std::string paste() const = 0;
    virtual void setStatusMessage(const std::string& text, unsigned int timeout) = 0;
    virtual std::string dateFormat() const = 0;
    virtual std::string timeFormat() const = 0;

protected:
    /// What holds() looks at, as long as the display lives. Not owned.
    void setStack(const std::vector<Displayable*>& stack);
};

} // namespace DisplayAPI
