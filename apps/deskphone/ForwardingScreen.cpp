#include "apps/deskphone/ForwardingScreen.h"

#include "DisplayAPI/CallForwardItem.h"
#include "DisplayAPI/List.h"
#include "apps/deskphone/Panel.h"
#include "apps/deskphone/PhoneBook.h"
#include "apps/deskphone/Telephone.h"

#include <array>

namespace deskphone {

using DisplayAPI::CallForwardItem;
using DisplayAPI::CallLogMainItem;
using exchange::Forwarding;
using exchange::Line;

namespace {

struct Kind {
    std::string Forwarding::*target;
    std::string text; ///< its key
    CallLogMainItem::IconType icon;
};

const std::array<Kind, 3> KINDS{
    {{&Forwarding::always, "Forwarding.always", CallLogMainItem::ICON_FORWARDING_ALWAYS},
     {&Forwarding::whenBusy, "Forwarding.busy", CallLogMainItem::ICON_FORWARDING_BUSY},
     {&Forwarding::whenNotAnswered, "Forwarding.no.answer", CallLogMainItem::ICON_FORWARDING_NO_ANSWER}}};

} // namespace

ForwardingScreen::ForwardingScreen(Telephone& telephone, Place* parent, Calls& calls)
    : Screen(telephone, parent, isSmallPanel() ? WITHOUT_TITLE : "Settings.forwarding"), mCalls(calls),
      mTarget(telephone, "Forwarding.set"), mTo(text("Forwarding.to")),
      mAfter(text("Forwarding.after", {[] { return std::to_string(Forwarding().answerTime / 1000); }}))
{
    setRowMenu({{"Forwarding.number", [this] { ask(mRows.at(static_cast<std::size_t>(mMenuRow))); }},
                {"Switch.off", [this] { set(mRows.at(static_cast<std::size_t>(mMenuRow)), {}); }}});
    for (const Line& line : calls.lines().all())
        for (const Kind& kind : KINDS) {
            Text& words = text(kind.text, {[number = line.number] { return std::to_string(number); }});
            auto* const item = new CallForwardItem(kind.icon, words.info(), false, false);
            mRows.push_back({line.number, kind.target, item});
            list().append(item);
        }
    calls.addListener([this] { refresh(); });
}

void ForwardingScreen::stopListening()
{
    Screen::stopListening();
    mTarget.stopListening();
}

void ForwardingScreen::chosen(int place)
{
    Row& row = mRows.at(static_cast<std::size_t>(place));
    if (row.number.empty())
        ask(row);
    else
        set(row, {});
}

void ForwardingScreen::ask(Row& row)
{
    if (!row.isRegistered)
        return tell("Call.not.registered");
    mTarget.ask([this, &row](const std::string& number) { set(row, digitsOf(number)); }, row.number);
}

void ForwardingScreen::set(Row& row, const std::string& number)
{
    if (!row.isRegistered)
        return tell("Call.not.registered");
    if (comesBack(mCalls.lines().all(), row.line, number))
        return tell("Forwarding.comes.back");
    Forwarding forwarding = mCalls.lines().find(row.line).forwarding;
    forwarding.*row.target = number;
    mCalls.telephony().setForwarding(row.line, forwarding);
}

void ForwardingScreen::refresh()
{
    const std::vector<Line> lines = mCalls.lines().all();
    for (std::size_t at = 0; at < mRows.size(); ++at)
        show(mRows[at], lines.at(at / KINDS.size()));
}

void ForwardingScreen::show(Row& row, const Line& line)
{
    if (std::exchange(row.isRegistered, line.isRegistered) != line.isRegistered)
        row.item->setReadonly(!line.isRegistered, true);
    const std::string& number = line.forwarding.*row.target;
    if (std::exchange(row.number, number) == number)
        return;
    row.item->cleanBranches();
    if (number.empty())
        return row.item->uncheck();
    row.item->check();
    row.item->setTextBranch(number, mTo.info(), CallForwardItem::BRANCH_LINE_1);
    if (row.target == &Forwarding::whenNotAnswered)
        row.item->setTextBranch(std::string(), mAfter.info(), CallForwardItem::BRANCH_LINE_2);
}

void ForwardingScreen::tell(const std::string& key)
{
    telephone().tell(telephone().languages().translate(key));
}

} // namespace deskphone
