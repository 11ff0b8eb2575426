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

constexpr std::int64_t MS_PER_SECOND = 1000;

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
    : Screen(telephone, parent, isSmallPanel() ? WITHOUT_TITLE : "Menu.forwarding"), mCalls(calls),
      mTo(text("Forwarding.to"))
{
    setRowMenu({{"Forwarding.number", [this] { ask(static_cast<std::size_t>(mMenuRow)); }},
                {"Switch.off", [this] { end(mRows.at(static_cast<std::size_t>(mMenuRow))); }}});
    for (const Line& line : calls.lines().all())
        for (std::size_t kind = 0; kind < KINDS.size(); ++kind)
            addRow(line, kind);
    calls.addListener([this] { refresh(); });
}

void ForwardingScreen::addRow(const Line& line, std::size_t kind)
{
    Text& words = text(KINDS[kind].text, {[number = line.number] { return std::to_string(number); }});
    auto* const item = new CallForwardItem(KINDS[kind].icon, words.info(), false, false);
    Row& row = mRows.emplace_back();
    row.line = line.number;
    row.target = KINDS[kind].target;
    row.item = item;
    row.after = &text("Forwarding.after", {[&row] { return std::to_string(row.seconds); }});
    list().append(item);
    const bool rings = row.target == &Forwarding::whenNotAnswered;
    mForms.emplace_back(telephone(), *this, rings ? ForwardingForm::Delay::ASKED : ForwardingForm::Delay::NONE,
                        [this, &row](const ForwardingForm::Values& values) { return set(row, values); });
}

void ForwardingScreen::stopListening()
{
    Screen::stopListening();
    for (ForwardingForm& form : mForms)
        form.stopListening();
}

void ForwardingScreen::chosen(int place)
{
    Row& row = mRows.at(static_cast<std::size_t>(place));
    if (row.number.empty())
        ask(static_cast<std::size_t>(place));
    else
        end(row);
}

void ForwardingScreen::ask(std::size_t place)
{
    const Line line = mCalls.lines().find(mRows.at(place).line);
    if (!line.isRegistered)
        refuse("Call.not.registered");
    else
        mForms.at(place).begin({.number = line.forwarding.*mRows[place].target,
                                .seconds = static_cast<int>(line.forwarding.answerTime / MS_PER_SECOND)});
}

bool ForwardingScreen::set(Row& row, const ForwardingForm::Values& values)
{
    const Line line = mCalls.lines().find(row.line);
    if (!line.isRegistered)
        return refuse("Call.not.registered");
    if (comesBack(mCalls.lines().all(), row.line, values.number))
        return refuse("Forwarding.comes.back");
    Forwarding forwarding = line.forwarding;
    forwarding.*row.target = values.number;
    if (row.target == &Forwarding::whenNotAnswered)
        forwarding.answerTime = values.seconds * MS_PER_SECOND;
    mCalls.telephony().setForwarding(row.line, forwarding);
    return true;
}

void ForwardingScreen::end(Row& row)
{
    const Forwarding forwarding = mCalls.lines().find(row.line).forwarding;
    set(row, {.seconds = static_cast<int>(forwarding.answerTime / MS_PER_SECOND)});
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
    const int seconds = static_cast<int>(line.forwarding.answerTime / MS_PER_SECOND);
    const bool isOther = std::exchange(row.number, number) != number;
    if (row.seconds.exchange(seconds) == seconds && !isOther)
        return;
    row.item->cleanBranches();
    if (number.empty())
        return row.item->uncheck();
    row.item->check();
    row.item->setTextBranch(number, mTo.info(), CallForwardItem::BRANCH_LINE_1);
    if (row.target == &Forwarding::whenNotAnswered)
        row.item->setTextBranch(std::string(), row.after->info(), CallForwardItem::BRANCH_LINE_2);
}

bool ForwardingScreen::refuse(const std::string& key)
{
    telephone().tell(telephone().languages().translate(key));
    return false;
}

} // namespace deskphone
