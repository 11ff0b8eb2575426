#include "apps/deskphone/CallWords.h"

#include "kit/Text.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace deskphone {

using exchange::CallState;
using exchange::Reason;

namespace {

struct KnownReason {
    std::string_view text; ///< as the exchange and its file of numbers say it
    std::string key;
};

const std::array<KnownReason, 3> KNOWN_REASONS{{{"The line has too many calls", "Call.too.many"},
                                                {"Forwarded too often", "Call.forwarded.too.often"},
                                                {"No line is free", "Call.no.line.free"}}};

} // namespace

std::string words(TranslatorIfc& translator, const std::string& key, const std::string& argument)
{
    return DisplayAPI::kit::Text(&translator, key, {[&argument] { return argument; }}).get();
}

std::string keyOf(CallState state)
{
    switch (state) {
    case CallState::DIALLING: return "Call.dialling";
    case CallState::PROCEEDING: return "Call.proceeding";
    case CallState::RINGING_BACK: return "Call.ringing.back";
    case CallState::CONNECTED: return "Call.connected";
    case CallState::HELD_BY_ME: return "Call.held.by.me";
    case CallState::HELD_BY_OTHER: return "Call.held.by.other";
    case CallState::HELD_BY_BOTH: return "Call.held.by.both";
    case CallState::RESUMING: return "Call.resuming";
    case CallState::TRANSFERRING: return "Call.transferring";
    case CallState::CONFERENCE: return "Call.conference";
    case CallState::INCOMING:
    case CallState::FORWARDED:
    case CallState::ENDED:
    case CallState::FAILED: break;
    }
    return {};
}

std::string keyOf(Reason reason)
{
    switch (reason) {
    case Reason::BUSY: return "Call.busy";
    case Reason::NO_ANSWER: return "Call.no.answer";
    case Reason::REJECTED: return "Call.rejected";
    case Reason::UNKNOWN_NUMBER: return "Call.unknown.number";
    case Reason::NOT_REGISTERED: return "Call.not.registered";
    default: return {};
    }
}

std::string reasonOf(const exchange::CallEvent& event, TranslatorIfc& translator)
{
    const auto known = std::ranges::find(KNOWN_REASONS, event.text, &KnownReason::text);
    if (known == KNOWN_REASONS.end() && !event.text.empty())
        return event.text;
    const std::string key = event.text.empty() ? keyOf(event.reason) : known->key;
    return key.empty() ? key : words(translator, key);
}

std::string nameOf(const exchange::Party& party)
{
    return party.name.empty() ? party.number : party.name;
}

} // namespace deskphone
