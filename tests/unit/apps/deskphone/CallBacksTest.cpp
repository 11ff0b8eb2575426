#include "apps/deskphone/CallBacks.h"

#include "apps/deskphone/PastCall.h"
#include "unit/apps/deskphone/CallsFixture.h"

#include <string>

using deskphone::CallBack;
using deskphone::CallBacks;
using deskphone::PastCall;
using DisplayAPI::CallBackMainItem;

namespace {

class CallBacksTest : public testing::Test {
protected:
    static PastCall dialled(const std::string& number)
    {
        return {.kind = PastCall::Kind::DIALLED,
                .moment = 0,
                .party = "Ada",
                .number = number,
                .reason = exchange::Reason::BUSY};
    }

    test::CallsFixture phone;
    CallBacks callBacks{phone.calls};
};

TEST_F(CallBacksTest, CanBeAskedForWhereACallWasInVain)
{
    PastCall past = dialled("4710");
    EXPECT_TRUE(callBacks.canRequest(past));
    past.seconds = 1;
    EXPECT_FALSE(callBacks.canRequest(past));
    past = dialled("4710");
    past.kind = PastCall::Kind::MISSED;
    EXPECT_FALSE(callBacks.canRequest(past));
}

TEST_F(CallBacksTest, IsAskedForOnceOfEachParty)
{
    callBacks.request(dialled("4710"));
    EXPECT_FALSE(callBacks.canRequest(dialled("4710")));
    EXPECT_TRUE(callBacks.canRequest(dialled("4711")));
    ASSERT_EQ(callBacks.all().size(), 1U);
    EXPECT_EQ(callBacks.all().front().type, CallBackMainItem::BUSY);
    EXPECT_EQ(callBacks.all().front().state, CallBackMainItem::WAITING);
}

TEST_F(CallBacksTest, IsReadyWhileItsPartyCallsAndWaitsOnUnanswered)
{
    callBacks.request(dialled("47 10"));
    phone.say("4710 calls");
    phone.settle();
    EXPECT_EQ(callBacks.all().front().state, CallBackMainItem::READY);
    phone.say("4710 ends");
    phone.settle();
    EXPECT_EQ(callBacks.all().front().state, CallBackMainItem::WAITING);
}

TEST_F(CallBacksTest, GoesWhenTheTwoHaveSpokenAndNoOtherDoes)
{
    callBacks.request(dialled("4710"));
    callBacks.request(dialled("4711"));
    phone.say("4710 calls");
    phone.settle();
    phone.exchange.answer(phone.calls.all().front()->id());
    phone.settle();
    ASSERT_EQ(callBacks.all().size(), 1U);
    EXPECT_EQ(callBacks.all().front().party.number, "4711");
}

TEST_F(CallBacksTest, GoesWhenItIsCancelledAndSaysSo)
{
    int told = 0;
    callBacks.addListener([&] { ++told; });
    callBacks.request(dialled("4710"));
    callBacks.cancel(callBacks.all().front());
    EXPECT_TRUE(callBacks.all().empty());
    EXPECT_EQ(told, 2);
}

} // namespace
