#include "apps/exchange/Call.h"

#include <array>

namespace exchange {

namespace {

constexpr std::array<std::string_view, 14> STATES = {
    "dialling",     "proceeding", "ringing back", "incoming",   "connected", "held by me", "held by other",
    "held by both", "resuming",   "transferring", "conference", "forwarded", "ended",      "failed",
};

constexpr std::array<std::string_view, 11> REASONS = {
    "none",           "ended by me", "ended by other", "busy",           "no answer", "rejected",
    "do not disturb", "transferred", "unknown number", "not registered", "failure",
};

} // namespace

bool isFinal(CallState state)
{
    return state == CallState::FORWARDED || state == CallState::ENDED || state == CallState::FAILED;
}

bool isTalk(CallState state)
{
    switch (state) {
    case CallState::CONNECTED:
    case CallState::HELD_BY_ME:
    case CallState::HELD_BY_OTHER:
    case CallState::HELD_BY_BOTH:
    case CallState::RESUMING:
    case CallState::CONFERENCE: return true;
    default: return false;
    }
}

std::string_view nameOf(CallState state)
{
    return STATES.at(static_cast<std::size_t>(state));
}

std::string_view nameOf(Reason reason)
{
    return REASONS.at(static_cast<std::size_t>(reason));
}

} // namespace exchange
