#include "apps/deskphone/CallWords.h"

#include "kit/Text.h"

namespace deskphone {

using exchange::CallState;
using exchange::Reason;

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

std::string nameOf(const exchange::Party& party)
{
    return party.name.empty() ? party.number : party.name;
}

} // namespace deskphone
