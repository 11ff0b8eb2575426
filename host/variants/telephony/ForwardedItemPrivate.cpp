#include "variants/telephony/ForwardedItemPrivate.h"

#include "DisplayAPI/DetailsIcon.h"
#include "host/variants/telephony/LogRow.h"

namespace DisplayAPI {

namespace {

LogLines linesOf(const CallPartyIdentifier* caller, const CallPartyIdentifier* target, const std::string& when)
{
    LogLines lines;
    lines.addParty(caller, &host::icons::FORWARDED);
    if (target != nullptr)
        lines.addParty(target, &host::icons::FORWARD);
    lines.addText(when);
    return lines;
}

} // namespace

ForwardedItemPrivate::ForwardedItemPrivate(CallPartyIdentifier* caller, CallPartyIdentifier* target, std::string& when)
    : LogRowSide(std::make_unique<LogRow>("ForwardedItem", linesOf(caller, target, when)))
{
}

int ForwardedItemPrivate::iconType() const
{
    return DETAILS_FORWARDED;
}

} // namespace DisplayAPI
