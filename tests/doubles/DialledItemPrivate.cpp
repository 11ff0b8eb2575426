#include "variants/telephony/DialledItemPrivate.h"

#include "doubles/Answers.h"
#include "doubles/LogRow.h"

namespace DisplayAPI {

DialledItemPrivate::DialledItemPrivate(CallPartyIdentifier* dialled, CallPartyIdentifier* reached, std::string when,
                                       std::string duration, bool wasAnswered)
    : LogRowSide(std::make_unique<LogRow>("DialledItemPrivate", Panel::FULL, dialled))
{
    row().made(saidOf(dialled), saidOf(reached), when, duration, wasAnswered);
}

int DialledItemPrivate::iconType() const
{
    return doubles::Answers::instance().icon;
}

} // namespace DisplayAPI
