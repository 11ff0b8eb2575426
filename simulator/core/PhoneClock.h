#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>

namespace simulator {

/// The telephone's clock for those outside who let time pass: a real one goes by itself, a virtual one is moved.
/// Safe from any thread but the GUI thread. Lock: a leaf, not held while the clock moves.
class PhoneClock {
public:
    /// A virtual clock is moved second by second: the screen is painted at least every second.
    void pass(std::int64_t milliseconds);

    /// Moves the virtual clock in one go: hours cost little. False when the clock is not virtual.
    bool advance(std::int64_t milliseconds);

    /// Lets so much real time pass, whatever the clock is.
    void rest(std::chrono::milliseconds time);

    /// From here on no time passes any more, and nobody waits.
    void leave();
    bool isThere();

private:
    void move(std::int64_t milliseconds, std::int64_t slice);

    std::mutex mMutex;
    std::condition_variable mChanged;
    bool mIsThere = true;
};

} // namespace simulator
