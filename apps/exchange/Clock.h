#pragma once

#include <cstdint>

namespace exchange {

/// The time on which an exchange runs, in milliseconds. Safe from any thread.
class Clock {
public:
    virtual ~Clock() = default;

    /// Never goes back.
    virtual std::int64_t now() const = 0;

    /// For the exchange's thread: returns when `until` has come or somebody has called wake() since the last sleep.
    virtual void sleepUntil(std::int64_t until) = 0;

    virtual void wake() = 0;
};

} // namespace exchange
