#pragma once

#include "apps/exchange/Call.h"

#include <cstdint>
#include <string>

namespace exchange {

/// The longest time that anybody can be told to wait, in milliseconds: a day.
inline constexpr std::int64_t LONGEST_TIME = 24 * 60 * 60 * 1000;

/// Where calls for a line go on to; an empty number is nowhere.
struct Forwarding {
    std::string always = {};             ///< before do not disturb, and without ringing
    std::string whenBusy = {};           ///< also while the line wants no calls
    std::string whenNotAnswered = {};    ///< after `answerTime`
    std::int64_t answerTime = 15 * 1000; ///< milliseconds

    bool operator==(const Forwarding&) const = default;
};

/// A line as the exchange knows it.
struct Line {
    LineNumber number = 0;
    Party party = {};          ///< its own number and name
    bool isRegistered = true;  ///< else nobody calls, and nobody can be called
    int messages = 0;          ///< that wait in the mailbox
    bool doNotDisturb = false; ///< who calls hears that it is busy
    bool takesSeveral = true;  ///< call waiting: with one call on it the line is not busy yet
    Forwarding forwarding = {};

    bool operator==(const Line&) const = default;
};

/// A line is busy with so many calls on it, whether it takes several or not.
inline constexpr int MOST_CALLS = 8;

} // namespace exchange
