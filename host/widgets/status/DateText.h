#pragma once

#include <chrono>
#include <string>

namespace host {

/// A date as the application's date format wants it: "d", "m" and "y", of either case, are the numbers, with as many
/// digits as there are letters at least; of the year only the last two where there are no more than two. Without a
/// format it is "dd.mm.yyyy".
std::string dateText(const std::chrono::year_month_day& date);

} // namespace host
