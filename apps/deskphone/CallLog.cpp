#include "apps/deskphone/CallLog.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItem.h"
#include "DisplayAPI/TabScreen.h"
#include "apps/deskphone/CallDetails.h"
#include "apps/deskphone/CallScreen.h"
#include "apps/deskphone/Moment.h"
#include "apps/deskphone/Telephone.h"

#include <algorithm>
#include <memory>

namespace deskphone {

CallLog::CallLog(Telephone& telephone, DisplayAPI::TabScreen& tabs, const std::string& title,
                 std::optional<PastCall::Kind> kind, CallHistory& history, CallScreen& call, CallDetails& details)
    : Screen(telephone, nullptr, WITHOUT_TITLE), mTabs(tabs), mKind(kind), mHistory(history), mCall(call)
{
    tabs.addTab(text(title).info(), &list(), false);
    setDialer(call);
    setRowMenu({{"Row.call", [this] { callBack(*mMenuCall); }},
                {"Row.details", [this, &details] { details.show(*this, *mMenuCall); }},
                {"Row.copy", [this] { this->telephone().copy(mMenuCall->number); }},
                {"Row.delete", [this] { mHistory.forget(*mMenuCall); }}});
    for (PastCall& past : history.calls())
        if (shows(past))
            list().append(mRows.emplace_back(Row{&past, makeItem(past)}).item);
    history.addListener([this](PastCall& past) { added(past); }, [this](PastCall& past) { forgotten(past); });
}

void CallLog::bringUp()
{
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
}

void CallLog::callBack(const PastCall& past)
{
    mCall.begin(*this, past.party, past.number);
}

PastCall& CallLog::callAt(int row) const
{
    return *mRows.at(static_cast<std::size_t>(row)).call;
}

DisplayAPI::ListItem* CallLog::makeItem(const PastCall& call)
{
    Text& entry = text("Call.log.entry", {[&call] { return shown(call.moment); }, [&call] { return call.party; }});
    return new DisplayAPI::ListItem(entry.info(), false);
}

bool CallLog::shows(const PastCall& call) const
{
    return !mKind || call.kind == *mKind;
}

void CallLog::added(PastCall& call)
{
    if (shows(call))
        list().insertAt(mRows.emplace_front(Row{&call, makeItem(call)}).item, 0);
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
