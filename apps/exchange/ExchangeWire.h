#pragma once

#include "apps/exchange/Exchange.h"
#include "host/frontend/Wire.h"

namespace exchange {

/// Lets scripts and the page speak with an exchange as long as it lives: `exchange 4711 calls`. The page has a button
/// with which each number calls. The exchange has to outlive it.
class ExchangeWire {
public:
    explicit ExchangeWire(Exchange& exchange);

    /// With buttons for these alone.
    ExchangeWire(Exchange& exchange, const std::vector<Party>& callers);

private:
    host::Wire mWire;
};

} // namespace exchange
