#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace host {

constexpr std::int64_t SECOND = 1000;
constexpr std::int64_t MINUTE = 60 * SECOND;
constexpr std::int64_t HOUR = 60 * MINUTE;

/// Whether the application's time format counts the hours twice.
bool hasTwelveHours();

/// The time of a day, in milliseconds: "14:05" or "2:05 PM"; as the application's time format wants it.
std::string clockText(std::int64_t time, bool twelveHours = hasTwelveHours());

/// "42:07", or "00:42:07" where hours are wanted or needed.
std::string timerText(std::int64_t time, bool hours);

/// The milliseconds that "HH:MM:SS" or "MM:SS" stand for; the first number may have one digit.
std::optional<std::int64_t> parseTimer(std::string text);

} // namespace host
