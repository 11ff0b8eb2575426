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

std::set<std::string> othersThan(const std::vector<Party>& callers, const std::vector<Party>& all)
{
    std::set<std::string> others;
    for (const Party& party : all)
        others.insert(party.number);
    for (const Party& caller : callers)
        others.erase(caller.number);
    return others;
}

} // namespace

ExchangeWire::ExchangeWire(Exchange& exchange) : ExchangeWire(exchange, exchange.parties()) {}

ExchangeWire::ExchangeWire(Exchange& exchange, const std::vector<Party>& callers)
    : mExchange(exchange), mSilent(othersThan(callers, exchange.parties())),
      mWire(
          "exchange", [this](std::string_view line) { return hear(line); }, offersOf(callers))
{
}

/// A sentence may name somebody, or bring somebody new.
std::string ExchangeWire::hear(std::string_view line)
{
    const std::vector<Party> before = callers();
    std::string complaint = mExchange.command(line);
    if (const std::vector<Party> now = callers(); now != before)
        mWire.setOffers(offersOf(now));
    return complaint;
}

std::vector<Party> ExchangeWire::callers() const
{
    std::vector<Party> callers = mExchange.parties();
    std::erase_if(callers, [this](const Party& party) { return mSilent.contains(party.number); });
    return callers;
}

} // namespace exchange
