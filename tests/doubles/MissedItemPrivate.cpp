#include "variants/telephony/MissedItemPrivate.h"

#include "doubles/LogRow.h"

namespace DisplayAPI {

MissedItemPrivate::MissedItemPrivate(CallPartyIdentifier* caller, std::string when)
    : LogRowSide(std::make_unique<LogRow>("MissedItemPrivate", Panel::FULL, caller))
{
    row().made(saidOf(caller), when);
}

} // namespace DisplayAPI
