#include "PopupPlayerPrivate.h"

#include "DisplayAPI/PopupPlayer.h"
#include "DisplayAPI/ScreenText.h"

#include <gtest/gtest.h>

using namespace DisplayAPI;

namespace {

/// Deleted as its popup deletes it.
struct PopupPlayerPrivateTest : testing::Test {
    PopupPlayerPrivate* const side = new PopupPlayerPrivate;
    PopupPlayer player{side};
};

TEST_F(PopupPlayerPrivateTest, HasNoWidgetAndNobodyElseOwnsIt)
{
    EXPECT_EQ(side->getWidget(), nullptr);
    EXPECT_TRUE(side->hasOwnership());
    side->releaseOwnership();
    EXPECT_TRUE(side->hasOwnership());
    side->gainOwnership();
    EXPECT_TRUE(side->hasOwnership());
}

TEST_F(PopupPlayerPrivateTest, ShowsAndHidesNothing)
{
    side->show();
    side->lostFocus();
    EXPECT_EQ(side->getWidget(), nullptr);
}

TEST_F(PopupPlayerPrivateTest, OtherwiseIsAsEveryDisplayable)
{
    EXPECT_TRUE(side->hideOldWidgetOnFocusGained());
    EXPECT_EQ(side->widgetPosition(), 0);
    EXPECT_EQ(side->serialise(), screen::object("Not Implemented", {}));
}

TEST_F(PopupPlayerPrivateTest, IsOneObjectWhicheverWayItIsReached)
{
    DisplayablePrivateIfc* const asDisplayable = static_cast<DisplayablePrivate*>(side);
    EXPECT_EQ(asDisplayable, static_cast<PopupPlayerPrivateIfc*>(side));
    EXPECT_EQ(asDisplayable, player.getPrivateImpl());
}

} // namespace
