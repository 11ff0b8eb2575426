#include "apps/exchange/ExchangeWire.h"

#include "unit/exchange/ExchangeTest.h"

#include <gmock/gmock.h>

using host::Wire;
using testing::ElementsAre;

namespace {

const std::string NUMBERS = "4711 \"Ada\" answers\n4712 is busy";

std::vector<std::string> offered()
{
    std::vector<std::string> offers;
    for (const Wire::Offer& offer : Wire::offers("exchange"))
        offers.push_back(offer.label + ": " + offer.line);
    return offers;
}

TEST(ExchangeWireTest, SentenceReachesTheExchange)
{
    test::ExchangeFixture fixture(NUMBERS);
    const exchange::ExchangeWire wire(fixture.exchange);
    EXPECT_EQ(Wire::say("exchange", "4711 calls"), "");
    EXPECT_EQ(Wire::say("exchange", "4711 sings"), fixture.exchange.command("4711 sings"));
    EXPECT_THAT(fixture.heard(), ElementsAre("0 #1 incoming 4711 (Ada)"));
}

TEST(ExchangeWireTest, OffersThatEachNumberCalls)
{
    test::ExchangeFixture fixture(NUMBERS);
    const exchange::ExchangeWire wire(fixture.exchange);
    EXPECT_THAT(offered(), ElementsAre("Ada: 4711 calls", "4712: 4712 calls"));
}

TEST(ExchangeWireTest, OffersThoseWhoComeAndTheNamesThatTheyGet)
{
    test::ExchangeFixture fixture(NUMBERS);
    const exchange::ExchangeWire wire(fixture.exchange);
    int changes = 0;
    Wire::setListener([&] { ++changes; });
    Wire::say("exchange", "4799 \"Eve\" answers after 1 s");
    Wire::say("exchange", "4712 \"Bob\" answers after 1 s");
    Wire::say("exchange", "4711 \"Lady Ada\" answers after 1 s");
    Wire::say("exchange", "4712 calls");
    Wire::setListener({});
    EXPECT_THAT(offered(), ElementsAre("Lady Ada: 4711 calls", "Bob: 4712 calls", "Eve: 4799 calls"));
    EXPECT_EQ(changes, 3);
}

} // namespace
