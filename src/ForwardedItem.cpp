#include "DisplayAPI/ForwardedItem.h"

#include "DetailsIconType.h"
#include "DisplayAPI/ForwardedItemPrivateIfc.h"
#include "GuiThread.h"
#include "Operations.h"
#include "Variant.h"
#include "variants/telephony/ForwardedItemPrivate.h"

#include <utility>

namespace DisplayAPI {

namespace {

enum Request { CREATE = 0, CLEAN_UP = 1 };

} // namespace

struct ForwardedItem::Ops
    : Operations<Waits<CREATE, &ForwardedItem::create>, Waits<CLEAN_UP, &ForwardedItem::cleanup>> {};

ForwardedItem::ForwardedItem(CallPartyIdentifier* caller, CallPartyIdentifier* target, std::string& when)
{
    Ops::call<CREATE>(*this, mImplementation, caller, target, when);
}

ForwardedItem::~ForwardedItem()
{
    Ops::call<CLEAN_UP>(*this, mImplementation);
}

void ForwardedItem::create(CallPartyIdentifier* caller, CallPartyIdentifier* target, std::string& when)
{
    cleanup();
    name = "ForwardedItem";
    if (KestrelApplication::getCurrentApplication() == nullptr || !isFullPanel())
        return;
    mImplementation = new ForwardedItemPrivate(caller, target, when);
}

void ForwardedItem::cleanup()
{
    onlyOnGuiThread("ForwardedItem::cleanup()");
    delete std::exchange(mImplementation, nullptr);
}

void ForwardedItem::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

CallLogMainItem::IconType ForwardedItem::iconType() const
{
    return iconTypeOf(mImplementation);
}

void ForwardedItem::localeChanged(std::string) {}

void ForwardedItem::enableContextMenuArrow(bool) {}

} // namespace DisplayAPI
