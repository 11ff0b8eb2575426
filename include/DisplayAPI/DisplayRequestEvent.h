#pragma once

#include "DisplayAPI/Export.h"

#include <cstdint>
#include <string>
#include <vector>

class Semaphore;

namespace DisplayAPIUtils {
class Rect;
}

namespace DisplayAPI {

class Display;
class Displayable;

/// A call on a Display on its way to the GUI thread.
///
/// Written by the poster until it is posted, by the GUI thread afterwards; nothing waits but waitForCompletion().
/// Owns its string and nothing else: semaphore, rectangles and result slots are the caller's and outlive it. The
/// semaphore is null where nobody waits. A text is a std::string: a literal would be taken for the flag.
class DISPLAYAPI_EXPORT DisplayRequestEvent {
public:
    enum DisplayRequests : std::int32_t {
        HIDE = 0,
        SHOW = 1,
        SET_CURRENT = 2,
        GET_CURRENT = 3,
        SHUTDOWN = 4,
        LOCALE_CHANGED = 5,
        DATE_FORMAT_CHANGED = 6,
        TIME_FORMAT_CHANGED = 7,
        SERIALISE = 8,
        CREATE_SERVER_DISPLAY = 9,
        SET_MAXIMISED = 10,
        GET_DISPLAYED_RECTS = 11,
        SERIALISE_BY_RECT = 12,
        SET_SYSTEM_WINDOW_SIZE = 14,
        SET_SYSTEM_WINDOW_TEXT = 15,
        SET_SYSTEM_WINDOW_TOP = 16,
        SHOW_TIME_IN_SYSTEM_WINDOW = 17,
        SET_TIME_IN_SYSTEM_WINDOW = 18,
        SET_TIMER = 19,
        STOP_TIMER = 20,
        SET_SOFTWARE_TYPE = 21,
        SET_STATUS_MESSAGE = 22,
        COPY = 23,
        PASTE = 24
    };

    using Rects = std::vector<DisplayAPIUtils::Rect>;

    DisplayRequestEvent(Display* requester, DisplayRequests type, Semaphore* semaphore, int value, std::string text);
    DisplayRequestEvent(Display* requester, DisplayRequests type, Semaphore* semaphore, int value);
    DisplayRequestEvent(Display* requester, DisplayRequests type, Semaphore* semaphore, const Rects* rects, bool flag);
    DisplayRequestEvent(Display* requester, DisplayRequests type, Semaphore* semaphore, bool flag);
    DisplayRequestEvent(Display* requester, DisplayRequests type, Semaphore* semaphore, std::string text);
    DisplayRequestEvent(Display* requester, DisplayRequests type, Semaphore* semaphore, Displayable* displayable);
    DisplayRequestEvent(const DisplayRequestEvent&) = delete;
    DisplayRequestEvent& operator=(const DisplayRequestEvent&) = delete;
    virtual ~DisplayRequestEvent();

    Display* requesterDisplay() { return mRequester; }
    Displayable* getDisplayable() { return mDisplayable; }
    std::string getStringParam() const { return mString; }
    bool getBoolParam() const { return mBool; }
    DisplayRequests getType() const { return mType; }
    Semaphore* getSemaphore() { return mSemaphore; }

    void setCurrentDisplayable(Displayable** slot) { mCurrentDisplayable = slot; }
    Displayable** getCurrentDisplayable() { return mCurrentDisplayable; }

    void setDisplayedRectsReturnValue(Rects** slot) { mDisplayedRects = slot; }

    /// Stores `rects` through the slot; does nothing where there is no slot.
    void setDisplayedRects(Rects* rects);

    void setStringReturnValue(std::string* slot) { mStringReturn = slot; }
    std::string* getStringReturnValue() { return mStringReturn; }

    const Rects* getSerialisableRects() const { return mSerialisableRects; }
    int getIntParam() const { return mInt; }

    /// Waits for a permit of the semaphore, without limit; returns at once where there is none.
    void waitForCompletion();

    /// Gives the semaphore; does nothing where there is none.
    void requestCompleted();

private:
    Display* mRequester;
    Displayable* mDisplayable;
    std::string mString;
    bool mBool;
    DisplayRequests mType;
    Semaphore* mSemaphore;
    Displayable** mCurrentDisplayable;
    Rects** mDisplayedRects; ///< not set by the constructors with an int
    std::string* mStringReturn;
    const Rects* mSerialisableRects; ///< not set by the constructors with an int
    std::int32_t mInt;               ///< not set by the constructor with a string alone
};

} // namespace DisplayAPI
