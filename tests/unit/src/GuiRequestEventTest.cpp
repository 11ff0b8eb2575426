#include "DisplayAPI/GuiRequestEvent.h"

#include "support/TestWidget.h"
#include "support/Worker.h"
#include "utilities/Wait.h"

#include <gtest/gtest.h>

#include <type_traits>

using DisplayAPI::GuiRequestEvent;

static_assert(std::has_virtual_destructor_v<GuiRequestEvent>);
static_assert(!std::is_copy_constructible_v<GuiRequestEvent>);

TEST(GuiRequestEventTest, NamesItsRequesterAndItsCode)
{
    test::TestWidget widget;
    GuiRequestEvent request(&widget, 17);

    EXPECT_EQ(request.requesterWidget(), &widget);
    EXPECT_EQ(request.getType(), 17);
}

TEST(GuiRequestEventTest, ACodeMayBeNegative)
{
    const GuiRequestEvent request(nullptr, -1);
    EXPECT_EQ(request.getType(), -1);
}

TEST(GuiRequestEventTest, StringsAreEmptyAtFirst)
{
    const GuiRequestEvent request(nullptr, 0);
    EXPECT_EQ(request.stringParam1, "");
    EXPECT_EQ(request.stringParam2, "");
    EXPECT_EQ(request.stringParam3, "");
}

TEST(GuiRequestEventTest, IntegersAreMinusOneAtFirst)
{
    const GuiRequestEvent request(nullptr, 0);
    EXPECT_EQ(request.intParam1, -1);
    EXPECT_EQ(request.intParam2, -1);
    EXPECT_EQ(request.intParam3, -1);
}

TEST(GuiRequestEventTest, FlagsAreFalseAtFirst)
{
    const GuiRequestEvent request(nullptr, 0);
    EXPECT_FALSE(request.boolParam1);
    EXPECT_FALSE(request.boolParam2);
}

TEST(GuiRequestEventTest, PointersAndResultAddressesAreNullAtFirst)
{
    const GuiRequestEvent request(nullptr, 0);
    EXPECT_EQ(request.ptrParam1, nullptr);
    EXPECT_EQ(request.ptrParam2, nullptr);
    EXPECT_EQ(request.returnValue1, nullptr);
    EXPECT_EQ(request.returnValue2, nullptr);
    EXPECT_EQ(request.returnValue3, nullptr);
    EXPECT_EQ(request.returnValue4, nullptr);
}

TEST(GuiRequestEventTest, ValuesDoNotSurviveInAReusedRecord)
{
    for (int round = 0; round < 100; ++round) {
        auto* const request = new GuiRequestEvent(nullptr, round);
        ASSERT_EQ(request->intParam1, -1);
        ASSERT_EQ(request->stringParam1, "");
        ASSERT_EQ(request->ptrParam1, nullptr);
        ASSERT_EQ(request->waitCondition(), nullptr);
        request->intParam1 = round;
        request->stringParam1 = "a text that is too long to be kept inside the string object";
        request->ptrParam1 = request;
        request->setWaitCondition(reinterpret_cast<Wait*>(request));
        delete request;
    }
}

TEST(GuiRequestEventTest, HasNoWaitConditionAtFirst)
{
    GuiRequestEvent request(nullptr, 0);
    EXPECT_EQ(request.waitCondition(), nullptr);

    Wait condition;
    request.setWaitCondition(&condition);
    EXPECT_EQ(request.waitCondition(), &condition);
}

TEST(GuiRequestEventTest, WithoutAConditionWaitingAndSignallingDoNothing)
{
    GuiRequestEvent request(nullptr, 0);
    request.signalComplete();
    request.waitForCompletion();
}

TEST(GuiRequestEventTest, WaitsUntilCompletionIsSignalled)
{
    Wait condition;
    GuiRequestEvent request(nullptr, 0);
    request.setWaitCondition(&condition);
    test::Worker worker([&] { request.waitForCompletion(); });
    EXPECT_TRUE(worker.isBlocked());

    request.signalComplete();
    worker.join();
}

TEST(GuiRequestEventTest, ASignalThatComesFirstIsKept)
{
    Wait condition;
    GuiRequestEvent request(nullptr, 0);
    request.setWaitCondition(&condition);
    request.signalComplete();
    request.waitForCompletion();
}

TEST(GuiRequestEventTest, ADerivedRecordIsDeletedThroughItsBase)
{
    std::atomic<int> live{0};
    GuiRequestEvent* const request = new test::CountedRequest(nullptr, 0, live);
    delete request;
    EXPECT_EQ(live, 0);
}

TEST(GuiRequestEventTest, ARecordMayBeDeletedOnAnotherThread)
{
    for (int round = 0; round < 200; ++round) {
        auto* const request = new GuiRequestEvent(nullptr, 0);
        request->stringParam3 = "a text that is too long to be kept inside the string object";
        std::thread([=] { delete request; }).join();
    }
}
