#include "apps/exchange/ExchangeWire.h"

namespace exchange {

namespace {

std::vector<host::Wire::Offer> offersOf(const Exchange& exchange)
{
    std::vector<host::Wire::Offer> offers;
    for (const Party& party : exchange.parties())
        offers.push_back({party.name.empty() ? party.number : party.name, party.number + " calls"});
    return offers;
}

} // namespace

ExchangeWire::ExchangeWire(Exchange& exchange)
    : mWire(
          "exchange", [&exchange](std::string_view line) { return exchange.command(line); }, offersOf(exchange))
{
}

} // namespace exchange
