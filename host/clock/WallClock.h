#pragma once

#include <ctime>
#include <string>

namespace host {

/// The time of day where the telephone stands. On a virtual clock it begins on 9 March 2026 at 09:41:00, so that what
/// is shown is always the same. Safe from any thread.
class WallClock {
public:
    static std::time_t now();

    /// Hours, minutes and seconds of a moment, and its date.
    static std::tm local(std::time_t moment);

    /// The milliseconds since midnight.
    static int timeOfDay();

    /// `format` is "dd.mm.yyyy" or the like.
    static std::string date(std::time_t moment, std::string format);

    /// `format` is "24h" for 14:30; any other is for 2:30 PM.
    static std::string time(std::time_t moment, const std::string& format);
};

} // namespace host
