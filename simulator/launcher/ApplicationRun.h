#pragma once

#include "simulator/launcher/Child.h"
#include "simulator/launcher/Signals.h"

#include <chrono>

namespace simulator {

/// What the launcher ends with when the application could not be started.
constexpr int CANNOT_START = 2;

/// How long an application may take to end once it has been asked to.
constexpr std::chrono::milliseconds TIME_TO_END(5000);

/// The application while it runs, with all that it has started: hands on to them what asks the launcher to end or to
/// stop, and kills them when they take too long. What has outlived the application is asked to end as well.
class ApplicationRun {
public:
    ApplicationRun(const std::vector<std::string>& command, const Child::Environment& added, int kept = -1);

    const std::string& error() const { return mChild.error(); }

    /// Waits until the application and what it has started have ended, `descriptor` is readable (-1 for none) or
    /// `limit` is over. Returns how the application ended, or nothing while it runs.
    std::optional<Ending> wait(std::chrono::milliseconds limit, int descriptor = -1);

    /// Gives it that long to end. The first call counts.
    void limitTo(std::chrono::milliseconds limit);

    /// Whether it has been killed because it took too long.
    bool wasKilled() const { return mWasKilled; }

private:
    void handleSignals();
    void stop();
    void askToEnd(int signal);
    void killWhenOverdue();

    Signals mSignals;
    Child mChild;
    std::optional<std::chrono::steady_clock::time_point> mDeadline;
    bool mWasAsked = false; ///< to end
    bool mWasKilled = false;
};

} // namespace simulator
