#include "variants/telephony/DialledItemPrivate.h"

#include "DisplayAPI/DetailsIcon.h"
#include "host/variants/telephony/LogRow.h"

namespace DisplayAPI {

namespace {

LogLines linesOf(const CallPartyIdentifier* dialled, const CallPartyIdentifier* reached, const std::string& when,
                 const std::string& duration, bool wasAnswered)
{
    LogLines lines;
    lines.addParty(dialled, &host::icons::DIALLED);
    if (reached != nullptr)
        lines.addParty(reached, &host::icons::FORWARD);
    lines.addText(when);
    lines.addText(duration);
    if (!wasAnswered)
        lines.look.marks = {&host::icons::BELL_OFF};
    return lines;
}

} // namespace

DialledItemPrivate::DialledItemPrivate(CallPartyIdentifier* dialled, CallPartyIdentifier* reached, std::string when,
                                       std::string duration, bool wasAnswered)
    : LogRowSide(std::make_unique<LogRow>("DialledItem", linesOf(dialled, reached, when, duration, wasAnswered)))
{
}

int DialledItemPrivate::iconType() const
{
    return DETAILS_DIALLED;
}

} // namespace DisplayAPI
