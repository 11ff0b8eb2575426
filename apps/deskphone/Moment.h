#pragma once

#include <ctime>
#include <string>

namespace deskphone {

/// A moment in the formats that the display has now. On the GUI thread, whose they are.
std::string shownDate(std::time_t moment);
std::string shownTime(std::time_t moment);

/// How dates and times are shown on a day: who has the same shows the same moments alike.
struct MomentFormats {
    std::string date;
    std::string time;
    std::string today; ///< in the format of dates

    bool operator==(const MomentFormats&) const = default;
};

/// Those of now. On any thread; waits for the GUI thread.
MomentFormats momentFormats();

/// The time of today, the date of other days. On any thread.
std::string shown(std::time_t moment, const MomentFormats& formats);

} // namespace deskphone
