#include "DisplayAPI/CallBackMainItem.h"

#include "Operations.h"
#include "Variant.h"
#include "utilities/CallPartyIdentifier.h"
#include "variants/telephony/CallBackMainItemPrivate.h"

namespace DisplayAPI {

namespace {

using Type = CallBackMainItem::CallBackType;
using State = CallBackMainItem::CallBackState;

enum Request { DESTROY = 2, CREATE = 10 };

Type known(Type type)
{
    return type == CallBackMainItem::BUSY || type == CallBackMainItem::NO_ANSWER ? type
                                                                                 : CallBackMainItem::OTHER_REASON;
}

State known(State state)
{
    return state == CallBackMainItem::REQUESTED || state == CallBackMainItem::READY ? state : CallBackMainItem::WAITING;
}

} // namespace

struct CallBackMainItem::Ops
    : Operations<Waits<CREATE, &CallBackMainItem::create>, Waits<DESTROY, &CallBackMainItem::destroy>> {};

CallBackMainItem::CallBackMainItem(CallPartyIdentifier* party, std::string text, CallBackType type, CallBackState state)
    : ListItem(nullptr), mType(type), mState(state), mNumber(party != nullptr ? party->number() : std::string()),
      mCallBackText(text)
{
    Ops::call<CREATE>(*this, implementation(), party, std::move(text), type, state);
}

CallBackMainItem::~CallBackMainItem()
{
    Ops::call<DESTROY>(*this, implementation());
}

void CallBackMainItem::create(CallPartyIdentifier* party, std::string text, CallBackType type, CallBackState state)
{
    destroy();
    name = "CallBackMainItem";
    if (isFullPanel())
        setImplementation(new CallBackMainItemPrivate(party, std::move(text), known(type), known(state)));
    else
        setImplementation(new CallBackMainItemPrivateWP1(party, std::move(text), known(type), known(state)));
}

void CallBackMainItem::processGuiRequest(GuiRequestEvent& request)
{
    if (!Ops::carryOut(*this, implementation(), request))
        return ListItem::processGuiRequest(request);
    signalComplete(request);
}

ListItemPrivateIfc* CallBackMainItem::getPrivateImpl()
{
    return implementation();
}

} // namespace DisplayAPI
