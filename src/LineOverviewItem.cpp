#include "DisplayAPI/LineOverviewItem.h"

#include "LineOverviewItemPrivate.h"
#include "OfRow.h"
#include "Operations.h"

namespace DisplayAPI {

namespace {

enum Request {
    DESTROY = 2,
    CREATE = 10,
    SET_LINE_STATE = 11,
    SET_DISPLAY_HD_ICON_STATUS = 12,
    SET_LINE_NAME_PREFIX = 13,
    SET_LINE_IDENTITY_TRANSLATED = 14,
    SET_LINE_IDENTITY = 15,
    SET_LINE_NAME = 16,
    HOLD_ITEM = 17
};

using Ifc = LineOverviewItemPrivateIfc;

} // namespace

struct LineOverviewItem::Ops
    : Operations<Waits<CREATE, &LineOverviewItem::create>, Waits<DESTROY, &LineOverviewItem::destroy>,
                 Posts<SET_LINE_STATE, ofRow<&Ifc::setLineState>>,
                 Posts<SET_DISPLAY_HD_ICON_STATUS, ofRow<&Ifc::setDisplayHDIconStatus>>,
                 Posts<SET_LINE_NAME_PREFIX, ofRow<&Ifc::setLineNamePrefix>>,
                 Posts<SET_LINE_IDENTITY_TRANSLATED, ofRow<taking<TranslationInfo*>(&Ifc::setLineIdentity)>>,
                 Posts<SET_LINE_IDENTITY, ofRow<taking<std::string>(&Ifc::setLineIdentity)>>,
                 Posts<SET_LINE_NAME, ofRow<&Ifc::setLineName>>, Posts<HOLD_ITEM, ofRow<&Ifc::holdItem>>> {};

LineOverviewItem::LineOverviewItem(LineState state, std::string lineName, std::string lineIdentity,
                                   TranslationInfo* namePrefix)
    : ListItem(nullptr)
{
    Ops::call<CREATE>(*this, implementation(), state, std::move(lineName), std::move(lineIdentity), namePrefix);
}

LineOverviewItem::~LineOverviewItem()
{
    Ops::call<DESTROY>(*this, implementation());
}

void LineOverviewItem::create(LineState state, std::string lineName, std::string lineIdentity,
                              TranslationInfo* namePrefix)
{
    name = "LineOverviewItem";
    destroy();
    setImplementation(new LineOverviewItemPrivate(state, std::move(lineName), std::move(lineIdentity), namePrefix));
}

void LineOverviewItem::processGuiRequest(GuiRequestEvent& request)
{
    if (!Ops::carryOut(*this, implementation(), request))
        return ListItem::processGuiRequest(request);
    signalComplete(request);
}

ListItemPrivateIfc* LineOverviewItem::getPrivateImpl()
{
    return implementation();
}

void LineOverviewItem::setLineState(LineState state)
{
    Ops::call<SET_LINE_STATE>(*this, implementation(), state);
}

void LineOverviewItem::setDisplayHDIconStatus(bool on)
{
    Ops::call<SET_DISPLAY_HD_ICON_STATUS>(*this, implementation(), on);
}

void LineOverviewItem::setLineNamePrefix(TranslationInfo* prefix)
{
    Ops::call<SET_LINE_NAME_PREFIX>(*this, implementation(), prefix);
}

void LineOverviewItem::setLineIdentity(TranslationInfo* identity)
{
    Ops::call<SET_LINE_IDENTITY_TRANSLATED>(*this, implementation(), identity);
}

void LineOverviewItem::setLineIdentity(const std::string& identity)
{
    Ops::call<SET_LINE_IDENTITY>(*this, implementation(), identity);
}

void LineOverviewItem::setLineName(const std::string& lineName)
{
    Ops::call<SET_LINE_NAME>(*this, implementation(), lineName);
}

void LineOverviewItem::holdItem(int milliseconds)
{
    Ops::call<HOLD_ITEM>(*this, implementation(), milliseconds);
}

} // namespace DisplayAPI
