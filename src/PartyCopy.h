#pragma once

#include "utilities/CallPartyIdentifier.h"

#include <memory>

namespace DisplayAPI {

/// For a request whose caller does not wait; null stays null.
inline std::unique_ptr<CallPartyIdentifier> copyOf(const CallPartyIdentifier* party)
{
    return party != nullptr ? std::make_unique<CallPartyIdentifier>(*party) : nullptr;
}

} // namespace DisplayAPI
