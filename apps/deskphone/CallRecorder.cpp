#include "apps/deskphone/CallRecorder.h"

#include "DisplayAPI/DurationText.h"
#include "apps/deskphone/CallHistory.h"
#include "apps/deskphone/CallWords.h"
#include "apps/deskphone/Telephone.h"

namespace deskphone {

using exchange::CallState;
using exchange::Direction;
using exchange::Reason;

namespace {

PastCall::Kind kindOf(const PhoneCall& call)
{
    if (call.last.direction == Direction::OUTGOING)
        return PastCall::Kind::DIALLED;
    if (call.talkSince)
        return PastCall::Kind::RECEIVED;
    return call.state() == CallState::FORWARDED ? PastCall::Kind::FORWARDED : PastCall::Kind::MISSED;
}

/// Who has got the call instead, or who has forwarded it to here.
std::string otherOf(const PhoneCall& call)
{
    if (call.state() == CallState::FORWARDED)
        return nameOf(call.last.to);
    const bool wasForwarded = !call.last.forwardedBy.number.empty();
    const bool isOutgoing = call.last.direction == Direction::OUTGOING;
    return nameOf(isOutgoing && wasForwarded ? call.last.other : call.last.forwardedBy);
}

/// By the user, or because he does not want to be disturbed.
bool wasRefused(const PhoneCall& call)
{
    return call.last.reason == Reason::REJECTED || call.last.reason == Reason::DO_NOT_DISTURB;
}

} // namespace

CallRecorder::CallRecorder(Telephone& telephone, Calls& calls, CallHistory& history)
    : mTelephone(telephone), mHistory(history)
{
    calls.addCallListener([this](const PhoneCall& call) { note(call); });
}

void CallRecorder::note(const PhoneCall& call)
{
    if (isFinal(call.state()))
        keep(call);
    const std::string message = isFinal(call.state()) ? epilogue(call) : failure(call);
    if (!message.empty())
        mTelephone.tell(message);
}

/// Who has rejected a call has seen it. What was dialled is dialled again, whoever has answered.
void CallRecorder::keep(const PhoneCall& call)
{
    const bool isOutgoing = call.last.direction == Direction::OUTGOING;
    PastCall past{kindOf(call), call.moment, isOutgoing ? nameOf(call.dialled) : call.party(),
                  isOutgoing ? call.dialled.number : call.last.other.number};
    past.seconds = static_cast<int>(call.spokenUntil(call.last.at) / 1000);
    past.other = otherOf(call);
    past.line = call.last.line;
    past.reason = call.last.reason;
    past.isSeen = call.last.reason == Reason::REJECTED;
    mHistory.add(past);
}

/// Why what the user wanted of a call has come to nothing, such as a transfer.
std::string CallRecorder::failure(const PhoneCall& call)
{
    return reasonOf(call.last, mTelephone.languages());
}

std::string CallRecorder::epilogue(const PhoneCall& call)
{
    if (call.state() == CallState::FORWARDED || call.last.reason == Reason::TRANSFERRED)
        return said(call.state() == CallState::FORWARDED ? "Call.forwarded" : "Call.transferred", nameOf(call.last.to));
    const bool isIncoming = call.last.direction == Direction::INCOMING;
    if (isIncoming && !call.talkSince)
        return wasRefused(call) ? std::string() : said("Details.missed");
    const std::string reason = reasonOf(call.last, mTelephone.languages());
    return reason.empty() ? said("Call.ended", DisplayAPI::durationText(call.spokenUntil(call.last.at) / 1000))
                          : reason;
}

std::string CallRecorder::said(const std::string& key, const std::string& argument)
{
    return words(mTelephone.languages(), key, argument);
}

} // namespace deskphone
