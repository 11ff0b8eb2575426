#pragma once

#include "DisplayAPI/ReceivedItemPrivateIfc.h"
#include "variants/telephony/LogRowSide.h"

#include <string>

class CallPartyIdentifier;

namespace DisplayAPI {

/// The details of a received call on the 240 x 128 panel and its narrow form; no other panel has them.
class DISPLAYAPI_EXPORT ReceivedItemPrivate : public LogRowSide<ReceivedItemPrivateIfc> {
public:
    /// The party is needed while the row is made; null is an unknown one. Texts are UTF-8, and each of their lines is
    /// one of the row.
    ReceivedItemPrivate(CallPartyIdentifier* caller, std::string when, std::string duration);
};

} // namespace DisplayAPI
