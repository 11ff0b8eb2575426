#include "kit/Subscription.h"

#include "DisplayAPI/DisplayablePrivate.h"
#include "support/Gate.h"
#include "unit/kit/KitTest.h"

#include <memory>

namespace kit = DisplayAPI::kit;
using DisplayAPI::Command;
using DisplayAPI::Displayable;
using DisplayAPI::DisplayablePrivate;

namespace {

class SubscriptionTest : public test::KitTest {
protected:
    /// As if the user had chosen something. From any thread.
    void raise()
    {
        kit::onGuiThread(
            [this] { dynamic_cast<DisplayablePrivate*>(list.getPrivateImpl())->postCommand(&command, &list); });
    }
};

} // namespace

TEST_F(SubscriptionTest, HearsCommandAndDisplayableOnAnotherThread)
{
    test::Gate heard;
    const kit::Subscription subscription(list, [&](Command* what, Displayable* where) {
        EXPECT_EQ(what, &command);
        EXPECT_EQ(where, &list);
        EXPECT_FALSE(DisplayAPI::Widget::isGuiThread());
        heard.open();
    });
    raise();
    EXPECT_TRUE(heard.wait());
}

TEST_F(SubscriptionTest, TakesAHandlerThatWantsTheCommandOnly)
{
    test::Gate heard;
    const kit::Subscription subscription(list, [&](Command* what) {
        EXPECT_EQ(what, &command);
        heard.open();
    });
    raise();
    EXPECT_TRUE(heard.wait());
}

TEST_F(SubscriptionTest, EndsOnTheGuiThreadOnlyWhenASlowHandlerThatNeedsThatThreadIsThrough)
{
    test::Gate begun;
    int rows = -1;
    {
        const kit::Subscription subscription(list, [&](Command*) {
            begun.open();
            test::beSlow();
            rows = list.size();
        });
        raise();
        EXPECT_TRUE(begun.wait());
    }
    EXPECT_EQ(rows, 0);
}

TEST_F(SubscriptionTest, EndsOnAnotherThreadOnlyWhenASlowHandlerIsThrough)
{
    runBesideLoop([this] {
        test::Gate begun;
        int rows = -1;
        {
            const kit::Subscription subscription(list, [&](Command*) {
                begun.open();
                test::beSlow();
                rows = list.size();
            });
            raise();
            EXPECT_TRUE(begun.wait());
        }
        EXPECT_EQ(rows, 0);
    });
}

TEST_F(SubscriptionTest, HearsNothingAfterItsEnd)
{
    std::atomic<int> heard = 0;
    kit::Subscription subscription(list, [&](Command*) { ++heard; });
    raise();
    subscription.end();
    const int before = heard;
    raise();
    kit::offGuiThread([] { kit::Fence().wait(); });
    EXPECT_EQ(heard, before);
    subscription.end();
}

TEST_F(SubscriptionTest, MayBeDeletedByItsOwnHandler)
{
    std::atomic<int> heard = 0;
    std::unique_ptr<kit::Subscription> subscription;
    test::Gate deleted;
    subscription = std::make_unique<kit::Subscription>(list, [&, alive = std::make_shared<int>(1)](Command*) {
        subscription.reset();
        heard += *alive;
        deleted.open();
    });
    runBesideLoop([&] {
        raise();
        raise();
        EXPECT_TRUE(deleted.wait());
        raise();
        kit::Fence().wait();
    });
    EXPECT_EQ(heard, 1);
}

TEST_F(SubscriptionTest, MayBeEndedByAnothersHandler)
{
    std::atomic<int> heard = 0;
    test::Gate ended;
    std::unique_ptr<kit::Subscription> victim;
    const kit::Subscription ender(list, [&](Command*) {
        victim.reset();
        ended.open();
    });
    victim = std::make_unique<kit::Subscription>(list, [&](Command*) { ++heard; });
    runBesideLoop([&] {
        raise();
        EXPECT_TRUE(ended.wait());
        kit::Fence().wait();
    });
    EXPECT_EQ(heard, 0);
}
