#pragma once

#include "apps/deskphone/CallHistory.h"
#include "apps/deskphone/Screen.h"

#include <deque>
#include <optional>

namespace DisplayAPI {
class TabScreen;
}

namespace deskphone {

class CallScreen;
class CallDetails;

/// Calls of one kind or of all, the latest first: those of today with their time, others with their date. It is a page
/// of a tab screen. Choosing a call calls back.
class CallLog : public Screen {
public:
    /// Appends itself to `tabs`, which goes first. `title` is the tab's; without a `kind` all calls are shown.
    CallLog(Telephone& telephone, DisplayAPI::TabScreen& tabs, const std::string& title,
            std::optional<PastCall::Kind> kind, CallHistory& history, CallScreen& call, CallDetails& details);

private:
    struct Row {
        PastCall* call;
        DisplayAPI::ListItem* item;
    };

    void bringUp() override;
    bool isShown() override;
    void build() override {}
    void chosen(int row) override;
    void menuOpens(int row) override;

    PastCall& callAt(int row) const;
    void callBack(const PastCall& past);
    DisplayAPI::ListItem* makeItem(const PastCall& call);
    bool shows(const PastCall& call) const;
    void added(PastCall& call);
    void forgotten(const PastCall& call);

    DisplayAPI::TabScreen& mTabs;
    std::optional<PastCall::Kind> mKind;
    CallHistory& mHistory;
    CallScreen& mCall;
    std::deque<Row> mRows;
    PastCall* mMenuCall = nullptr; ///< whose row the menu is for
};

} // namespace deskphone
