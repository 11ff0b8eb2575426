#pragma once

#include "apps/exchange/Exchange.h"
#include "host/frontend/Wire.h"

#include <string>
#include <string_view>

namespace exchange {

/// Lets scripts and the page speak with an exchange as long as it lives: `exchange 4711 calls`. The page has a button
/// with which each number calls, those included that a sentence has added. The exchange has to outlive it.
class ExchangeWire {
public:
    explicit ExchangeWire(Exchange& exchange);

private:
    std::string hear(std::string_view line);

    Exchange& mExchange;
    host::Wire mWire; ///< the listener is there before
};

} // namespace exchange
