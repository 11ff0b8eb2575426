#pragma once

#include <chrono>

namespace simulator {

/// Tells the user, once, that the application takes its time to make a display: until then it shows nothing and takes
/// no key.
class DisplayReminder {
public:
    explicit DisplayReminder(std::chrono::milliseconds patience = std::chrono::seconds(5));

    /// There is no display yet.
    void stillWaiting();

private:
    std::chrono::steady_clock::time_point mDue;
    bool mIsTold = false;
};

} // namespace simulator
