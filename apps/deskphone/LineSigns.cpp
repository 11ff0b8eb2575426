#include "apps/deskphone/LineSigns.h"

#include "apps/deskphone/CallWords.h"
#include "apps/deskphone/Panel.h"

#include <algorithm>
#include <array>
#include <utility>

namespace deskphone {

using exchange::CallState;
using exchange::Line;
using LineState = DisplayAPI::LineOverviewItem::LineState;
using enum DisplayAPI::LineOverviewItem::LineState;

namespace {

/// What a line's calls make of it, the first one that there is.
constexpr std::array<std::pair<CallState, LineState>, 11> STATES_BY_CALL{{
    {CallState::INCOMING, RINGING},
    {CallState::CONFERENCE, CONFERENCE},
    {CallState::CONNECTED, IN_USE},
    {CallState::RESUMING, IN_USE},
    {CallState::HELD_BY_OTHER, HELD_BY_OTHER},
    {CallState::DIALLING, DIALLING},
    {CallState::PROCEEDING, DIALLING},
    {CallState::RINGING_BACK, DIALLING},
    {CallState::HELD_BY_ME, HELD},
    {CallState::HELD_BY_BOTH, HELD},
    {CallState::TRANSFERRING, HELD},
}};

LineState stateWithoutCalls(const Line& line)
{
    if (!line.isRegistered)
        return NOT_REGISTERED;
    if (line.doNotDisturb)
        return DO_NOT_DISTURB;
    if (!line.forwarding.always.empty())
        return FORWARDED;
    return line.messages > 0 ? MESSAGE_WAITING : IDLE;
}

std::string keyOf(LineState state)
{
    switch (state) {
    case DIALLING: return "Call.dialling";
    case RINGING: return "Call.ringing.back";
    case IN_USE: return "Line.in.use";
    case HELD: return "Call.held.by.me";
    case HELD_BY_OTHER: return "Call.held.by.other";
    case CONFERENCE: return "Call.conference";
    case FORWARDED: return "Line.forwarded";
    case MESSAGE_WAITING: return "Line.messages";
    case DO_NOT_DISTURB: return "Settings.disturb";
    case NOT_REGISTERED: return "Line.not.registered";
    default: return {};
    }
}

/// A short line has no room for a word more.
std::string told(const std::string& name, const Line& line, bool isShort, const std::string& state)
{
    return (isShort ? std::to_string(line.number) + ": " : name + "  ") + state;
}

bool forwardsAny(const Line& line)
{
    const exchange::Forwarding& forwarding = line.forwarding;
    return !forwarding.always.empty() || !forwarding.whenBusy.empty() || !forwarding.whenNotAnswered.empty();
}

} // namespace

LineState stateOf(const Line& line, const std::vector<const PhoneCall*>& calls)
{
    for (const auto& [callState, state] : STATES_BY_CALL)
        for (const PhoneCall* const call : calls)
            if (call->last.line == line.number && call->state() == callState)
                return state;
    return stateWithoutCalls(line);
}

std::string wordsFor(LineState state, const Line& line, TranslatorIfc& translator)
{
    const std::string key = keyOf(state);
    if (key.empty())
        return {};
    return words(translator, key, state == FORWARDED ? line.forwarding.always : std::to_string(line.messages));
}

std::string nameOf(const Line& line, TranslatorIfc& translator)
{
    return words(translator, "Line.number", std::to_string(line.number));
}

LineSigns signsOf(const std::vector<Line>& lines, const Line& outgoing, TranslatorIfc& translator)
{
    LineSigns signs{.name = nameOf(outgoing, translator),
                    .state = wordsFor(stateWithoutCalls(outgoing), outgoing, translator),
                    .forwardedTo = outgoing.forwarding.always};
    signs.status = signs.state.empty() ? signs.name : told(signs.name, outgoing, isNarrowPanel(), signs.state);
    for (const Line& line : lines) {
        signs.messages += line.messages;
        signs.forwards = signs.forwards || forwardsAny(line);
        signs.isQuiet = signs.isQuiet || line.doNotDisturb;
        const LineState state = stateWithoutCalls(line);
        if (state == NOT_REGISTERED || state == DO_NOT_DISTURB)
            signs.notices.push_back(
                told(nameOf(line, translator), line, isSmallPanel(), wordsFor(state, line, translator)));
    }
    return signs;
}

} // namespace deskphone
