#include "apps/deskphone/Handset.h"

#include "apps/deskphone/CallActions.h"
#include "apps/deskphone/Calls.h"
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

Handset::Handset(Calls& calls) : mCalls(calls), mMoved([this](DisplayAPI::Command*) { moved(); })
{
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
}

void Handset::moved()
{
    exchange::Telephony& telephony = mCalls.telephony();
    const PhoneCall* const current = mCalls.current();
    if (current != nullptr && !isHeldByMe(*current))
        putDown(*current);
    else if (const PhoneCall* const call = ringing(mCalls); call != nullptr)
        telephony.answer(call->id());
    else if (current != nullptr)
        telephony.resume(current->id());
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
