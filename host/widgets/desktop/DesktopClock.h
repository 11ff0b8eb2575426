#pragma once

#include "host/widgets/status/StatusTime.h"

#include <chrono>
#include <optional>
#include <string>

namespace host {

/// A clock with a calendar, which goes on by itself from what it was set to. GUI thread only.
class DesktopClock {
public:
    /// What is out of range is cut into it, the day into its month.
    void setTime(int hours, int minutes, int seconds);
    void setDate(int day, int month, int year);

    /// The minutes by which it is ahead of what it was set to; at most a day.
    void setZone(int minutes);

    /// Instead of the application's format.
    void setTwelveHours(bool on);

    /// As texts; empty before it is set.
    std::string time() const;
    std::string date() const;

    /// Nothing before the date is set.
    std::optional<std::chrono::weekday> weekday() const;

    /// Whether a text changes by itself, and the milliseconds until one may.
    bool runs() const { return mHasTime || mHasDate; }
    int untilNextText() const;

private:
    using Days = std::chrono::sys_days;

    std::int64_t local() const;
    Days localDay() const;

    RunningTime mTime{0}; ///< since the beginning of 1970, where the zone is 0
    int mZone = 0;
    bool mHasTime = false;
    bool mHasDate = false;
    std::optional<bool> mTwelveHours;
};

} // namespace host
