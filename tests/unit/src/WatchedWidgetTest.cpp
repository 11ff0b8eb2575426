#include "DisplayAPI/WatchedWidget.h"

#include "DisplayAPI/OwnershipDelegate.h"
#include "widgets/TickerWidget.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>

using namespace DisplayAPI;

namespace {

struct Bell {
    explicit Bell(int pitch) : tone(pitch) {}
    virtual ~Bell() = default;

    int tone;
};

struct LoudBell : Bell {
    using Bell::Bell;
};

bool isWatched(const Bell& bell)
{
    return dynamic_cast<const Watched&>(bell).isWatched();
}

class WatchedWidgetTest : public testing::Test {
protected:
    std::optional<WatchedWidget<Bell>> bell{std::in_place, std::in_place_type<LoudBell>, 440};
};

} // namespace

TEST_F(WatchedWidgetTest, MakesTheWidgetThatItIsToldTo)
{
    const std::unique_ptr<Bell> widget(bell->get());
    EXPECT_NE(dynamic_cast<LoudBell*>(widget.get()), nullptr);
    EXPECT_EQ((*bell)->tone, 440);
    EXPECT_EQ(&**bell, widget.get());
    EXPECT_FALSE(*bell == nullptr);
}

TEST_F(WatchedWidgetTest, IsNullWhenTheWidgetHasDied)
{
    delete bell->get();
    EXPECT_EQ(bell->get(), nullptr);
    EXPECT_TRUE(*bell == nullptr);
}

TEST_F(WatchedWidgetTest, WidgetOutlivesItsWatcher)
{
    const std::unique_ptr<Bell> widget(bell->get());
    EXPECT_TRUE(isWatched(*widget));
    bell.reset();
    EXPECT_FALSE(isWatched(*widget));
}

TEST_F(WatchedWidgetTest, WatchGoesOnInAnotherPlace)
{
    WatchedWidget<Bell> other(std::move(*bell));
    EXPECT_TRUE(*bell == nullptr);
    bell.reset();
    EXPECT_TRUE(isWatched(*other));
    delete other.get();
    EXPECT_TRUE(other == nullptr);
}

TEST_F(WatchedWidgetTest, OwnershipLiesOverItsSlot)
{
    {
        const OwnershipDelegate<Bell> ownership(bell->slot(), true);
    }
    EXPECT_TRUE(*bell == nullptr);
}

TEST(WatchedWidget, WatchesWidgetsOfThePlatform)
{
    WatchedWidget<TickerWidget> ticker(std::in_place_type<TickerWidget>, PegString());
    const std::unique_ptr<PegThing> parent = std::make_unique<PegThing>();
    parent->Add(ticker.get());
    EXPECT_NE(dynamic_cast<const Watched*>(parent->First()), nullptr);
    delete parent->First();
    EXPECT_TRUE(ticker == nullptr);
}
