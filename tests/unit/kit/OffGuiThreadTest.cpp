#include "kit/OffGuiThread.h"

#include "host/toolkit/Loop.h"
#include "support/Worker.h"
#include "unit/kit/KitTest.h"

namespace kit = DisplayAPI::kit;
using DisplayAPI::Widget;

class OffGuiThreadTest : public test::KitTest {};
using OffGuiThreadDeathTest = OffGuiThreadTest;

TEST_F(OffGuiThreadTest, RunsTheLoopForWorkThatWaitsForIt)
{
    bool done = false;
    kit::offGuiThread([&] {
        EXPECT_FALSE(Widget::isGuiThread());
        list.append("Ada");
        EXPECT_EQ(list.size(), 1);
        done = true;
    });
    EXPECT_TRUE(done);
    EXPECT_FALSE(host::Loop::isRunning());
}

TEST_F(OffGuiThreadTest, IsNotCutShortByARequestToEndTheLoop)
{
    int rows = 0;
    kit::offGuiThread([&] {
        for (int i = 0; i < 3; ++i) {
            phone.quit();
            list.append("Ada");
            rows = list.size();
        }
    });
    EXPECT_EQ(rows, 3);
}

TEST_F(OffGuiThreadTest, RunsAtOnceOnAnyOtherThread)
{
    runBesideLoop([] {
        const auto here = std::this_thread::get_id();
        kit::offGuiThread([&] { EXPECT_EQ(std::this_thread::get_id(), here); });
    });
}

TEST(OffGuiThreadWithoutDisplayTest, RunsAtOnce)
{
    Widget::setGuiThreadId();
    bool done = false;
    kit::offGuiThread([&, here = std::this_thread::get_id()] { done = std::this_thread::get_id() == here; });
    EXPECT_TRUE(done);
    Widget::setGuiThreadId(0);
}

TEST_F(OffGuiThreadDeathTest, SaysSoWhereTheGuiThreadWouldWaitInItsOwnLoop)
{
    EXPECT_DEATH(runBesideLoop([] { kit::onGuiThread([] { kit::offGuiThread([] {}); }); }),
                 "cannot wait within its own loop");
}
