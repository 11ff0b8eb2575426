#pragma once

#include "apps/deskphone/CallBacks.h"
#include "apps/deskphone/Screen.h"

namespace DisplayAPI {
class TabScreen;
}

namespace deskphone {

class CallScreen;

/// The call-backs that the user waits for, each with why and how far it is. It is a page of a tab screen. Choosing one
/// calls.
class CallBackPage : public Screen {
public:
    /// Appends itself to `tabs`, which goes first.
    CallBackPage(Telephone& telephone, DisplayAPI::TabScreen& tabs, CallBacks& callBacks, CallScreen& call);

private:
    void bringUp() override;
    bool isShown() override;
    void build() override {}
    void chosen(int row) override;
    void menuOpens(int row) override;

    void fill();
    void callBack(const exchange::Party& party);
    const CallBack* at(int row) const;
    void cancel();

    DisplayAPI::TabScreen& mTabs;
    CallBacks& mCallBacks;
    CallScreen& mCall;
    exchange::Party mMenuParty; ///< whose row the menu is for
};

} // namespace deskphone
