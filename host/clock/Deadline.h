#pragma once

#include <cstdint>
#include <ctime>

namespace host {

/// The end of a time-out on the host's clock.
class Deadline {
public:
    /// -1 is without limit, 0 is at once.
    explicit Deadline(int milliseconds);

    bool isNow() const { return mMilliseconds == 0; }

    /// Sleeps as futexWait() does, at most until the deadline; returns false when it has come.
    bool sleep(const void* word, std::uint32_t expected) const;

private:
    int mMilliseconds;
    timespec mRealEnd{};
    std::int64_t mVirtualEnd = 0;
};

/// The moment of CLOCK_MONOTONIC that lies so far ahead.
timespec realTimeAhead(std::int64_t milliseconds);

} // namespace host
