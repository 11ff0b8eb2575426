#pragma once

#include "apps/deskphone/CallHistory.h"
#include "apps/deskphone/Screen.h"

#include <atomic>

namespace deskphone {

class CallScreen;

/// All that is known of a call of the log, filled anew for each. Choosing a row calls back.
class CallDetails : public Screen {
public:
    CallDetails(Telephone& telephone, CallScreen& call);

    /// Goes back to `from` afterwards. The call lives as long as this.
    void show(Place& from, const PastCall& past);

private:
    void build() override {}
    void chosen(int row) override;

    std::string shownMoment();
    void showInLines(const PastCall& past);
    Text& kindOf(const PastCall& past);
    Text& otherOf(const PastCall& past);

    CallScreen& mCall;
    std::atomic<const PastCall*> mShown{nullptr};
    Text& mMissed;
    Text& mReceived;
    Text& mDialled;
    Text& mForwardedCall;
    Text& mForwarded;
    Text& mForwardedBy;
    Text& mLine;
    Text& mDuration;
    Text& mMoment;
};

} // namespace deskphone
