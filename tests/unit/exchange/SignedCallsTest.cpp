#include "apps/exchange/SignedCalls.h"

#include "host/input/CallSigns.h"

#include <gtest/gtest.h>
#include <optional>

namespace test {

namespace {

using exchange::CallState;
using host::CallSigns;
using enum host::CallSigns::Lamp;

TEST(SignedCallsTest, LampAndHandsetFollowTheCalls)
{
    std::optional<exchange::SignedCalls> calls(std::in_place);
    const auto signs = [&](exchange::CallId call, CallState state) {
        calls->callChanged({.call = call, .state = state, .other = {}});
        return CallSigns::current();
    };
    EXPECT_EQ(signs(1, CallState::INCOMING), (CallSigns{BLINKS, false}));
    EXPECT_EQ(signs(1, CallState::CONNECTED), (CallSigns{DARK, true}));
    EXPECT_EQ(signs(2, CallState::INCOMING), (CallSigns{BLINKS, true}));
    EXPECT_EQ(signs(1, CallState::HELD_BY_ME), (CallSigns{BLINKS, false}));
    EXPECT_EQ(signs(2, CallState::ENDED), (CallSigns{LIT, false}));
    EXPECT_EQ(signs(3, CallState::DIALLING), (CallSigns{LIT, true}));
    EXPECT_EQ(signs(3, CallState::FAILED), (CallSigns{LIT, false}));
    EXPECT_EQ(signs(1, CallState::HELD_BY_BOTH), (CallSigns{LIT, false}));
    EXPECT_EQ(signs(1, CallState::RESUMING), (CallSigns{DARK, true}));
    calls.reset();
    EXPECT_EQ(CallSigns::current(), (CallSigns{DARK, false}));
}

TEST(SignedCallsTest, HandsetIsLiftedWithoutACallAsWell)
{
    exchange::SignedCalls calls;
    calls.setLifted(true);
    EXPECT_EQ(CallSigns::current(), (CallSigns{DARK, true}));
    calls.callChanged({.call = 1, .state = CallState::INCOMING, .other = {}});
    EXPECT_EQ(CallSigns::current(), (CallSigns{BLINKS, true}));
    calls.setLifted(false);
    EXPECT_EQ(CallSigns::current(), (CallSigns{BLINKS, false}));
}

} // namespace

} // namespace test
