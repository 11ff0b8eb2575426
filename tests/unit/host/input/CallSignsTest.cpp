#include "host/input/CallSigns.h"

#include <gmock/gmock.h>

using host::CallSigns;
using enum host::CallSigns::Lamp;

namespace {

class CallSignsTest : public testing::Test {
protected:
    CallSignsTest()
    {
        CallSigns::setListener([this] { seen.push_back(CallSigns::current()); });
    }
    ~CallSignsTest() override
    {
        CallSigns::setListener({});
        CallSigns::show({});
    }

    std::vector<CallSigns> seen;
};

TEST_F(CallSignsTest, AreDarkAndDownAtFirst)
{
    EXPECT_EQ(CallSigns::current(), (CallSigns{DARK, false}));
}

TEST_F(CallSignsTest, ListenerIsToldOfChangesAndMayLook)
{
    CallSigns::show({BLINKS, false});
    CallSigns::show({BLINKS, false});
    CallSigns::show({BLINKS, true});
    CallSigns::setListener({});
    CallSigns::show({});
    EXPECT_THAT(seen, testing::ElementsAre(CallSigns{BLINKS, false}, CallSigns{BLINKS, true}));
    EXPECT_EQ(CallSigns::current(), (CallSigns{DARK, false}));
}

} // namespace
