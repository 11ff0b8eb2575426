#include "apps/deskphone/CallBackPage.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/TabScreen.h"
#include "apps/deskphone/CallScreen.h"
#include "apps/deskphone/Moment.h"
#include "apps/deskphone/Telephone.h"
#include "utilities/CallPartyIdentifier.h"

#include <algorithm>
#include <iterator>

namespace deskphone {

using DisplayAPI::CallBackMainItem;

CallBackPage::CallBackPage(Telephone& telephone, DisplayAPI::TabScreen& tabs, CallBacks& callBacks, CallScreen& call)
    : Screen(telephone, nullptr, WITHOUT_TITLE), mTabs(tabs), mCallBacks(callBacks), mCall(call)
{
    tabs.addTab(text("Callback.title").info(), &list(), false);
    setDialer(call);
    setRowMenu({{"Row.call", [this] { callBack(mMenuParty); }}, {"Callback.cancel", [this] { cancel(); }}});
    callBacks.addListener([this] { fill(); });
}

void CallBackPage::bringUp()
{
    mTabs.setCurrentTabIndex(mTabs.getIndexForTab(&list()));
    telephone().show(mTabs);
}

bool CallBackPage::isShown()
{
    return telephone().display().getCurrent() == &mTabs && mTabs.currentTab() == &list();
}

/// What a row shows is fixed, and there are few.
void CallBackPage::fill()
{
    const MomentFormats formats = momentFormats();
    const int selected = list().getSelectedIndex();
    list().clear();
    for (const CallBack& one : mCallBacks.all()) {
        CallPartyIdentifier party(one.party.name, one.party.number);
        list().append(new CallBackMainItem(&party, shown(one.moment, formats), one.type, one.state));
    }
    list().setSelectedIndex(selected);
}

void CallBackPage::chosen(int row)
{
    if (const CallBack* const one = at(row); one != nullptr)
        callBack(one->party);
}

void CallBackPage::menuOpens(int row)
{
    const CallBack* const one = at(row);
    mMenuParty = one != nullptr ? one->party : exchange::Party();
}

void CallBackPage::callBack(const exchange::Party& party)
{
    mCall.begin(*this, party.name.empty() ? party.number : party.name, party.number);
}

const CallBack* CallBackPage::at(int row) const
{
    const auto& all = mCallBacks.all();
    return row < static_cast<int>(all.size()) ? &*std::next(all.begin(), row) : nullptr;
}

/// It may have happened while the menu was open.
void CallBackPage::cancel()
{
    const auto found = std::ranges::find(mCallBacks.all(), mMenuParty, &CallBack::party);
    if (found != mCallBacks.all().end())
        mCallBacks.cancel(*found);
}

} // namespace deskphone
