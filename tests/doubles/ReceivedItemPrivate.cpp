#include "variants/telephony/ReceivedItemPrivate.h"

#include "doubles/LogRow.h"

namespace DisplayAPI {

ReceivedItemPrivate::ReceivedItemPrivate(CallPartyIdentifier* caller, std::string when, std::string duration)
    : LogRowSide(std::make_unique<LogRow>("ReceivedItemPrivate", Panel::FULL, caller))
{
    row().made(saidOf(caller), when, duration);
}

} // namespace DisplayAPI
