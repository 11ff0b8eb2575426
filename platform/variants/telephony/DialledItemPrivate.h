#pragma once

#include "DisplayAPI/DialledItemPrivateIfc.h"
#include "variants/telephony/LogRowSide.h"

#include <string>

class CallPartyIdentifier;

namespace DisplayAPI {

/// The details of a dialled call on the 240 x 128 panel and its narrow form; no other panel has them.
class DISPLAYAPI_EXPORT DialledItemPrivate : public LogRowSide<DialledItemPrivateIfc> {
public:
    /// The parties are needed while the row is made; null for `reached` is no line, for `dialled` an unknown one. Texts
    /// are UTF-8, and each of their lines is one of the row.
    DialledItemPrivate(CallPartyIdentifier* dialled, CallPartyIdentifier* reached, std::string when,
                       std::string duration, bool wasAnswered);

    int iconType() const override;
};

} // namespace DisplayAPI
