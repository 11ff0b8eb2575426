#include "simulator/script/HostPhone.h"

#include "DisplayAPI/Display.h"
#include "doubles/DisplayPrivateDouble.h"
#include "doubles/Recorder.h"
#include "host/clock/Clock.h"
#include "host/toolkit/Loop.h"
#include "support/GuiLoop.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"

#include <gmock/gmock.h>

#include <atomic>
#include <memory>
#include <optional>

namespace {

using DisplayAPI::Display;
using doubles::DisplayPrivateDouble;
using doubles::Recorder;
using host::Clock;
using simulator::HostPhone;

/// Empty where there is no screen.
std::string wordsOf(const simulator::ScreenPtr& screen)
{
    return screen != nullptr ? screen->words.displayables : std::string();
}

/// A telephone whose loop runs, on the virtual clock.
class HostPhoneTest : public testing::Test {
protected:
    HostPhoneTest()
    {
        Clock::instance().makeVirtual();
        Recorder::instance().clear();
        gui.call([this] { phone.emplace(*host::Lcd::current()); });
    }

    ~HostPhoneTest() override
    {
        gui.call([this] { phone.reset(); });
        Clock::instance().makeReal();
    }

    test::GuiLoop gui;
    std::optional<HostPhone> phone;
};

TEST_F(HostPhoneTest, DisplayablesAreAskedForOnTheGuiThread)
{
    auto display = std::make_unique<Display>(new DisplayPrivateDouble);
    EXPECT_EQ(wordsOf(phone->screen()), "1");
    gui.call([] {}); // a screen is read anew when the GUI thread has done something
    EXPECT_EQ(wordsOf(phone->screen()), "2");
    gui.call([&] { display.reset(); });
    EXPECT_EQ(Recorder::instance().last("display: serialise").thread, gui.threadId());
}

TEST_F(HostPhoneTest, WithoutADisplayThereAreNoDisplayables)
{
    EXPECT_EQ(wordsOf(phone->screen()), "");
    gui.call([] { const Display gone(new DisplayPrivateDouble); });
    EXPECT_EQ(wordsOf(phone->screen()), "");
}

TEST_F(HostPhoneTest, DisplayMayComeAndGoWhileItIsAskedFor)
{
    std::atomic<bool> isOver = false;
    test::Worker script([&] {
        while (!isOver)
            wordsOf(phone->screen());
    });
    for (int round = 0; round < 200; ++round)
        gui.call([] { const Display display(new DisplayPrivateDouble); });
    isOver = true;
    script.join();
}

TEST_F(HostPhoneTest, GuiThreadThatStandsStillIsToldOnce)
{
    int told = 0;
    gui.post([] { test::waitUntil([] { return host::Loop::busyFor() > 3 * host::Loop::STANDSTILL / 2; }); });
    EXPECT_TRUE(phone->settle([&] { ++told; }));
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(phone->settle([&] { ++told; }));
    EXPECT_EQ(told, 1);
}

TEST_F(HostPhoneTest, WhoIsGoneIsNotAsked)
{
    phone->leave();
    EXPECT_FALSE(phone->isThere());
    EXPECT_EQ(wordsOf(phone->screen()), "");
}

TEST_F(HostPhoneTest, AdvanceMovesTheClockByExactlyThat)
{
    const std::int64_t start = Clock::instance().now();
    EXPECT_TRUE(phone->advance(36'000'001));
    EXPECT_EQ(Clock::instance().now() - start, 36'000'001);
    EXPECT_TRUE(phone->advance(0));
    EXPECT_EQ(Clock::instance().now() - start, 36'000'001);
}

TEST_F(HostPhoneTest, PassMovesAVirtualClockAsWell)
{
    const std::int64_t start = Clock::instance().now();
    phone->pass(2'500);
    EXPECT_EQ(Clock::instance().now() - start, 2'500);
}

TEST_F(HostPhoneTest, ClockIsNotMovedWhenTheTelephoneIsGone)
{
    const std::int64_t start = Clock::instance().now();
    phone->leave();
    phone->pass(1'000);
    phone->advance(1'000);
    EXPECT_EQ(Clock::instance().now(), start);
}

TEST_F(HostPhoneTest, RealClockGoesByItself)
{
    Clock::instance().makeReal();
    EXPECT_FALSE(phone->advance(10));
    const std::int64_t start = Clock::instance().now();
    phone->pass(20);
    EXPECT_GE(Clock::instance().now() - start, 19);
}

TEST_F(HostPhoneTest, NobodyWaitsForARealClockWhenTheTelephoneIsGone)
{
    Clock::instance().makeReal();
    test::Worker script([&] { phone->pass(24 * 60 * 60 * 1'000); });
    phone->leave();
    script.join();
}

using HostPhoneStopTest = test::SteppedTest;

TEST_F(HostPhoneStopTest, WhoAsksALoopThatStandsStillIsLetGoWhenTheTelephoneGoes)
{
    HostPhone phone(*host::Lcd::current());
    std::string answer = "none";
    test::Worker script([&] { answer = wordsOf(phone.screen()); });
    gui.waitForQueued(1);
    EXPECT_TRUE(script.isBlocked());
    phone.leave();
    script.join();
    EXPECT_EQ(answer, "");
}

TEST_F(HostPhoneStopTest, LateAnswerIsNobodys)
{
    HostPhone phone(*host::Lcd::current());
    Display display(new DisplayPrivateDouble);
    test::Worker script([&] { EXPECT_EQ(wordsOf(phone.screen()), ""); });
    gui.waitForQueued(1);
    phone.leave();
    script.join();
    gui.runAll();
    EXPECT_EQ(Recorder::instance().count("display: serialise"), 1);
}

} // namespace
