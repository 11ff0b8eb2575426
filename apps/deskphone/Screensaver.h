#pragma once

#include "DisplayAPI/Timer.h"
#include "DisplayAPI/TimerEvent.h"

#include <atomic>
#include <functional>

namespace deskphone {

/// Tells when the home screen has been shown for some time, and nothing above it. Safe from any thread; make and delete
/// it on the GUI thread.
class Screensaver : private DisplayAPI::TimerEvent {
public:
    /// `begin` is called on the GUI thread.
    explicit Screensaver(std::function<void()> begin);

    /// 0 is never. From the next wait() on.
    void setMinutes(int minutes) { mMinutes = minutes; }

    /// The time begins, or begins anew.
    void wait();
    void stop() { mTimer.stop(); }

private:
    void timerExpired() override { mBegin(); }

    std::function<void()> mBegin;
    std::atomic<int> mMinutes{0};
    DisplayAPI::Timer mTimer;
};

} // namespace deskphone
