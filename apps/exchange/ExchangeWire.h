#pragma once

#include "apps/exchange/Exchange.h"
#include "host/frontend/Wire.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace exchange {

/// Lets scripts and the page speak with an exchange as long as it lives: `exchange 4711 calls`. The page has a button
/// with which each number calls, those included that a sentence has added. The exchange has to outlive it.
class ExchangeWire {
public:
    explicit ExchangeWire(Exchange& exchange);

    /// With buttons for these alone, and for those that come.
    ExchangeWire(Exchange& exchange, const std::vector<Party>& callers);

private:
    std::string hear(std::string_view line);
    std::vector<Party> callers() const;

    Exchange& mExchange;
    std::set<std::string> mSilent; ///< the numbers without a button
    host::Wire mWire;              ///< the listener is there before
};

} // namespace exchange
