#include "DisplayAPI/OwnershipDelegate.h"

#include <gtest/gtest.h>

using namespace DisplayAPI;

namespace {

struct Counted {
    Counted() { ++gLive; }
    ~Counted() { --gLive; }

    static int gLive;
};

int Counted::gLive = 0;

using Delegate = OwnershipDelegate<Counted>;

} // namespace

TEST(OwnershipDelegateTest, DeletesTheWidgetThatItOwnsAndLeavesTheOwnersPointerAsItIs)
{
    auto* widget = new Counted;
    const Counted* const address = widget;
    {
        Delegate delegate(&widget, true);
        EXPECT_TRUE(delegate.hasOwnership());
    }
    EXPECT_EQ(Counted::gLive, 0);
    EXPECT_EQ(widget, address);
}

TEST(OwnershipDelegateTest, DeletesNothingThatItDoesNotOwn)
{
    Counted widget;
    Counted* pointer = &widget;
    {
        Delegate delegate(&pointer, false);
        EXPECT_FALSE(delegate.hasOwnership());
    }
    EXPECT_EQ(Counted::gLive, 1);
}

TEST(OwnershipDelegateTest, DeletesNothingOnceReleased)
{
    Counted widget;
    Counted* pointer = &widget;
    {
        Delegate delegate(&pointer, true);
        delegate.releaseOwnership();
        EXPECT_FALSE(delegate.hasOwnership());
    }
    EXPECT_EQ(Counted::gLive, 1);
}

TEST(OwnershipDelegateTest, GainingAnswersTrueAndDeletesAgain)
{
    auto* widget = new Counted;
    {
        Delegate delegate(&widget, false);
        EXPECT_TRUE(delegate.gainOwnership());
        EXPECT_TRUE(delegate.gainOwnership());
        EXPECT_TRUE(delegate.hasOwnership());
    }
    EXPECT_EQ(Counted::gLive, 0);
}

TEST(OwnershipDelegateTest, DeletesTheWidgetThatThePointerDesignatesAtTheEnd)
{
    Counted* widget = nullptr;
    {
        Delegate delegate(&widget, true);
        widget = new Counted;
    }
    EXPECT_EQ(Counted::gLive, 0);
}

TEST(OwnershipDelegateTest, NullPointersAreLeftAlone)
{
    Counted* widget = nullptr;
    const Delegate withoutWidget(&widget, true);
    const Delegate withoutPointer(nullptr, true);
    EXPECT_TRUE(withoutWidget.hasOwnership());
    EXPECT_TRUE(withoutPointer.hasOwnership());
}

TEST(OwnershipDelegateTest, CanBeDeletedThroughItsInterface)
{
    auto* widget = new Counted;
    const OwnershipIfc* const delegate = new Delegate(&widget, true);
    delete delegate;
    EXPECT_EQ(Counted::gLive, 0);
}
