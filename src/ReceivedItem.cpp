#include "DisplayAPI/ReceivedItem.h"

#include "DisplayAPI/ReceivedItemPrivateIfc.h"
#include "Operations.h"
#include "Variant.h"
#include "variants/telephony/ReceivedItemPrivate.h"

namespace DisplayAPI {

namespace {

enum Request { CREATE = 0, DESTROY = 1 };

} // namespace

struct ReceivedItem::Ops : Operations<Waits<CREATE, &ReceivedItem::create>, Waits<DESTROY, &ReceivedItem::destroy>> {};

ReceivedItem::ReceivedItem(CallPartyIdentifier* caller, std::string when, std::string duration)
{
    Ops::call<CREATE>(*this, mImplementation, caller, std::move(when), std::move(duration));
}

ReceivedItem::~ReceivedItem()
{
    Ops::call<DESTROY>(*this, mImplementation);
}

void ReceivedItem::create(CallPartyIdentifier* caller, std::string when, std::string duration)
{
    destroy();
    name = "ReceivedItem";
    if (!isFullPanel())
        return;
    mImplementation = new ReceivedItemPrivate(caller, std::move(when), std::move(duration));
}

void ReceivedItem::destroy()
{
    delete mImplementation;
    mImplementation = nullptr;
}

void ReceivedItem::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

void ReceivedItem::localeChanged(std::string) {}

} // namespace DisplayAPI
