#include "apps/deskphone/CallLog.h"

#include "DisplayAPI/CallLogMainItem.h"
#include "DisplayAPI/Display.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItem.h"
#include "DisplayAPI/TabScreen.h"
#include "apps/deskphone/CallBacks.h"
#include "apps/deskphone/CallDetails.h"
#include "apps/deskphone/CallScreen.h"
#include "apps/deskphone/Telephone.h"
#include "utilities/CallPartyIdentifier.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace deskphone {

using DisplayAPI::CallLogMainItem;

namespace {

constexpr std::size_t SCREENFUL = 8; ///< at least, on every panel
constexpr bool HAS_MARK = false;     ///< for the menu: names want the room

CallLogMainItem::IconType iconOf(PastCall::Kind kind)
{
    switch (kind) {
    case PastCall::Kind::MISSED: return CallLogMainItem::ICON_MISSED;
    case PastCall::Kind::RECEIVED: return CallLogMainItem::ICON_RECEIVED;
    case PastCall::Kind::FORWARDED: return CallLogMainItem::ICON_FORWARDED;
    case PastCall::Kind::DIALLED: break;
    }
    return CallLogMainItem::ICON_DIALLED;
}

} // namespace

CallLog::CallLog(Telephone& telephone, DisplayAPI::TabScreen& tabs, const std::string& title,
                 std::optional<PastCall::Kind> kind, CallHistory& history, CallBacks& callBacks, CallScreen& call,
                 CallDetails& details)
    : Screen(telephone, nullptr, WITHOUT_TITLE), mTabs(tabs), mKind(kind), mHistory(history), mCallBacks(callBacks),
      mCall(call), mActions({{"Row.call", [this] { callBack(*mMenuCall); }},
                             {"Row.details", [this, &details] { details.show(*this, *mMenuCall); }},
                             {"Row.copy", [this] { this->telephone().copy(mMenuCall->number); }},
                             {"Row.delete", [this] { mHistory.forget(*mMenuCall); }}})
{
    tabs.addTab(text(title).info(), &list(), false);
    setDialer(call);
    setRowMenu(mActions);
    history.addListener([this](PastCall& past) { added(past); }, [this](PastCall& past) { forgotten(past); });
}

void CallLog::fill()
{
    freshen();
    fillUpTo(mHistory.calls().size());
}

void CallLog::goToTop()
{
    list().setSelectedIndex(0);
}

void CallLog::see()
{
    for (Row& row : mRows)
        if (std::exchange(row.isBold, false))
            row.item->setbold(false);
}

/// What does not fit comes when the rest is seen.
void CallLog::bringUp()
{
    freshen();
    fillUpTo(SCREENFUL);
    mTabs.setCurrentTabIndex(mTabs.getIndexForTab(&list()));
    telephone().show(mTabs);
}

bool CallLog::isShown()
{
    return telephone().display().getCurrent() == &mTabs && mTabs.currentTab() == &list();
}

void CallLog::chosen(int row)
{
    callBack(callAt(row));
}

void CallLog::menuOpens(int row)
{
    mMenuCall = &callAt(row);
    std::vector<RowMenu::Action> actions = mActions;
    if (mCallBacks.canRequest(*mMenuCall))
        actions.push_back({"Row.request.callback", [this] { requestCallBack(*mMenuCall); }});
    changeRowMenu(actions);
}

/// Another menu may have asked for it meanwhile.
void CallLog::requestCallBack(const PastCall& past)
{
    if (!mCallBacks.canRequest(past))
        return;
    mCallBacks.request(past);
    telephone().tell(telephone().languages().translate("Callback.requested"));
}

void CallLog::callBack(const PastCall& past)
{
    mCall.begin(*this, past.party, past.number);
}

PastCall& CallLog::callAt(int row) const
{
    return *mRows.at(static_cast<std::size_t>(row)).call;
}

void CallLog::freshen()
{
    MomentFormats formats = momentFormats();
    if (mFormats == formats)
        return;
    mFormats = std::move(formats);
    mTaken = 0;
    mRows.clear();
    list().clear();
}

void CallLog::fillUpTo(std::size_t rows)
{
    std::deque<PastCall>& calls = mHistory.calls();
    for (; mTaken < calls.size() && mRows.size() < rows; ++mTaken)
        if (shows(calls[mTaken]))
            list().append(mRows.emplace_back(rowFor(calls[mTaken])).item);
}

CallLog::Row CallLog::rowFor(PastCall& call) const
{
    const bool isNew = call.isNewMissedCall();
    CallPartyIdentifier party(call.party, call.number);
    return {&call, new CallLogMainItem(&party, shown(call.moment, *mFormats), iconOf(call.kind), isNew, HAS_MARK),
            isNew};
}

bool CallLog::shows(const PastCall& call) const
{
    return !call.isForgotten && (!mKind || call.kind == *mKind);
}

void CallLog::added(PastCall& call)
{
    if (!mFormats)
        return;
    ++mTaken;
    if (shows(call))
        list().insertAt(mRows.emplace_front(rowFor(call)).item, 0);
}

void CallLog::forgotten(const PastCall& call)
{
    const auto row = std::ranges::find(mRows, &call, &Row::call);
    if (row == mRows.end())
        return;
    const std::unique_ptr<DisplayAPI::ListItem> item(row->item);
    list().remove(item.get());
    mRows.erase(row);
}

} // namespace deskphone
