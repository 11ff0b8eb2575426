#include "apps/deskphone/LineOverview.h"

#include "DisplayAPI/List.h"
#include "apps/deskphone/LineSigns.h"
#include "apps/deskphone/Panel.h"
#include "apps/deskphone/Telephone.h"

namespace deskphone {

using exchange::Line;

namespace {

const std::string WITHOUT_NUMBER;

} // namespace

LineOverview::LineOverview(Telephone& telephone, Place* parent, Calls& calls, CallScreen& call)
    : Screen(telephone, parent, "Lines.title"), mCalls(calls)
{
    setDialer(call);
    for (const Line& line : calls.lines().all()) {
        const std::vector<Text::Argument> number{[number = line.number] { return std::to_string(number); }};
        const Prefix prefix{text("Line.number", number), text("Line.marked", number)};
        mPrefixes.push_back(prefix);
        const std::string& name = isSmallPanel() ? WITHOUT_NUMBER : line.party.number;
        list().append(mRows.emplace_back(line.number, name, lookOf(line, prefix)).item());
    }
    calls.addListener([this] { refresh(); });
    telephone.addLanguageListener([this] { mCalls.callListeners(); });
}

void LineOverview::chosen(int row)
{
    const Line line = mCalls.lines().find(mRows.at(static_cast<std::size_t>(row)).line());
    mCalls.chooseLine(line.number);
    refresh();
    if (!line.isRegistered)
        telephone().tell(telephone().languages().translate("Call.not.registered"));
}

/// What there is to say takes the room of the line's own name, and on the small panel of its number.
LineRow::Look LineOverview::lookOf(const Line& line, const Prefix& prefix)
{
    const bool isMarked = mCalls.lines().outgoing().number == line.number;
    const auto state = stateOf(line, mCalls.all());
    const std::string words = wordsFor(state, line, telephone().languages());
    const std::string& own = isSmallPanel() ? line.party.number : line.party.name;
    return {state, (isMarked ? prefix.marked : prefix.plain).info(), words.empty() ? own : words};
}

void LineOverview::refresh()
{
    const std::vector<Line> lines = mCalls.lines().all();
    for (std::size_t at = 0; at < mRows.size(); ++at)
        mRows[at].show(lookOf(lines.at(at), mPrefixes[at]));
}

} // namespace deskphone
