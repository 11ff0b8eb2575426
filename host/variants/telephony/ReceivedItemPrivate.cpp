#include "variants/telephony/ReceivedItemPrivate.h"

#include "host/variants/telephony/LogRow.h"

namespace DisplayAPI {

namespace {

LogLines linesOf(const CallPartyIdentifier* caller, const std::string& when, const std::string& duration)
{
    LogLines lines;
    lines.addParty(caller, &host::icons::RECEIVED);
    lines.addText(when);
    lines.addText(duration);
    return lines;
}

} // namespace

ReceivedItemPrivate::ReceivedItemPrivate(CallPartyIdentifier* caller, std::string when, std::string duration)
    : LogRowSide(std::make_unique<LogRow>("ReceivedItem", linesOf(caller, when, duration)))
{
}

} // namespace DisplayAPI
