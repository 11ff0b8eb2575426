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
using DisplayAPI::LineOverviewItem;

namespace {

/// What a line's calls make of it, the first one that there is.
constexpr std::array<std::pair<CallState, LineState>, 11> STATES_BY_CALL{{
    {CallState::INCOMING, LineOverviewItem::RINGING},
    {CallState::CONFERENCE, LineOverviewItem::CONFERENCE},
    {CallState::CONNECTED, LineOverviewItem::IN_USE},
    {CallState::RESUMING, LineOverviewItem::IN_USE},
    {CallState::HELD_BY_OTHER, LineOverviewItem::HELD_BY_OTHER},
    {CallState::DIALLING, LineOverviewItem::DIALLING},
    {CallState::PROCEEDING, LineOverviewItem::DIALLING},
    {CallState::RINGING_BACK, LineOverviewItem::DIALLING},
    {CallState::HELD_BY_ME, LineOverviewItem::HELD},
    {CallState::HELD_BY_BOTH, LineOverviewItem::HELD},
    {CallState::TRANSFERRING, LineOverviewItem::HELD},
}};

LineState stateWithoutCalls(const Line& line)
{
    if (!line.isRegistered)
        return LineOverviewItem::NOT_REGISTERED;
    if (line.doNotDisturb)
        return LineOverviewItem::DO_NOT_DISTURB;
    if (!line.forwarding.always.empty())
        return LineOverviewItem::FORWARDED;
    return line.messages > 0 ? LineOverviewItem::MESSAGE_WAITING : LineOverviewItem::IDLE;
}

std::string keyOf(LineState state)
{
    switch (state) {
    case LineOverviewItem::DIALLING: return "Call.dialling";
    case LineOverviewItem::RINGING: return "Call.ringing.back";
    case LineOverviewItem::IN_USE: return "Line.in.use";
    case LineOverviewItem::HELD: return "Call.held.by.me";
    case LineOverviewItem::HELD_BY_OTHER: return "Call.held.by.other";
    case LineOverviewItem::CONFERENCE: return "Call.conference";
    case LineOverviewItem::FORWARDED: return "Line.forwarded";
    case LineOverviewItem::MESSAGE_WAITING: return "Line.messages";
    case LineOverviewItem::DO_NOT_DISTURB: return "Menu.disturb";
    case LineOverviewItem::NOT_REGISTERED: return "Line.not.registered";
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
    return words(translator, key,
                 state == LineOverviewItem::FORWARDED ? line.forwarding.always : std::to_string(line.messages));
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
        if (state == LineOverviewItem::NOT_REGISTERED || state == LineOverviewItem::DO_NOT_DISTURB)
            signs.notices.push_back(
                told(nameOf(line, translator), line, isSmallPanel(), wordsFor(state, line, translator)));
    }
    return signs;
}

} // namespace deskphone
