#include "unit/exchange/ExchangeTest.h"

#include "support/CountingHeap.h"
#include "support/Gate.h"
#include "support/Worker.h"

#include <atomic>
#include <gmock/gmock.h>
#include <limits>
#include <memory>

namespace test {

namespace {

using exchange::CallEvent;
using exchange::CallId;
using exchange::CallState;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(ExchangeTest, HasTheLinesAndTheOthersOfItsNumbers)
{
    const ExchangeFixture fixture("4711 \"Ada\" answers\n4712 is busy");
    EXPECT_THAT(fixture.exchange.parties(), ElementsAre(exchange::Party{"4711", "Ada"}, exchange::Party{"4712", ""}));
    const std::vector<exchange::Line> lines = fixture.exchange.lines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].party, (exchange::Party{"3301", "Grace"}));
    EXPECT_EQ(lines[1].number, 2);
}

TEST(ExchangeTest, RefusesWhatThereIsNot)
{
    ExchangeFixture fixture;
    exchange::Exchange& telephone = fixture.exchange;
    EXPECT_EQ(telephone.place(3, "4711"), exchange::NO_CALL);
    EXPECT_EQ(telephone.place(0, "4711"), exchange::NO_CALL);
    EXPECT_EQ(telephone.place(1, ""), exchange::NO_CALL);
    EXPECT_FALSE(telephone.setForwarding(3, {}));
    EXPECT_FALSE(telephone.setForwarding(1, {.answerTime = -1}));
    EXPECT_FALSE(telephone.setForwarding(1, {.answerTime = exchange::LONGEST_TIME + 1}));
    EXPECT_FALSE(telephone.setForwarding(1, {.answerTime = std::numeric_limits<std::int64_t>::max()}));
    EXPECT_FALSE(telephone.setDoNotDisturb(3, true));
    EXPECT_FALSE(telephone.setTakesSeveral(3, true));
    for (const CallId none : {exchange::NO_CALL, 1, -1}) {
        EXPECT_FALSE(telephone.answer(none));
        EXPECT_FALSE(telephone.deflect(none, "4711"));
        EXPECT_FALSE(telephone.end(none));
        EXPECT_FALSE(telephone.hold(none));
        EXPECT_FALSE(telephone.resume(none));
        EXPECT_FALSE(telephone.transferTo(none, "4711"));
        EXPECT_FALSE(telephone.transfer(none, none));
        EXPECT_FALSE(telephone.join(none, none));
    }
    EXPECT_THAT(fixture.heard(), IsEmpty());
}

/// Which operations are refused, in the words of the listener's last event.
std::vector<std::string> refused(ExchangeFixture& fixture)
{
    exchange::Exchange& telephone = fixture.exchange;
    std::vector<std::string> names;
    const auto attempt = [&](const char* name, bool isTaken) {
        if (!isTaken)
            names.emplace_back(name);
    };
    attempt("answer", telephone.answer(1));
    attempt("deflect", telephone.deflect(1, "4712"));
    attempt("hold", telephone.hold(1));
    attempt("resume", telephone.resume(1));
    attempt("transferTo", telephone.transferTo(1, "4712"));
    attempt("transfer", telephone.transfer(1, 2));
    attempt("join", telephone.join(1, 2));
    return names;
}

