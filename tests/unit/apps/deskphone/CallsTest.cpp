#include "unit/apps/deskphone/CallsFixture.h"

#include <chrono>
#include <thread>
#include <vector>

using deskphone::PhoneCall;
using exchange::CallState;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

class CallsTest : public testing::Test {
protected:
    exchange::CallId place(const std::string& number, const std::string& name)
    {
        const exchange::CallId call = phone.place(1, {number, name});
        phone.pass(1000);
        return call;
    }

    test::CallsFixture phone;
};

TEST_F(CallsTest, PlacedCallHasTheNameAndTheSpacesThatTheUserChose)
{
    const PhoneCall* const call = phone.calls.find(place("47 10", "Lovelace"));
    ASSERT_NE(call, nullptr);
    EXPECT_EQ(call->party(), "Lovelace");
    EXPECT_EQ(call->dialled.number, "47 10");
    EXPECT_EQ(call->last.other.number, "4710");
}

TEST_F(CallsTest, PlacedCallWithoutANameHasTheNetworks)
{
    EXPECT_EQ(phone.calls.find(place("4710", ""))->party(), "Ada");
}

TEST_F(CallsTest, UsersOwnNameStandsBeforeTheNetworks)
{
    deskphone::Calls named(phone.exchange);
    named.setNames([](const std::string& number) { return number == "4710" ? "My Ada" : ""; });
    named.startListening();
    phone.say("4710 calls forwarded by 4711");
    phone.settle();
    ASSERT_EQ(named.all().size(), 1U);
    EXPECT_EQ(named.all().front()->party(), "My Ada");
    EXPECT_EQ(named.all().front()->last.forwardedBy.name, "Bert");
    named.stopListening();
}

TEST_F(CallsTest, PlacedCallThatIsForwardedKeepsWhomTheUserDialled)
{
    phone.say("4710 forwards to 4711");
    const PhoneCall* const call = phone.calls.find(place("4710", ""));
    EXPECT_EQ(call->party(), "Bert");
    EXPECT_EQ(call->dialled, (exchange::Party{"4710", "Ada"}));
}

TEST_F(CallsTest, PlacingNobodyIsNoCall)
{
    EXPECT_EQ(place("", ""), exchange::NO_CALL);
    EXPECT_THAT(phone.calls.all(), IsEmpty());
}

TEST_F(CallsTest, TalkBeginsWithTheAnswerAndGoesOnWhileOneIsHeld)
{
    const exchange::CallId id = place("4710", "");
    EXPECT_EQ(phone.calls.find(id)->spokenUntil(5000), 0);
    phone.say("4710 answers");
    phone.pass(1000);
    phone.say("4710 holds");
    phone.pass(1000);
    EXPECT_EQ(phone.calls.find(id)->state(), CallState::HELD_BY_OTHER);
    EXPECT_EQ(phone.calls.find(id)->spokenUntil(phone.clock.now()), 2000);
}

TEST_F(CallsTest, CallThatRingsIsNotTheUsersYet)
{
    phone.say("4710 calls");
    phone.settle();
    EXPECT_EQ(phone.calls.all().size(), 1U);
    EXPECT_FALSE(phone.calls.isInCall());
    ASSERT_TRUE(phone.exchange.answer(phone.calls.all().front()->id()));
    phone.settle();
    EXPECT_EQ(phone.calls.current(), phone.calls.all().front());
}

TEST_F(CallsTest, EndOfACallIsToldWhenItIsInNoListAnyMore)
{
    std::vector<std::size_t> left;
    phone.calls.addCallListener([&](const PhoneCall& call) {
        if (isFinal(call.state()))
            left.push_back(phone.calls.all().size());
    });
    phone.say("4710 calls");
    phone.say("4711 calls");
    phone.say("4710 ends");
    phone.say("4711 ends");
    phone.settle();
    EXPECT_THAT(left, ElementsAre(1, 0));
}

TEST_F(CallsTest, ListenerThatIsSlowMissesNothingOfAFastNetwork)
{
    constexpr int ROUNDS = 50;
    std::vector<CallState> told;
    phone.calls.addCallListener([&](const PhoneCall& call) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        told.push_back(call.state());
    });
    for (int i = 0; i < ROUNDS; ++i) {
        phone.say("4710 calls");
        phone.say("4710 ends");
    }
    phone.settle();
    std::vector<CallState> expected;
    for (int i = 0; i < ROUNDS; ++i)
        expected.insert(expected.end(), {CallState::INCOMING, CallState::ENDED});
    EXPECT_EQ(told, expected);
}

