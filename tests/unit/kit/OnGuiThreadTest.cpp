#include "kit/OnGuiThread.h"

#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/kit/KitTest.h"

#include <stdexcept>

namespace kit = DisplayAPI::kit;
using DisplayAPI::Widget;

using OnGuiThreadTest = test::KitTest;

TEST_F(OnGuiThreadTest, RunsAtOnceOnTheGuiThread)
{
    EXPECT_EQ(kit::onGuiThread([] { return 7; }), 7);
    bool ran = false;
    EXPECT_TRUE(kit::onGuiThread([&] { ran = true; }));
    EXPECT_TRUE(ran);
}

TEST_F(OnGuiThreadTest, BringsTheResultToAnotherThread)
{
    runBesideLoop([] {
        EXPECT_FALSE(Widget::isGuiThread());
        EXPECT_EQ(kit::onGuiThread([] { return Widget::isGuiThread(); }), true);
    });
}

TEST_F(OnGuiThreadTest, ComesBehindWhatTheCallerHasAskedForBefore)
{
    runBesideLoop([this] {
        list.append("Ada");
        EXPECT_EQ(kit::onGuiThread([this] { return list.size(); }), 1);
    });
}

TEST_F(OnGuiThreadTest, ThrowsToTheCallerWhatTheWorkThrows)
{
    const auto fail = []() -> int { throw std::runtime_error("no such row"); };
    EXPECT_THROW(kit::onGuiThread(fail), std::runtime_error);
    runBesideLoop([&] { EXPECT_THROW(kit::onGuiThread(fail), std::runtime_error); });
}

TEST(OnGuiThreadEndTest, HasNoResultWhereTheDisplayGoesFirst)
{
    auto phone = std::make_unique<kit::Phone>(kit::PhoneSettings{.hardware = "any"});
    std::optional<int> result = 1;
    bool ran = true;
    test::Worker first([&] { result = kit::onGuiThread([] { return 2; }); });
    test::Worker second([&] { ran = kit::onGuiThread([] {}); });
    EXPECT_TRUE(first.isBlocked());
    EXPECT_TRUE(second.isBlocked());
    phone.reset();
    first.join();
    second.join();
    EXPECT_EQ(result, std::nullopt);
    EXPECT_FALSE(ran);
    Widget::setGuiThreadId(0);
}
