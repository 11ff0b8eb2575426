#include "DisplayAPI/MissedItem.h"

#include "DisplayAPI/MissedItemPrivateIfc.h"
#include "Operations.h"
#include "Variant.h"
#include "variants/telephony/MissedItemPrivate.h"

namespace DisplayAPI {

namespace {

enum Request { CREATE = 0, DESTROY = 2 };

} // namespace

struct MissedItem::Ops : Operations<Waits<CREATE, &MissedItem::create>, Waits<DESTROY, &MissedItem::destroy>> {};

MissedItem::MissedItem(CallPartyIdentifier* caller, std::string when)
{
    Ops::call<CREATE>(*this, mImplementation, caller, std::move(when));
}

MissedItem::~MissedItem()
{
    Ops::call<DESTROY>(*this, mImplementation);
}

void MissedItem::create(CallPartyIdentifier* caller, std::string when)
{
    destroy();
    name = "MissedItem";
    if (!isFullPanel())
        return;
    mImplementation = new MissedItemPrivate(caller, std::move(when));
}

void MissedItem::destroy()
{
    delete mImplementation;
    mImplementation = nullptr;
}

void MissedItem::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

void MissedItem::localeChanged(std::string) {}

} // namespace DisplayAPI
