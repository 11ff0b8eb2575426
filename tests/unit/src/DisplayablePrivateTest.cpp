#include "DisplayAPI/DisplayablePrivate.h"

#include "DisplayAPI/Command.h"
#include "doubles/DisplayPrivateDouble.h"
#include "doubles/Mocks.h"
#include "doubles/Recorder.h"
#include "doubles/Screen.h"
#include "utilities/Rect.h"

using namespace DisplayAPI;
using doubles::callText;
using doubles::Recorder;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A private side that overrides only what it must.
class PlainSide : public DisplayablePrivate {
public:
    PegThing* getWidget() override { return nullptr; }
    void releaseOwnership() override {}
    void gainOwnership() override {}
    void show() override {}
    void lostFocus() override {}
    using DisplayablePrivate::display;
};

class DisplayablePrivateTest : public testing::Test {
protected:
    DisplayablePrivateTest() { Recorder::instance().clear(); }

    testing::InSequence inSequence;
    PlainSide side;
    doubles::DisplayPrivateDouble display;
    testing::StrictMock<doubles::MockCommandListener> listener;
    testing::StrictMock<doubles::MockCommandListener> other;
    Command command{"command", Command::OK};
    doubles::Screen screen{"menu"};
};

} // namespace

TEST_F(DisplayablePrivateTest, IsAFullScreenWithoutCaptionAndSystemWindow)
{
    EXPECT_TRUE(side.hideOldWidgetOnFocusGained());
    EXPECT_EQ(side.widgetPosition(), 0);
    EXPECT_FALSE(side.hasCaption());
    EXPECT_FALSE(side.hasSystemWindow());
    side.setSysWindowSize(3);
    side.setSysWindowText("text", 1);
    side.enable(false);
    EXPECT_FALSE(side.hasSystemWindow());
}

TEST_F(DisplayablePrivateTest, SerialisesAsNotImplementedUnlessOverridden)
{
    EXPECT_EQ(side.serialise(), "object:\nname:Not Implemented\nend:\n");
    EXPECT_EQ(side.serialise({DisplayAPIUtils::Rect(0, 0, 10, 10)}), "object:\nname:Not Implemented\nend:\n");
}

TEST_F(DisplayablePrivateTest, SerialisingByRectanglesIsTheSidesOwnText)
{
    struct : PlainSide {
        std::string serialise() override { return "mine"; }
    } mine;
    EXPECT_EQ(static_cast<DisplayablePrivateIfc&>(mine).serialise(std::vector<DisplayAPIUtils::Rect>()), "mine");
}

TEST_F(DisplayablePrivateTest, PostsACommandToEachListenerInOrderOfAddition)
{
    side.addCommandListener(&other);
    side.addCommandListener(&listener);
    EXPECT_CALL(other, postCommandAction(&command, &screen));
    EXPECT_CALL(listener, postCommandAction(&command, &screen));
    side.postCommand(&command, &screen);
}

TEST_F(DisplayablePrivateTest, AListenerThatIsAddedTwiceHearsACommandOnce)
{
    side.addCommandListener(&listener);
    side.addCommandListener(&listener);
    EXPECT_CALL(listener, postCommandAction(&command, nullptr)).Times(1);
    side.postCommand(&command, nullptr);
}

TEST_F(DisplayablePrivateTest, ARemovedListenerHearsNothing)
{
    side.addCommandListener(&listener);
    side.addCommandListener(&other);
    side.removeCommandListener(&listener);
    side.removeCommandListener(&listener);
    EXPECT_CALL(other, postCommandAction(&command, &screen));
    side.postCommand(&command, &screen);
}

TEST_F(DisplayablePrivateTest, TellsTheAttachedDisplayOfChangesAndDismissals)
{
    PlainSide dismissed;
    side.connectDisplayChangedSignal(&display);
    side.generateDisplayChangedEvent();
    side.widgetDismissed(&dismissed);
    EXPECT_THAT(Recorder::instance().textsOf(&display),
                ElementsAre("display: displayChanged()",
                            callText("display: widgetDismissed", static_cast<DisplayablePrivateIfc*>(&dismissed))));
}

TEST_F(DisplayablePrivateTest, TellsNobodyWhileItIsAttachedToNone)
{
    side.generateDisplayChangedEvent();
    side.widgetDismissed(&side);
    side.connectDisplayChangedSignal(&display);
    side.connectDisplayChangedSignal(nullptr);
    side.generateDisplayChangedEvent();
    side.widgetDismissed(&side);
    side.connectDisplayChangedSignal(&display);
    side.disjoin();
    side.generateDisplayChangedEvent();
    side.widgetDismissed(&side);
    EXPECT_THAT(Recorder::instance().textsOf(&display), IsEmpty());
}

TEST_F(DisplayablePrivateTest, JoiningTakesOverTheOthersDisplay)
{
    PlainSide attached;
    attached.connectDisplayChangedSignal(&display);
    side.join(&attached);
    EXPECT_EQ(side.display(), &display);
    EXPECT_EQ(attached.display(), &display);
}

TEST_F(DisplayablePrivateTest, ADisplayThatIsGoneIsToldNothing)
{
    auto gone = std::make_unique<doubles::DisplayPrivateDouble>();
    side.connectDisplayChangedSignal(gone.get());
    gone.reset();
    Recorder::instance().clear();
    side.generateDisplayChangedEvent();
    side.widgetDismissed(&side);
    EXPECT_EQ(side.display(), nullptr);
    EXPECT_THAT(Recorder::instance().texts(), IsEmpty());
}

TEST_F(DisplayablePrivateTest, OneThatHasJoinedAnotherTellsNothingToADisplayThatIsGone)
{
    auto gone = std::make_unique<doubles::DisplayPrivateDouble>();
    PlainSide attached;
    PlainSide late;
    attached.connectDisplayChangedSignal(gone.get());
    side.join(&attached);
    attached.disjoin();
    gone.reset();
    Recorder::instance().clear();
    side.generateDisplayChangedEvent();
    late.join(&side);
    late.widgetDismissed(&late);
    EXPECT_EQ(late.display(), nullptr);
    EXPECT_THAT(Recorder::instance().texts(), IsEmpty());
}

TEST_F(DisplayablePrivateTest, TheEndOfAnotherDisplayChangesNothing)
{
    side.connectDisplayChangedSignal(&display);
    doubles::DisplayPrivateDouble().displayChanged();
    side.generateDisplayChangedEvent();
    EXPECT_THAT(Recorder::instance().textsOf(&display), ElementsAre("display: displayChanged()"));
}
