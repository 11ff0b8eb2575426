#pragma once

#include "apps/deskphone/Calls.h"
#include "apps/deskphone/RowMenu.h"
#include "apps/deskphone/TransferQuestions.h"

#include <string>
#include <vector>

namespace deskphone {

/// Whether the user has the other one wait.
bool isHeldByMe(const PhoneCall& call);

/// What the user can do with a call, by its state. On the threads that answer the user.
class CallActions {
public:
    CallActions(Calls& calls, TransferQuestions& transfers) : mCalls(calls), mTransfers(transfers) {}

    /// What OK does: resume, hold, or hang up one that nobody has answered yet. Nothing while one of these, or a
    /// transfer, is under way.
    void doObvious(const PhoneCall& call);

    /// Everything. What has become impossible when it is chosen does nothing.
    std::vector<RowMenu::Action> all(const PhoneCall& call);

private:
    using Actions = std::vector<RowMenu::Action>;
    using Operation = bool (exchange::Telephony::*)(exchange::CallId);

    void add(Actions& actions, const std::string& text, Operation operation, const PhoneCall& call);
    void addTransfer(Actions& actions, const PhoneCall& call);
    void addTalk(Actions& actions, const PhoneCall& call);
    void addOthers(Actions& actions, const PhoneCall& call);

    Calls& mCalls;
    TransferQuestions& mTransfers;
};

} // namespace deskphone
