#include "apps/deskphone/DisturbScreen.h"

#include "DisplayAPI/CallForwardItem.h"
#include "DisplayAPI/List.h"

#include <utility>

namespace deskphone {

using DisplayAPI::CallForwardItem;
using DisplayAPI::CallLogMainItem;
using exchange::Line;

DisturbScreen::DisturbScreen(Telephone& telephone, Place* parent, Calls& calls)
    : Screen(telephone, parent, "Menu.disturb"), mCalls(calls)
{
    for (const Line& line : calls.lines().all()) {
        Text& words = text("Line.number", {[number = line.number] { return std::to_string(number); }});
        auto* const item = new CallForwardItem(CallLogMainItem::NO_ICON, words.info(), false, false);
        item->setTextBranch(line.party.name, nullptr, CallForwardItem::BRANCH_LINE_1);
        mRows.push_back({line.number, item});
        list().append(item);
    }
    calls.addListener([this] { refresh(); });
}

void DisturbScreen::chosen(int place)
{
    const Row& row = mRows.at(static_cast<std::size_t>(place));
    mCalls.telephony().setDoNotDisturb(row.line, !row.isQuiet);
}

void DisturbScreen::refresh()
{
    const std::vector<Line> lines = mCalls.lines().all();
    for (std::size_t at = 0; at < mRows.size(); ++at) {
        Row& row = mRows[at];
        const bool isQuiet = lines.at(at).doNotDisturb;
        if (std::exchange(row.isQuiet, isQuiet) != isQuiet)
            isQuiet ? row.item->check() : row.item->uncheck();
    }
}

} // namespace deskphone
