#pragma once

#include <chrono>

namespace host {

/// What others may know of the GUI loop. Safe from any thread.
class Loop {
public:
    /// Waits until the loop has handled every message and timer and painted every frame, at most `limit` of real time.
    /// Returns whether it got there; false as well while no loop runs.
    static bool waitUntilIdle(std::chrono::milliseconds limit);

    /// Whether Execute() is running.
    static bool isRunning();

    /// Asks the loop to end, as Display::shutdown() does.
    static void quit();
};

} // namespace host
