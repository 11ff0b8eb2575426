#include "DisplayAPI/CallLogMainItem.h"

#include "DisplayAPI/CallLogMainItemPrivateIfc.h"
#include "OfRow.h"
#include "Operations.h"
#include "PartyCopy.h"
#include "Variant.h"
#include "variants/telephony/CallLogMainItemPrivate.h"

namespace DisplayAPI {

namespace {

enum Request { DESTROY = 2, CREATE = 10, SET_BOLD = 12 };

} // namespace

struct CallLogMainItem::Ops
    : Operations<Posts<CREATE, &CallLogMainItem::create>, Waits<DESTROY, &CallLogMainItem::destroy>,
                 Posts<SET_BOLD, ofRow<&CallLogMainItemPrivateIfc::setbold>>> {};

CallLogMainItem::CallLogMainItem(CallPartyIdentifier* party, std::string text, int icon, bool isNew, bool hasMenu)
    : ListItem(nullptr)
{
    Ops::call<CREATE>(*this, implementation(), copyOf(party), std::move(text), icon, isNew, hasMenu);
}

CallLogMainItem::~CallLogMainItem()
{
    Ops::call<DESTROY>(*this, implementation());
}

void CallLogMainItem::create(std::unique_ptr<CallPartyIdentifier> party, std::string text, int icon, bool isNew,
                             bool hasMenu)
{
    destroy();
    name = "CallLogMainItem";
    if (isFullPanel())
        setImplementation(new CallLogMainItemPrivate(party.get(), std::move(text), icon, isNew, hasMenu));
    else
        setImplementation(new CallLogMainItemPrivateWP1(party.get(), std::move(text), icon, isNew, hasMenu));
}

void CallLogMainItem::processGuiRequest(GuiRequestEvent& request)
{
    if (!Ops::carryOut(*this, implementation(), request))
        return ListItem::processGuiRequest(request);
    signalComplete(request);
}

ListItemPrivateIfc* CallLogMainItem::getPrivateImpl()
{
    return implementation();
}

void CallLogMainItem::setbold(bool on)
{
    Ops::call<SET_BOLD>(*this, implementation(), on);
}

} // namespace DisplayAPI
