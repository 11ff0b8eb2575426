#pragma once

#include "DisplayAPI/ForwardedItemPrivateIfc.h"
#include "variants/telephony/LogRowSide.h"

#include <string>

class CallPartyIdentifier;

namespace DisplayAPI {

/// The details of a forwarded call on the 240 x 128 panel and its narrow form; no other panel has them.
class DISPLAYAPI_EXPORT ForwardedItemPrivate : public LogRowSide<ForwardedItemPrivateIfc> {
public:
    /// The parties are needed while the row is made; null for `target` is no line, for `caller` an unknown one. The
    /// text is UTF-8, and each of its lines is one of the row.
    ForwardedItemPrivate(CallPartyIdentifier* caller, CallPartyIdentifier* target, std::string& when);

    int iconType() const override;
};

} // namespace DisplayAPI
