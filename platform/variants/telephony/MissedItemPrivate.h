#pragma once

#include "DisplayAPI/MissedItemPrivateIfc.h"
#include "variants/telephony/LogRowSide.h"

#include <string>

class CallPartyIdentifier;

namespace DisplayAPI {

/// The details of a missed call on the 240 x 128 panel and its narrow form; no other panel has them.
class DISPLAYAPI_EXPORT MissedItemPrivate : public LogRowSide<MissedItemPrivateIfc> {
public:
    /// The party is needed while the row is made; null is an unknown one. The text is UTF-8, and each of its lines is
    /// one of the row.
    MissedItemPrivate(CallPartyIdentifier* caller, std::string when);
};

} // namespace DisplayAPI
