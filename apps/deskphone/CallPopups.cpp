#include "apps/deskphone/CallPopups.h"

#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/Display.h"
#include "apps/deskphone/Telephone.h"
#include "kit/OnGuiThread.h"
#include "utilities/CallPartyIdentifier.h"

#include <algorithm>

namespace deskphone {

using DisplayAPI::Command;
using DisplayAPI::PopupCall;

namespace {

CallPartyIdentifier identifierOf(const exchange::Party& party)
{
    return {party.name, party.number};
}

/// In the language of now.
std::string lineOf(Telephone& telephone, const PhoneCall& call)
{
    const auto number = [&call] { return std::to_string(call.last.line); };
    return DisplayAPI::kit::Text(&telephone.languages(), "Details.line", {number}).get();
}

bool rings(const PhoneCall* call)
{
    return call != nullptr && call->state() == exchange::CallState::INCOMING;
}

} // namespace

CallPopups::Ringing::Ringing(Telephone& telephone, const PhoneCall& ringing, bool isOneOfSeveral)
    : call(ringing.id()), answer(new TranslationInfo("Call.answer", &telephone.languages()), 0),
      reject(new TranslationInfo("Call.reject", &telephone.languages()), 0),
      deflect(new TranslationInfo("Call.transfer", &telephone.languages()), 0)
{
    CallPartyIdentifier caller = identifierOf(ringing.last.other), meant = identifierOf(ringing.last.forwardedBy);
    const bool isForwarded = !ringing.last.forwardedBy.number.empty();
    popup.setPopupCallDetails(caller, isForwarded ? &meant : nullptr,
                              isForwarded ? DisplayAPI::FORWARDED_BY_SERVER : DisplayAPI::NOT_FORWARDED,
                              isOneOfSeveral ? lineOf(telephone, ringing) : std::string(), nullptr);
    popup.setState(PopupCall::INCOMING, PopupCall::NORMAL);
    popup.setCommands({&answer, &reject, &deflect});
}

CallPopups::CallPopups(Telephone& telephone, Calls& calls, TransferQuestions& transfers)
    : mTelephone(telephone), mCalls(calls), mTransfers(transfers),
      mChoice([this](Command* command) { chosen(command); })
{
    calls.addListener([this] { refresh(); });
}

void CallPopups::refresh()
{
    std::erase_if(mRinging, [this](const Ringing& ringing) { return !rings(mCalls.find(ringing.call)); });
    for (const PhoneCall* const call : mCalls.all())
        if (rings(call) && std::ranges::find(mRinging, call->id(), &Ringing::call) == mRinging.end())
            ring(*call);
    bringBack();
}

/// A screen that came just now has taken the popups off.
void CallPopups::bringBack()
{
    DisplayAPI::Displayable* const current = mTelephone.display().getCurrent();
    const bool isScreen = dynamic_cast<DisplayAPI::Dialog*>(current) == nullptr &&
                          dynamic_cast<DisplayAPI::ContextMenu*>(current) == nullptr;
    if (isScreen && !mRinging.empty())
        mTelephone.display().setCurrent(&mRinging.back().popup);
}

/// At once, so that nobody waits for one part after the other.
void CallPopups::ring(const PhoneCall& call)
{
    const bool hasSeveralLines = mCalls.telephony().lines().size() > 1;
    DisplayAPI::kit::onGuiThread([&] {
        PopupCall& popup = mRinging.emplace_back(mTelephone, call, hasSeveralLines).popup;
        popup.addCommandListener(&mChoice);
        mTelephone.display().setCurrent(&popup);
    });
}

void CallPopups::chosen(const Command* command)
{
    for (const Ringing& ringing : mRinging) {
        if (command == &ringing.answer)
            mCalls.telephony().answer(ringing.call);
        if (command == &ringing.reject)
            mCalls.telephony().end(ringing.call);
        if (command == &ringing.deflect)
            mTransfers.ask(ringing.call);
    }
}

} // namespace deskphone
