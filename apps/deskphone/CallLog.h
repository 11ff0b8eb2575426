#pragma once

#include "apps/deskphone/CallHistory.h"
#include "apps/deskphone/Moment.h"
#include "apps/deskphone/Screen.h"

#include <deque>
#include <optional>

namespace DisplayAPI {
class CallLogMainItem;
class TabScreen;
} // namespace DisplayAPI

namespace deskphone {

class CallBacks;
class CallScreen;
class CallDetails;

/// Calls of one kind or of all, the latest first: those of today with their time, others with their date, new ones in
/// bold letters. It is a page of a tab screen. Choosing a call calls back.
class CallLog : public Screen {
public:
    /// Appends itself to `tabs`, which goes first. `title` is the tab's; without a `kind` all calls are shown.
    CallLog(Telephone& telephone, DisplayAPI::TabScreen& tabs, const std::string& title,
            std::optional<PastCall::Kind> kind, CallHistory& history, CallBacks& callBacks, CallScreen& call,
            CallDetails& details);

    /// Makes the rows where there are none yet, or others where moments are shown in another way by now. On the threads
    /// that answer the user.
    void fill();

    /// Selects the latest call. As above.
    void goToTop();

    /// No call is new any more. As above.
    void see();

private:
    struct Row {
        PastCall* call;
        DisplayAPI::CallLogMainItem* item;
        bool isBold;
    };

    void bringUp() override;
    bool isShown() override;
    void build() override {}
    void chosen(int row) override;
    void menuOpens(int row) override;

    PastCall& callAt(int row) const;
    void callBack(const PastCall& past);
    void requestCallBack(const PastCall& past);
    void freshen();
    void fillUpTo(std::size_t rows);
    Row rowFor(PastCall& call) const;
    bool shows(const PastCall& call) const;
    void added(PastCall& call);
    void forgotten(const PastCall& call);

    DisplayAPI::TabScreen& mTabs;
    std::optional<PastCall::Kind> mKind;
    CallHistory& mHistory;
    CallBacks& mCallBacks;
    CallScreen& mCall;
    const std::vector<RowMenu::Action> mActions; ///< with every call
    std::deque<Row> mRows;
    std::optional<MomentFormats> mFormats; ///< of the rows; nothing while there are none
    std::size_t mTaken = 0;                ///< of the history, its first ones
    PastCall* mMenuCall = nullptr;         ///< whose row the menu is for
};

} // namespace deskphone
