#include "apps/deskphone/Handset.h"

#include "apps/deskphone/CallActions.h"
#include "apps/deskphone/Calls.h"
#include "host/input/Keyboard.h"

namespace deskphone {

using host::Keyboard;

namespace {

const PhoneCall* ringing(const Calls& calls)
{
    for (const PhoneCall* const call : calls.all())
        if (call->state() == exchange::CallState::INCOMING)
            return call;
    return nullptr;
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
    if (const PhoneCall* const call = ringing(mCalls); call != nullptr) {
        telephony.answer(call->id());
    } else if (const PhoneCall* const current = mCalls.current(); current != nullptr) {
        if (isHeldByMe(*current)) {
            telephony.resume(current->id());
        } else {
            telephony.end(current->id());
            telephony.end(current->last.with);
        }
    }
}

} // namespace deskphone
