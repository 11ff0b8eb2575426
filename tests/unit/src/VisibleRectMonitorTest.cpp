#include "VisibleRectMonitor.h"

#include "doubles/Screen.h"
#include "support/SteppedLoop.h"
#include "utilities/Rect.h"

#include <gmock/gmock.h>

using DisplayAPI::VisibleRectMonitor;
using DisplayAPIUtils::Rect;
using doubles::Screen;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class VisibleRectMonitorTest : public test::SteppedTest {
protected:
    VisibleRectMonitorTest()
    {
        first.widget()->Resize({10, 20, 29, 24});
        second.widget()->Resize({0, 0, 239, 127});
    }

    Screen first{"first"};
    Screen second{"second"};
    VisibleRectMonitor monitor;
    const Rect FIRST{10, 20, 20, 5};
    const Rect SECOND{0, 0, 240, 128};
};

} // namespace

TEST_F(VisibleRectMonitorTest, KnowsNothingAtFirst)
{
    EXPECT_THAT(monitor.getVisibleRects(), IsEmpty());
}

TEST_F(VisibleRectMonitorTest, AppendsTheRectangleOfTheWidgetByPositionAndSize)
{
    monitor.update(first);
    monitor.update(second);
    EXPECT_THAT(monitor.getVisibleRects(), ElementsAre(FIRST, SECOND));
}

TEST_F(VisibleRectMonitorTest, ASecondUpdateAppendsAgain)
{
    monitor.update(first);
    first.widget()->Resize({0, 0, 9, 9});
    monitor.update(first);
    EXPECT_THAT(monitor.getVisibleRects(), ElementsAre(FIRST, Rect(0, 0, 10, 10)));
}

TEST_F(VisibleRectMonitorTest, ARectangleStaysWhenItsWidgetMoves)
{
    monitor.update(first);
    first.widget()->Resize({0, 0, 9, 9});
    EXPECT_THAT(monitor.getVisibleRects(), ElementsAre(FIRST));
}

TEST_F(VisibleRectMonitorTest, ADisplayableWithoutAWidgetIsSkipped)
{
    first.getPrivateImpl()->dropWidget();
    monitor.update(first);
    monitor.update(second);
    EXPECT_THAT(monitor.getVisibleRects(), ElementsAre(SECOND));
}

TEST_F(VisibleRectMonitorTest, ADisplayableWithoutAPrivateSideIsSkipped)
{
    first.dropPrivate();
    monitor.update(first);
    monitor.update(second);
    EXPECT_THAT(monitor.getVisibleRects(), ElementsAre(SECOND));
}

TEST_F(VisibleRectMonitorTest, RemovesTheDisplayablesRectangle)
{
    monitor.update(first);
    monitor.update(second);
    monitor.remove(first);
    EXPECT_THAT(monitor.getVisibleRects(), ElementsAre(SECOND));
    monitor.remove(second);
    EXPECT_THAT(monitor.getVisibleRects(), IsEmpty());
}

TEST_F(VisibleRectMonitorTest, RemovesTheRightOneWhereAnotherWasSkipped)
{
    Screen bare("bare");
    bare.getPrivateImpl()->dropWidget();
    monitor.update(bare);
    monitor.update(first);
    monitor.update(second);
    monitor.remove(second);
    EXPECT_THAT(monitor.getVisibleRects(), ElementsAre(FIRST));
}

TEST_F(VisibleRectMonitorTest, RemovingWhatItDoesNotKnowDoesNothing)
{
    monitor.update(first);
    monitor.remove(second);
    EXPECT_THAT(monitor.getVisibleRects(), ElementsAre(FIRST));
}

TEST_F(VisibleRectMonitorTest, RemovesADisplayableWhosePrivateSideIsGone)
{
    monitor.update(first);
    monitor.update(second);
    first.dropPrivate();
    monitor.remove(first);
    EXPECT_THAT(monitor.getVisibleRects(), ElementsAre(SECOND));
}

TEST_F(VisibleRectMonitorTest, ClearForgetsEverything)
{
    monitor.update(first);
    monitor.clear();
    EXPECT_THAT(monitor.getVisibleRects(), IsEmpty());
    monitor.remove(first);
    monitor.update(second);
    EXPECT_THAT(monitor.getVisibleRects(), ElementsAre(SECOND));
}