TEST(ExchangeTest, RefusesWhatIsNotForTheStateAndChangesNothing)
{
    ExchangeFixture fixture("4711 answers after 1 s");
    fixture.exchange.command("4713 calls");
    fixture.exchange.end(1);
    fixture.exchange.place(1, "4711");
    fixture.exchange.end(2);
    fixture.heard();
    EXPECT_THAT(refused(fixture), testing::SizeIs(7)) << "it has ended";
    EXPECT_THAT(fixture.heard(), IsEmpty());

    fixture.exchange.place(1, "4711");
    EXPECT_FALSE(fixture.exchange.hold(3));
    EXPECT_FALSE(fixture.exchange.answer(3));
    EXPECT_FALSE(fixture.exchange.transferTo(3, "4712"));
    fixture.pass(500);
    EXPECT_FALSE(fixture.exchange.hold(3)) << "it rings there";
    EXPECT_FALSE(fixture.exchange.join(3, 3));
    fixture.pass(1000);
    fixture.heard();
    EXPECT_FALSE(fixture.exchange.resume(3)) << "it is connected";
    EXPECT_FALSE(fixture.exchange.transferTo(3, ""));
    EXPECT_FALSE(fixture.exchange.transfer(3, 3));
    EXPECT_FALSE(fixture.exchange.join(3, 3));
    EXPECT_THAT(fixture.heard(), IsEmpty());
    EXPECT_TRUE(fixture.exchange.hold(3));
    EXPECT_FALSE(fixture.exchange.hold(3)) << "it is held";
    EXPECT_TRUE(fixture.exchange.resume(3));
    EXPECT_FALSE(fixture.exchange.hold(3)) << "it resumes";
    EXPECT_FALSE(fixture.exchange.resume(3));
    EXPECT_FALSE(fixture.exchange.transferTo(3, "4712"));
    fixture.pass(200);
    fixture.exchange.command("4714 calls");
    EXPECT_FALSE(fixture.exchange.transfer(3, 4)) << "it rings here";
    EXPECT_FALSE(fixture.exchange.join(3, 4));
}

TEST(ExchangeTest, OneConferenceAtATimeForACall)
{
    ExchangeFixture fixture;
    for (const CallId call : {1, 2, 3}) {
        fixture.exchange.command("471" + std::to_string(call) + " calls");
        fixture.exchange.answer(call);
    }
    EXPECT_TRUE(fixture.exchange.join(1, 2));
    EXPECT_FALSE(fixture.exchange.join(1, 3));
    EXPECT_FALSE(fixture.exchange.join(3, 2));
    EXPECT_FALSE(fixture.exchange.transfer(1, 3));
    EXPECT_FALSE(fixture.exchange.transfer(3, 2));
    EXPECT_FALSE(fixture.exchange.transferTo(1, "4712"));
    EXPECT_EQ(fixture.exchange.command("4713 plays in a conference with 4715"), "");
    EXPECT_FALSE(fixture.exchange.transferTo(3, "4712"));
}

/// A sentence that cannot be followed, and a part of why.
TEST(ExchangeTest, CallIsNotDeflectedToALineThatIsNotRegistered)
{
    ExchangeFixture fixture;
    fixture.exchange.command("line 2 is not registered");
    fixture.exchange.command("4711 calls");
    EXPECT_FALSE(fixture.exchange.deflect(1, "3302"));
    EXPECT_THAT(fixture.heard(), ElementsAre("line 2 not registered", "0 #1 incoming 4711"));
}

struct Refusal {
    const char* sentence;
    const char* reason;
};

class RefusalTest : public testing::TestWithParam<Refusal> {};

