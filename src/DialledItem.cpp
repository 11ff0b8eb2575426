#include "DisplayAPI/DialledItem.h"

#include "DetailsIconType.h"
#include "DisplayAPI/DialledItemPrivateIfc.h"
#include "GuiThread.h"
#include "Operations.h"
#include "Variant.h"
#include "variants/telephony/DialledItemPrivate.h"

#include <utility>

namespace DisplayAPI {

namespace {

enum Request { CREATE = 0, CLEAN_UP = 1 };

} // namespace

struct DialledItem::Ops : Operations<Waits<CREATE, &DialledItem::create>, Waits<CLEAN_UP, &DialledItem::cleanup>> {};

DialledItem::DialledItem(CallPartyIdentifier* dialled, CallPartyIdentifier* reached, std::string when,
                         std::string duration, bool wasAnswered)
{
    Ops::call<CREATE>(*this, mImplementation, dialled, reached, std::move(when), std::move(duration), wasAnswered);
}

DialledItem::~DialledItem()
{
    Ops::call<CLEAN_UP>(*this, mImplementation);
}

void DialledItem::create(CallPartyIdentifier* dialled, CallPartyIdentifier* reached, std::string when,
                         std::string duration, bool wasAnswered)
{
    cleanup();
    name = "DialledItem";
    if (KestrelApplication::getCurrentApplication() == nullptr || !isFullPanel())
        return;
    mImplementation = new DialledItemPrivate(dialled, reached, std::move(when), std::move(duration), wasAnswered);
}

void DialledItem::cleanup()
{
    onlyOnGuiThread("DialledItem::cleanup()");
    delete std::exchange(mImplementation, nullptr);
}

void DialledItem::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

CallLogMainItem::IconType DialledItem::iconType() const
{
    return iconTypeOf(mImplementation);
}

void DialledItem::localeChanged(std::string) {}

void DialledItem::setDateTimeDuration(std::string, std::string, std::string) {}

} // namespace DisplayAPI
