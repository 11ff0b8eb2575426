#pragma once

#include "DisplayAPI/Timer.h"
#include "DisplayAPI/TimerEvent.h"
#include "apps/deskphone/StatusLines.h"
#include "host/frontend/Wire.h"
#include "host/languages/Languages.h"
#include "kit/StatusLines.h"
#include "kit/Text.h"

#include <atomic>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

namespace DisplayAPI {
class Display;
class Displayable;
} // namespace DisplayAPI

namespace deskphone {

class Place;

/// Every screen and menu of the phone can be left.
constexpr bool HAS_WAY_BACK = true;

/// What all screens share: the display, the languages, and a way to say something. Safe from any thread; make and
/// delete it on the GUI thread.
class Telephone : private DisplayAPI::TimerEvent {
public:
    explicit Telephone(DisplayAPI::Display& display);

    DisplayAPI::Display& display() { return mDisplay; }
    host::Languages& languages() { return mLanguages; }

    /// Changes the language of all that is shown. Returns the sentence that says why it does not, or nothing.
    std::string useLanguage(const std::string& code);

    /// Change how dates and times are shown, on all screens.
    void useDateFormat(const std::string& format);
    void useTimeFormat(const std::string& format);

    /// `listener` is called on the GUI thread each time that the language has changed. REQUIRES: on the GUI thread.
    void addLanguageListener(std::function<void()> listener);

    /// The lines above the screens.
    StatusLines& status() { return mStatus; }

    enum class Lines { ABOVE, NONE };

    /// Shows a screen, with the status lines above it or without them.
    void show(DisplayAPI::Displayable& screen, Lines lines = Lines::ABOVE);

    /// `listener` is called on the GUI thread with each displayable that is shown, or null. REQUIRES: on the GUI
    /// thread.
    void addScreenListener(DisplayAPI::kit::StatusLines::ScreenListener listener);

    /// Where the user has gone last; null where he has been nowhere. Anywhere.
    void arriveAt(Place& place) { mPlace = &place; }
    Place* place() const { return mPlace; }

    /// Keeps a number that the user may want to dial later, and says so.
    void copy(const std::string& number);

    /// What was copied last; empty where nothing was.
    std::string copied() const;

    /// Shows a message that goes away by itself.
    void tell(const std::string& message);

private:
    void timerExpired() override;
    void renewTexts();

    DisplayAPI::Display& mDisplay;
    host::Languages mLanguages;
    std::vector<std::function<void()>> mLanguageListeners;
    std::vector<DisplayAPI::kit::StatusLines::ScreenListener> mScreenListeners;
    DisplayAPI::kit::StatusLines mLines;
    StatusLines mStatus;
    DisplayAPI::Timer mLanguageChange; ///< runs out at once: a way to the GUI thread
    DisplayAPI::kit::Text mNumberCopied;
    std::atomic<Place*> mPlace{nullptr};
    mutable std::mutex mMutex; ///< guards what follows
    std::string mCopied;
    host::Wire mLanguageWire; ///< before all that its listener needs goes
};

} // namespace deskphone
