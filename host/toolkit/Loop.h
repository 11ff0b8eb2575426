#pragma once

#include <chrono>
#include <cstdint>

namespace host {

/// What others may know of the GUI loop. Safe from any thread.
class Loop {
public:
    /// Waits until the loop has handled every message and timer and painted every frame, at most `limit` of real time.
    /// Returns whether it got there; false as well while no loop runs.
    static bool waitUntilIdle(std::chrono::milliseconds limit);

    /// Whether Execute() is running.
    static bool isRunning();

    /// How many messages and timers the loop has begun with. GUI thread only.
    static std::uint64_t begun();

    /// Whether it has nothing to do, and has begun with nothing since that was begun().
    static bool isIdleSince(std::uint64_t begun);

    /// How long the GUI thread has been at one thing: messages without a turn for timers and frames in between, a
    /// timer, a frame, or what the program does while the toolkit is up and no loop runs. Zero while it waits for work,
    /// and without a toolkit. In real time, to some milliseconds.
    static std::chrono::milliseconds busyFor();

    /// Whether it is at something.
    static bool isBusy();

    /// The GUI thread's number; 0 while the toolkit is not up.
    static unsigned int guiThread();

    /// Who is busy for that long stands still: nothing is shown, and no key is taken.
    static constexpr std::chrono::milliseconds STANDSTILL{2000};
    static bool standsStill() { return busyFor() >= STANDSTILL; }

    /// Asks the loop to end, as Display::shutdown() does.
    static void quit();
};

} // namespace host
