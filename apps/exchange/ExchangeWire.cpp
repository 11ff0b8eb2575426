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

ExchangeWire::ExchangeWire(Exchange& exchange)
    : mExchange(exchange),
      mWire(
          "exchange", [this](std::string_view line) { return hear(line); }, offersOf(exchange.parties()))
{
}

/// A sentence may name somebody, or bring somebody new.
std::string ExchangeWire::hear(std::string_view line)
{
    const std::vector<Party> before = mExchange.parties();
    std::string complaint = mExchange.command(line);
    if (const std::vector<Party> now = mExchange.parties(); now != before)
        mWire.setOffers(offersOf(now));
    return complaint;
}

} // namespace exchange
