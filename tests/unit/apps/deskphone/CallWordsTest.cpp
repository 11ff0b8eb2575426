#include "apps/deskphone/CallWords.h"
#include "apps/exchange/Exchange.h"
#include "unit/apps/deskphone/CallsFixture.h"
#include "utilities/TranslatorIfc.h"

#include <gmock/gmock.h>

#include <string>

using deskphone::reasonOf;
using exchange::Reason;

namespace {

class CallWordsTest : public testing::Test, public TranslatorIfc {
protected:
    std::string translate(const std::string& key) override { return "[" + key + "]"; }

    std::string reason(Reason reason, const std::string& text = {})
    {
        exchange::CallEvent event;
        event.reason = reason;
        event.text = text;
        return reasonOf(event, *this);
    }
};

TEST_F(CallWordsTest, ReasonIsSaidInTheUsersLanguage)
{
    EXPECT_EQ(reason(Reason::BUSY), "[Call.busy]");
    EXPECT_EQ(reason(Reason::FAILURE, "No line is free"), "[Call.no.line.free]");
    EXPECT_EQ(reason(Reason::FAILURE, "Forwarded too often"), "[Call.forwarded.too.often]");
}

TEST_F(CallWordsTest, ReasonThatNobodyKnowsStandsAsItIs)
{
    EXPECT_EQ(reason(Reason::FAILURE, "Cable cut"), "Cable cut");
}

TEST_F(CallWordsTest, NothingIsSaidOfACallThatHasJustEnded)
{
    EXPECT_EQ(reason(Reason::ENDED_BY_ME), "");
}

/// Its words are the exchange's to choose.
TEST_F(CallWordsTest, WhatTheExchangeSaysOfAFullLineIsKnown)
{
    test::CallsFixture phone;
    std::string said;
    phone.calls.addCallListener([&](const deskphone::PhoneCall& call) { said = reasonOf(call.last, *this); });
    for (int call = 0; call <= exchange::MOST_CALLS; ++call)
        phone.place(1, {"4710", ""});
    phone.settle();
    EXPECT_EQ(said, "[Call.too.many]");
}

} // namespace
