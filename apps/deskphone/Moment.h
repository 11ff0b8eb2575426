#pragma once

#include <ctime>
#include <string>

namespace deskphone {

/// A moment in the formats that the display has now. On the GUI thread, whose they are.
std::string shownDate(std::time_t moment);
std::string shownTime(std::time_t moment);

/// The time of today, the date of other days.
std::string shown(std::time_t moment);

} // namespace deskphone
