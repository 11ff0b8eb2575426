#pragma once

#include "apps/deskphone/Calls.h"
#include "apps/deskphone/RowMenu.h"
#include "apps/deskphone/TransferQuestions.h"

#include <string>
#include <vector>

namespace deskphone {

class Telephone;

/// Whether the user has the other one wait.
bool isHeldByMe(const PhoneCall& call);

/// What the user can do with a call, by its state. On the threads that answer the user.
class CallActions {
public:
    CallActions(Telephone& telephone, Calls& calls, TransferQuestions& transfers)
        : mTelephone(telephone), mCalls(calls), mTransfers(transfers)
    {
    }

    /// What OK does: resume, hold, or hang up one that nobody has answered yet. Nothing while one of these, or a
    /// transfer, is under way.
    void doObvious(const PhoneCall& call);

    /// Everything. What has become impossible when it is chosen is told.
    std::vector<RowMenu::Action> all(const PhoneCall& call);

    /// With a conference of mine as a whole.
    std::vector<RowMenu::Action> ofConference(const PhoneCall& call, const PhoneCall& partner);

private:
    using Actions = std::vector<RowMenu::Action>;
    using Operation = bool (exchange::Telephony::*)(exchange::CallId);
    using BothOperation = bool (exchange::Telephony::*)(exchange::CallId, exchange::CallId);

    void add(Actions& actions, const std::string& text, Operation operation, const PhoneCall& call);
    void add(Actions& actions, const std::string& text, BothOperation operation, const PhoneCall& call,
             const PhoneCall& other);
    void addHold(Actions& actions, const PhoneCall& call);
    void addHandOver(Actions& actions, const PhoneCall& rung);
    void addTransfer(Actions& actions, const PhoneCall& call);
    void addTalk(Actions& actions, const PhoneCall& call);
    void addOthers(Actions& actions, const PhoneCall& call);

    void tellIfRefused(bool isDone);

    Telephone& mTelephone;
    Calls& mCalls;
    TransferQuestions& mTransfers;
};

} // namespace deskphone
