#include "variants/telephony/MissedItemPrivate.h"

#include "host/variants/telephony/LogRow.h"

namespace DisplayAPI {

namespace {

LogLines linesOf(const CallPartyIdentifier* caller, const std::string& when)
{
    LogLines lines;
    lines.addParty(caller, &host::icons::MISSED_CALL);
    lines.addText(when);
    return lines;
}

} // namespace

MissedItemPrivate::MissedItemPrivate(CallPartyIdentifier* caller, std::string when)
    : LogRowSide(std::make_unique<LogRow>("MissedItem", linesOf(caller, when)))
{
}

} // namespace DisplayAPI