TEST_F(CallsTest, EndOfAllTellsWhatHasHappenedAndEndsWhatLives)
{
    const exchange::CallId spoken = place("4710", "");
    phone.say("4710 answers");
    phone.say("4711 calls");
    phone.pass(3000);
    std::vector<std::pair<std::string, std::int64_t>> ended;
    phone.calls.addCallListener([&](const PhoneCall& call) {
        if (isFinal(call.state()))
            ended.emplace_back(call.party(), call.spokenUntil(call.last.at));
    });
    phone.say("4712 calls");
    phone.say("4712 ends");
    phone.say("4713 calls");
    phone.calls.endAll(phone.clock.now() + 2000);
    EXPECT_THAT(ended, ElementsAre(Pair("Cleo", 0), Pair("Ada", 5000), Pair("Bert", 0), Pair("Dora", 0)));
    EXPECT_THAT(phone.calls.all(), IsEmpty());
    phone.exchange.end(spoken);
    phone.settle();
    EXPECT_EQ(ended.size(), 4U);
}

TEST_F(CallsTest, EndOfAllHasNoReasonOfWhatHasFailedBefore)
{
    const exchange::CallId call = place("4710", "");
    phone.say("4710 answers");
    ASSERT_TRUE(phone.exchange.transferTo(call, "999"));
    phone.pass(1000);
    ASSERT_EQ(phone.calls.find(call)->last.reason, exchange::Reason::UNKNOWN_NUMBER);
    exchange::Reason reason = exchange::Reason::UNKNOWN_NUMBER;
    phone.calls.addCallListener([&](const PhoneCall& ended) { reason = ended.last.reason; });
    phone.calls.endAll(phone.clock.now());
    EXPECT_EQ(reason, exchange::Reason::NONE);
}

TEST_F(CallsTest, OneThatIsResumedIsTheUsersBeforeOneThatHeHasDialled)
{
    const exchange::CallId dialled = place("4711", "");
    phone.say("4710 calls");
    phone.settle();
    const exchange::CallId held = dialled + 1;
    ASSERT_TRUE(phone.exchange.answer(held));
    ASSERT_TRUE(phone.exchange.hold(held));
    phone.settle();
    EXPECT_EQ(phone.calls.current()->id(), dialled);
    ASSERT_TRUE(phone.exchange.resume(held));
    phone.settle();
    ASSERT_EQ(phone.calls.find(held)->state(), CallState::RESUMING);
    EXPECT_EQ(phone.calls.current()->id(), held);
}

TEST_F(CallsTest, LinesAreToldAsTheyChange)
{
    std::vector<int> messages;
    phone.calls.addLineListener([&](const exchange::Line& line) { messages.push_back(line.messages); });
    phone.say("line 2 has 3 messages");
    phone.say("line 2 has no messages");
    phone.settle();
    EXPECT_THAT(messages, ElementsAre(3, 0));
}

TEST_F(CallsTest, LineIsToldWhenItIsChosenAndCallsGoOutOnIt)
{
    std::vector<int> told;
    phone.calls.addLineListener([&](const exchange::Line& line) { told.push_back(line.number); });
    exchange::CallId call = exchange::NO_CALL;
    phone.asUser([&] {
        phone.calls.chooseLine(2);
        call = phone.calls.place({"4710", ""});
    });
    phone.settle();
    EXPECT_THAT(told, ElementsAre(2));
    ASSERT_NE(phone.calls.find(call), nullptr);
    EXPECT_EQ(phone.calls.find(call)->last.line, 2);
}

TEST_F(CallsTest, NothingIsHeardBeforeAllWhoListenAreThere)
{
    deskphone::Calls calls(phone.exchange);
    phone.say("4710 calls");
    phone.settle();
    EXPECT_THAT(calls.all(), IsEmpty());
    EXPECT_EQ(phone.calls.all().size(), 1U);
    calls.startListening();
    phone.settle();
    EXPECT_EQ(calls.all().size(), 1U);
    calls.stopListening();
}

TEST_F(CallsTest, NothingIsHeardAnyMoreWhenItHasStopped)
{
    int heard = 0;
    phone.calls.addCallListener([&](const PhoneCall&) { ++heard; });
    phone.calls.stopListening();
    phone.say("4710 calls");
    phone.settle();
    EXPECT_EQ(heard, 0);
}

} // namespace
