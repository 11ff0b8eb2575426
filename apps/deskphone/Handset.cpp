#include "apps/deskphone/Handset.h"

#include "DisplayAPI/Dialog.h"
#include "DisplayAPI/Display.h"
#include "apps/deskphone/CallActions.h"
#include "apps/deskphone/Calls.h"
#include "apps/deskphone/ShortDials.h"
#include "apps/deskphone/Telephone.h"
#include "host/input/Keyboard.h"

namespace deskphone {

using host::Keyboard;

namespace {

/// The latest, whose popup is on top.
const PhoneCall* ringing(const Calls& calls)
{
    const PhoneCall* latest = nullptr;
    for (const PhoneCall* const call : calls.all())
        if (call->state() == exchange::CallState::INCOMING)
            latest = call;
    return latest;
}

} // namespace

Handset::Handset(Telephone& telephone, Calls& calls, CallScreen& call)
    : mTelephone(telephone), mCalls(calls),
      mDialer(telephone, [&telephone, &call](const std::string& typed) { dial(call, *telephone.place(), typed); }),
      mMoved([this](DisplayAPI::Command*) { moved(); })
{
    telephone.addScreenListener(
        [this](const DisplayAPI::Displayable* current) { mCalls.setLifted(current == &mDialer.popup()); });
    Keyboard::instance().setHookListener([this] { mMoved.postCommandAction(nullptr, nullptr); });
}

Handset::~Handset()
{
    Keyboard::instance().setHookListener({});
}

void Handset::stopListening()
{
    Keyboard::instance().setHookListener({});
    mMoved.stop();
    mDialer.stopListening();
}

void Handset::moved()
{
    exchange::Telephony& telephony = mCalls.telephony();
    const PhoneCall* const current = mCalls.current();
    if (current != nullptr && !isHeldByMe(*current))
        putDown(*current);
    else if (const PhoneCall* const call = ringing(mCalls); call != nullptr)
        answer(*call);
    else if (current != nullptr)
        telephony.resume(current->id());
    else
        offerDialer();
}

void Handset::answer(const PhoneCall& call)
{
    mDialer.close();
    mCalls.telephony().answer(call.id());
}

/// What the user is asked already is not covered.
void Handset::offerDialer()
{
    if (mDialer.isUp())
        mDialer.close();
    else if (dynamic_cast<DisplayAPI::Dialog*>(mTelephone.display().getCurrent()) == nullptr)
        mDialer.open();
}

/// Those who are brought together speak on with each other.
void Handset::putDown(const PhoneCall& current)
{
    if (current.state() == exchange::CallState::TRANSFERRING)
        return;
    mCalls.telephony().end(current.id());
    mCalls.telephony().end(current.last.with);
}

} // namespace deskphone
