#include "kit/Phone.h"

#include "DisplayAPI/DisplayablePrivate.h"
#include "host/toolkit/Loop.h"
#include "kit/Subscription.h"
#include "kit/WayBack.h"
#include "unit/kit/KitTest.h"

#include <stop_token>

namespace kit = DisplayAPI::kit;
using DisplayAPI::Command;
using DisplayAPI::List;
using DisplayAPI::Widget;

using KitPhoneTest = test::KitTest;

TEST_F(KitPhoneTest, MakesTheCallingThreadTheGuiThread)
{
    EXPECT_TRUE(Widget::isGuiThread());
    bool isGuiThread = true;
    std::jthread([&] { isGuiThread = Widget::isGuiThread(); }).join();
    EXPECT_FALSE(isGuiThread);
}

TEST_F(KitPhoneTest, ShowsTheFirstScreenWhileTheApplicationWorks)
{
    phone.run(list, [this] {
        list.append("Ada");
        EXPECT_EQ(phone.display().getCurrent(), &list);
        EXPECT_NE(phone.display().serialise().find("string0:Ada"), std::string::npos);
        phone.quit();
    });
}

/// As Ctrl-C does it: in the middle of the application's calls, each of which waits for the loop that ends.
TEST_F(KitPhoneTest, WaitsForAnApplicationThatIsInTheMiddleOfWaitingCalls)
{
    int calls = 0;
    phone.run(list, [&](const std::stop_token& end) {
        host::Loop::quit();
        while (!end.stop_requested())
            calls += list.size() == 0 ? 1 : 0;
        for (int i = 0; i < 100; ++i)
            calls += list.size() == 0 ? 1 : 0;
    });
    EXPECT_GE(calls, 100);
}

TEST_F(KitPhoneTest, RunsAgain)
{
    int runs = 0;
    for (int i = 0; i < 3; ++i)
        runBesideLoop([&] { ++runs; });
    EXPECT_EQ(runs, 3);
}

TEST(KitPhoneEndTest, ScreensAndSubscriptionsGoInTheReverseOrderOfTheirMaking)
{
    std::atomic<int> titles = 0;
    {
        kit::Phone phone({.hardware = "WP1"});
        List list(kit::listType(kit::WayBack::EVERYWHERE));
        Command command("Call", Command::OK);
        const kit::Subscription choice(list, [&](Command*) {
            test::beSlow();
            list.setTitle("Called");
            titles += list.size() >= 0 ? 1 : 0;
        });
        phone.run(list, [&] {
            list.append("Ada");
            kit::onGuiThread([&] {
                dynamic_cast<DisplayAPI::DisplayablePrivate*>(list.getPrivateImpl())->postCommand(&command, &list);
            });
            phone.quit();
        });
    }
    EXPECT_LE(titles, 1);
    EXPECT_EQ(DisplayAPI::Display::latest(), nullptr);
    Widget::setGuiThreadId(0);
}