TEST_P(RefusalTest, SaysWhyAndChangesNothing)
{
    ExchangeFixture fixture("4711 answers");
    EXPECT_THAT(fixture.exchange.command(GetParam().sentence), HasSubstr(GetParam().reason));
    EXPECT_THAT(fixture.heard(), IsEmpty());
    EXPECT_EQ(fixture.exchange.parties().size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(
    , RefusalTest,
    testing::ValuesIn(std::vector<Refusal>{
        {"", "expected a number of digits, * and #, not the end of the line"},
        {"4711", "expected what the number does, not the end of the line; that is one of: calls back, calls, answers"},
        {"4711 sings", "expected what the number does, not 'sings'"},
        {"4711 calls line 3", "there is no line 3"},
        {"4711 calls line 0", "expected the number of a line from 1 to 8, not '0'"},
        {"4711 calls for ever", "expected a time such as 3 s, not 'ever'"},
        {"4711 calls, holds", "'calls' can be said while the program runs, and alone"},
        {"3301 calls", "3301 is a line of this telephone"},
        {"3301 is busy", "3301 is a line of this telephone"},
        {"4711 holds", "4711 has no call that it could hold"},
        {"4711 resumes", "4711 has no call that it could resume"},
        {"4711 answers", "4711 has no call that it could answer"},
        {"4711 rejects", "4711 has no call that it could reject"},
        {"4711 ends", "4711 has no call that it could end"},
        {"4711 transfers to 4712", "4711 has no call that it could transfer"},
        {"4711 plays in a conference with 4712", "4711 has no call that it could play in a conference with"},
        {"4711 holds after 3 s", "it is not said what happens when it is called"},
        {"4711 ends \"\"", "the reason is empty"},
        {"line 3 is registered", "there is no line 3"},
        {"line 1 is 4799", "who line 1 is can be said in the file of numbers only"},
    }));

TEST(ExchangeTest, LineThatIsNotRegisteredIsNotCalled)
{
    ExchangeFixture fixture;
    EXPECT_EQ(fixture.exchange.command("line 2 is not registered"), "");
    EXPECT_EQ(fixture.exchange.command("4711 calls line 2"), "line 2 is not registered");
    EXPECT_THAT(fixture.heard(), ElementsAre("line 2 not registered"));
}

TEST(ExchangeTest, WhoDoesNotSayALineCallsTheFirst)
{
    StandingClock clock;
    exchange::Exchange exchange(exchange::Numbers::parse("numbers", "line 3 is 3303\nline 5 is 3305"), clock);
    NotingListener listener;
    exchange.setListener(&listener);
    EXPECT_EQ(exchange.command("4711 calls"), "");
    exchange.waitUntilHeard();
    EXPECT_THAT(listener.take(), ElementsAre("0 #1 on 3 incoming 4711"));
    exchange.setListener(nullptr);
}

TEST(ExchangeTest, DeedIsForTheLatestCallThatFits)
{
    ExchangeFixture fixture;
    for (const CallId call : {1, 2}) {
        fixture.exchange.command("4711 calls");
        fixture.exchange.answer(call);
    }
    fixture.heard();
    EXPECT_EQ(fixture.exchange.command("4711 holds"), "");
    EXPECT_EQ(fixture.exchange.command("4711 holds"), "");
    EXPECT_THAT(fixture.exchange.command("4711 holds"), HasSubstr("no call"));
    EXPECT_THAT(fixture.heard(), ElementsAre("0 #2 held by other 4711", "0 #1 held by both 4711"));
}

/// Answers each call that comes, ends each that is connected, on the exchange's thread.
class EagerListener : public NotingListener {
public:
    explicit EagerListener(exchange::Telephony& answered) : telephony(answered) {}

    void callChanged(const CallEvent& event) override
    {
        NotingListener::callChanged(event);
        if (event.state == CallState::INCOMING) {
            EXPECT_TRUE(telephony.answer(event.call));
        }
        if (event.state == CallState::CONNECTED) {
            EXPECT_TRUE(telephony.end(event.call));
        }
        if (event.state == CallState::ENDED)
            telephony.setListener(nullptr);
    }

    exchange::Telephony& telephony;
};

TEST(ExchangeTest, ListenerMayUseTheTelephoneAndTakeItselfOff)
{
    ExchangeFixture fixture;
    EagerListener eager(fixture.exchange);
    fixture.exchange.setListener(&eager);
    fixture.exchange.command("4711 calls");
    fixture.exchange.waitUntilHeard();
    fixture.exchange.command("4712 calls");
    fixture.exchange.waitUntilHeard();
    EXPECT_THAT(eager.take(), ElementsAre("0 #1 incoming 4711", "0 #1 connected 4711", "0 #1 ended 4711: ended by me"));
}

/// Hears nothing further until the gate is open.
class SlowListener : public NotingListener {
public:
    void callChanged(const CallEvent& event) override
    {
        begun.open();
        goOn.wait();
        NotingListener::callChanged(event);
    }

    Gate begun;
    Gate goOn;
};

TEST(ExchangeTest, ListenerThatIsSlowHoldsNobodyUpAndMissesNothing)
{
    ExchangeFixture fixture("4711 answers after 1 s, holds after 1 s");
    SlowListener slow;
    fixture.exchange.setListener(&slow);
    const CallId call = fixture.exchange.place(1, "4711");
    ASSERT_TRUE(slow.begun.wait());
    fixture.clock.pass(1600);
    EXPECT_TRUE(fixture.exchange.hold(call)) << "it is connected, whoever has heard of it";
    fixture.clock.pass(1000);
    EXPECT_TRUE(fixture.exchange.end(call));
    slow.goOn.open();
    fixture.exchange.waitUntilHeard();
    EXPECT_THAT(slow.take(), ElementsAre("0 #1 dialling 4711", "200 #1 proceeding 4711", "500 #1 ringing back 4711",
                                         "1500 #1 connected 4711", "1600 #1 held by me 4711",
                                         "2500 #1 held by both 4711", "2600 #1 ended 4711: ended by me"));
    fixture.exchange.setListener(nullptr);
}

TEST(ExchangeTest, NobodyIsToldOnceTheListenerIsOff)
{
    ExchangeFixture fixture;
    SlowListener slow;
    fixture.exchange.setListener(&slow);
    fixture.exchange.command("4711 calls");
    fixture.exchange.command("4712 calls");
    ASSERT_TRUE(slow.begun.wait());
    Worker owner([&] { fixture.exchange.setListener(nullptr); });
    EXPECT_TRUE(owner.isBlocked());
    slow.goOn.open();
    owner.join();
    fixture.exchange.waitUntilHeard();
    EXPECT_THAT(slow.take(), ElementsAre("0 #1 incoming 4711"));
}

TEST(ExchangeTest, WhatHappensWithoutAListenerIsDropped)
{
    ExchangeFixture fixture;
    fixture.exchange.setListener(nullptr);
    fixture.exchange.command("4711 calls");
    fixture.exchange.command("4712 calls");
    fixture.exchange.end(1);
    fixture.exchange.setListener(&fixture.listener);
    EXPECT_THAT(fixture.heard(), ElementsAre("0 #2 incoming 4712")) << "what lives is told anew";
    EXPECT_TRUE(fixture.exchange.answer(2));
    EXPECT_THAT(fixture.heard(), ElementsAre("0 #2 connected 4712"));
}

TEST(ExchangeTest, ListenerThatReplacesAnotherHearsOfLivingCallsAloneAndIsNotWaitedFor)
{
    ExchangeFixture fixture;
    SlowListener former, next;
    fixture.exchange.setListener(&former);
    for (const char* const sentence : {"4711 calls", "4711 ends", "4712 calls", "4713 calls"})
        fixture.exchange.command(sentence);
    ASSERT_TRUE(former.begun.wait());
    Worker owner([&] { fixture.exchange.setListener(&next); });
    EXPECT_TRUE(owner.isBlocked());
    former.goOn.open();
    ASSERT_TRUE(next.begun.wait());
    EXPECT_TRUE(becomesTrue([&] { return owner.hasReturned(); })) << "while the next one hears";
    next.goOn.open();
    fixture.exchange.waitUntilHeard();
    EXPECT_THAT(former.take(), ElementsAre("0 #1 incoming 4711"));
    EXPECT_THAT(next.take(), ElementsAre("0 #2 incoming 4712", "0 #3 incoming 4713"));
    fixture.exchange.setListener(nullptr);
}

/// Sleeps through all that happens until the gate is open.
class DeafClock final : public exchange::Clock {
public:
    std::int64_t now() const override { return 0; }
    void wake() override {}
    void sleepUntil(std::int64_t) override
    {
        asleep.open();
        goOn.wait();
    }

    Gate asleep;
    Gate goOn;
};

TEST(ExchangeTest, WhatIsDroppedIsNotWaitedFor)
{
    DeafClock clock;
    exchange::Exchange exchange(exchange::Numbers::parse("numbers", ""), clock);
    NotingListener listener;
    ASSERT_TRUE(clock.asleep.wait());
    exchange.command("4711 calls");
    exchange.command("4711 ends");
    Worker waiting([&] { exchange.waitUntilHeard(); });
    EXPECT_TRUE(waiting.isBlocked());
    exchange.setListener(&listener);
    EXPECT_TRUE(becomesTrue([&] { return waiting.hasReturned(); }));
    clock.goOn.open();
    exchange.setListener(nullptr);
}

TEST(ExchangeTest, SomebodyElseMayHaveANumber)
{
    exchange::Numbers numbers = exchange::Numbers::parse("numbers", "4711 \"Ada\" is busy");
    std::vector<std::string> asked;
    numbers.everybodyElse = [&asked](const std::string& number) -> std::optional<exchange::Number> {
        asked.push_back(number);
        if (number != "99")
            return std::nullopt;
        return exchange::Number{{"99", "Eve"}, std::make_shared<const exchange::Behaviour>()};
    };
    StandingClock clock;
    exchange::Exchange exchange(std::move(numbers), clock);
    NotingListener listener;
    exchange.setListener(&listener);
    exchange.place(1, "4711");
    exchange.place(1, "98");
    exchange.place(1, "99");
    clock.pass(1000);
    exchange.waitUntilHeard();
    EXPECT_THAT(listener.take(),
                testing::IsSupersetOf({"500 #1 ended 4711 (Ada): busy", "500 #2 failed 98: unknown number",
                                       "500 #3 ringing back 99 (Eve)"}));
    EXPECT_THAT(asked, testing::Not(testing::Contains("4711")));
    EXPECT_EQ(exchange.command("99 is busy"), "");
    EXPECT_THAT(exchange.parties(), testing::Contains(exchange::Party{"99", "Eve"})) << "a sentence without a name";
    exchange.setListener(nullptr);
}

TEST(ExchangeTest, EndsWithCallsAndPlansLeft)
{
    ExchangeFixture fixture("4711 is busy, calls back after 1 s");
    fixture.exchange.place(1, "4711");
    fixture.exchange.command("4712 calls");
    fixture.pass(700);
    fixture.exchange.place(1, "4711");
}

/// Each event of a call comes after those before it, whoever calls meanwhile.
class OrderListener : public exchange::TelephonyListener {
public:
    void callChanged(const CallEvent& event) override
    {
        isInOrder = isInOrder && event.at >= last;
        last = event.at;
        ended += isFinal(event.state);
    }

    std::int64_t last = 0;
    bool isInOrder = true;
    int ended = 0;
};

TEST(ExchangeTest, ManyThreadsCallAndTheClockRuns)
{
    constexpr int THREADS = 4, CALLS = 200;
    ExchangeFixture fixture("4711 answers after 200 ms");
    OrderListener order;
    fixture.exchange.setListener(&order);
    std::atomic<bool> isOver = false;
    {
        std::vector<std::unique_ptr<Worker>> callers;
        for (int caller = 0; caller < THREADS; ++caller)
            callers.push_back(std::make_unique<Worker>([&] {
                for (int n = 0; n < CALLS; ++n) {
                    const CallId call = fixture.exchange.place(1 + n % 2, "4711");
                    fixture.exchange.hold(call);
                    fixture.exchange.command("4711 holds");
                    fixture.exchange.end(call);
                }
            }));
        Worker clock([&] {
            while (!isOver)
                fixture.clock.pass(10);
        });
        for (const auto& caller : callers)
            caller->join();
        isOver = true;
    }
    fixture.exchange.waitUntilHeard();
    EXPECT_TRUE(order.isInOrder);
    EXPECT_EQ(order.ended, THREADS * CALLS);
    fixture.exchange.setListener(nullptr);
}

/// A call from its beginning to its end.
void talkOnce(ExchangeFixture& fixture)
{
    const CallId call = fixture.exchange.place(1, "4711");
    fixture.pass(3500);
    EXPECT_TRUE(fixture.exchange.hold(call));
    EXPECT_TRUE(fixture.exchange.resume(call));
    fixture.pass(200);
    EXPECT_TRUE(fixture.exchange.end(call));
    EXPECT_EQ(fixture.heard().size(), 8u);
}

TEST(ExchangeTest, MemoryIsFlatHoweverManyCallsThereAre)
{
    ExchangeFixture fixture("4711 answers after 3 s, holds after 60 s, calls back after 12 min");
    for (int n = 0; n < 100; ++n)
        talkOnce(fixture);
    const int before = gHeapAllocations - gHeapReleases;
    for (int n = 0; n < 900; ++n)
        talkOnce(fixture);
    EXPECT_LE(gHeapAllocations - gHeapReleases, before);
}

} // namespace

} // namespace test
