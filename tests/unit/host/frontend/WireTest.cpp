#include "host/frontend/Wire.h"

#include "support/Gate.h"
#include "support/Worker.h"

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>

using host::Wire;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::string agree(std::string_view)
{
    return {};
}

TEST(WireTest, LineReachesTheListenerAndItsAnswerComesBack)
{
    const Wire wire("exchange", [](std::string_view line) { return "no " + std::string(line); });
    EXPECT_EQ(Wire::say("exchange", "4711 calls"), "no 4711 calls");
}

TEST(WireTest, WithoutAListenerThatIsSaid)
{
    EXPECT_EQ(Wire::say("exchange", "4711 calls"), "the program has no exchange");
    const Wire wire("weather", agree);
    EXPECT_EQ(Wire::say("exchange", "4711 calls"), "the program has no exchange");
    EXPECT_FALSE(Wire::isThere("exchange"));
    EXPECT_TRUE(Wire::isThere("weather"));
}

TEST(WireTest, ListenerThatThrowsIsSaidToHaveFailed)
{
    const Wire wire("exchange", [](std::string_view) -> std::string { throw std::runtime_error("out of lines"); });
    EXPECT_EQ(Wire::say("exchange", "4711 calls"), "the program has failed: out of lines");
}

TEST(WireTest, EachNameIsThereOnce)
{
    EXPECT_THAT(Wire::names(), IsEmpty());
    const Wire wires[] = {{"weather", agree}, {"exchange", agree}, {"weather", agree}};
    EXPECT_THAT(Wire::names(), ElementsAre("exchange", "weather"));
}

TEST(WireTest, WireMadeLastCounts)
{
    const Wire first("exchange", agree, {{"one", "1"}});
    auto second = std::make_unique<Wire>("exchange", [](std::string_view) { return "the second"; });
    EXPECT_EQ(Wire::say("exchange", ""), "the second");
    EXPECT_THAT(Wire::offers("exchange"), IsEmpty());
    second.reset();
    EXPECT_EQ(Wire::say("exchange", ""), "");
    EXPECT_THAT(Wire::offers("exchange"), ElementsAre(Wire::Offer{"one", "1"}));
}

TEST(WireTest, ListenerIsToldOfComingsAndGoingsAndMayLook)
{
    std::vector<bool> seen;
    Wire::setListener([&] { seen.push_back(Wire::isThere("exchange")); });
    auto wire = std::make_unique<Wire>("exchange", agree);
    wire.reset();
    Wire::setListener({});
    const Wire unheard("exchange", agree);
    EXPECT_THAT(seen, ElementsAre(true, false));
}

TEST(WireTest, OffersChangeWhileTheWireIsThere)
{
    Wire wire("exchange", agree, {{"one", "1"}});
    std::vector<std::vector<Wire::Offer>> seen;
    Wire::setListener([&] { seen.push_back(Wire::offers("exchange")); });
    wire.setOffers({{"two", "2"}});
    Wire::setListener({});
    EXPECT_THAT(seen, ElementsAre(ElementsAre(Wire::Offer{"two", "2"})));
}

TEST(WireTest, EndWaitsUntilTheLineHasBeenHeard)
{
    test::Gate begun, goOn;
    bool isHeard = false;
    auto wire = std::make_unique<Wire>("exchange", [&](std::string_view) {
        begun.open();
        goOn.wait();
        isHeard = true;
        return std::string();
    });
    test::Worker asker([] { Wire::say("exchange", "4711 calls"); });
    ASSERT_TRUE(begun.wait());
    test::Worker owner([&] { wire.reset(); });
    EXPECT_TRUE(owner.isBlocked());
    goOn.open();
    owner.join();
    EXPECT_TRUE(isHeard);
}

TEST(WireTest, WireThatHearsHoldsUpNoOther)
{
    test::Gate begun, goOn;
    const Wire slow("weather", [&](std::string_view) {
        begun.open();
        goOn.wait();
        return std::string();
    });
    test::Worker asker([] { Wire::say("weather", "it rains"); });
    ASSERT_TRUE(begun.wait());
    test::Worker others([] {
        const Wire wire("exchange", agree);
        EXPECT_EQ(Wire::say("exchange", "4711 calls"), "");
        EXPECT_TRUE(Wire::isThere("weather"));
        EXPECT_THAT(Wire::offers("weather"), IsEmpty());
    });
    EXPECT_FALSE(others.isBlocked());
    goOn.open();
}

TEST(WireTest, ListenerThatIsTakenOffHasReturned)
{
    test::Gate begun, goOn;
    Wire::setListener([&] {
        begun.open();
        goOn.wait();
    });
    test::Worker program([] { const Wire wire("exchange", agree); });
    ASSERT_TRUE(begun.wait());
    test::Worker frontEnd([] { Wire::setListener({}); });
    EXPECT_TRUE(frontEnd.isBlocked());
    goOn.open();
}

TEST(WireTest, WitnessHearsALineBeforeItIsSaidAndWhatHasComeOfIt)
{
    std::vector<std::string> notes;
    const Wire wire("exchange", [&](std::string_view line) {
        notes.push_back("said " + std::string(line));
        return std::string(line == "4711 calls" ? "" : "refused");
    });
    Wire::setWitness([&](std::string_view name, std::string_view line, const std::string* refusal) {
        notes.push_back(std::string(name) + ": " + std::string(line) + (refusal != nullptr ? " = " + *refusal : ""));
    });
    Wire::say("exchange", "4711 calls");
    Wire::say("exchange", "nonsense");
    Wire::setWitness({});
    Wire::say("exchange", "4712 calls");
    EXPECT_THAT(notes,
                ElementsAre("exchange: 4711 calls", "said 4711 calls", "exchange: 4711 calls = ", "exchange: nonsense",
                            "said nonsense", "exchange: nonsense = refused", "said 4712 calls"));
}

} // namespace
