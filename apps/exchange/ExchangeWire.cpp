#include "apps/exchange/ExchangeWire.h"

namespace exchange {

namespace {

std::vector<host::Wire::Offer> offersOf(const std::vector<Party>& callers)
{
    std::vector<host::Wire::Offer> offers;
    for (const Party& party : callers)
        offers.push_back({party.name.empty() ? party.number : party.name, party.number + " calls"});
    return offers;
}

} // namespace

ExchangeWire::ExchangeWire(Exchange& exchange) : ExchangeWire(exchange, exchange.parties()) {}

ExchangeWire::ExchangeWire(Exchange& exchange, const std::vector<Party>& callers)
    : mWire(
          "exchange", [&exchange](std::string_view line) { return exchange.command(line); }, offersOf(callers))
{
}

} // namespace exchange
