#include "variants/telephony/ForwardedItemPrivate.h"

#include "doubles/Answers.h"
#include "doubles/LogRow.h"

namespace DisplayAPI {

ForwardedItemPrivate::ForwardedItemPrivate(CallPartyIdentifier* caller, CallPartyIdentifier* target, std::string& when)
    : LogRowSide(std::make_unique<LogRow>("ForwardedItemPrivate", Panel::FULL, caller))
{
    row().made(saidOf(caller), saidOf(target), when);
}

int ForwardedItemPrivate::iconType() const
{
    return doubles::Answers::instance().icon;
}

} // namespace DisplayAPI
