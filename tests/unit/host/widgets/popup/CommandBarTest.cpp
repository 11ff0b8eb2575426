#include "host/widgets/popup/CommandBar.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "support/Keys.h"
#include "support/RunningToolkit.h"
#include "widgets/KestrelApplication.h"

#include <gmock/gmock.h>

using host::CommandBar;
using test::press;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

class CommandBarTest : public testing::Test {
protected:
    CommandBarTest()
    {
        bar.setMessageTarget(&listener);
        bar.Resize(host::rectAt(0, 0, 200, 18));
    }

    /// The texts of the commands that a bar of that width shows.
    std::vector<std::string> shownOn(int width)
    {
        gpPresent->Add(&bar);
        bar.Resize(host::rectAt(0, 0, width, 18));
        host::Lcd::current()->paint();
        std::vector<std::string> texts;
        for (const host::TextRun& run : host::Lcd::current()->picture().texts)
            texts.push_back(run.text);
        return texts;
    }

    test::StartedToolkit toolkit;
    test::Listener listener;
    CommandBar bar;
};

} // namespace

TEST_F(CommandBarTest, WithoutCommandsTakesNeitherFocusNorKeys)
{
    EXPECT_EQ(bar.current(), -1);
    EXPECT_FALSE(bar.takesFocus());
    EXPECT_FALSE(press(bar, "!"));
    EXPECT_FALSE(press(bar, ">"));
    EXPECT_THAT(listener.heard, IsEmpty());
}

TEST_F(CommandBarTest, LeftAndRightMoveWithinTheCommandsAndOkChooses)
{
    bar.setCommands(test::pegs({"Yes", "No", "Later"}));
    EXPECT_EQ(bar.current(), 0);
    EXPECT_FALSE(press(bar, "<"));
    EXPECT_TRUE(press(bar, ">>"));
    EXPECT_FALSE(press(bar, ">"));
    EXPECT_TRUE(press(bar, "!"));
    EXPECT_THAT(listener.heard,
                ElementsAre(Pair(PM_CURRENT_CHANGED, 1), Pair(PM_CURRENT_CHANGED, 2), Pair(PM_CLICKED, 2)));
}

TEST_F(CommandBarTest, MovesTheOtherWayWhereTheLanguageIsReadFromTheRight)
{
    KestrelApplication& application = *KestrelApplication::getCurrentApplication();
    application.setLocale(test::peg("ar"));
    bar.setCommands(test::pegs({"Yes", "No"}));
    EXPECT_FALSE(press(bar, ">"));
    EXPECT_TRUE(press(bar, "<"));
    EXPECT_EQ(bar.current(), 1);
    application.setLocale(PegString());
}

TEST_F(CommandBarTest, BeginsAnewWithNewCommands)
{
    bar.setCommands(test::pegs({"Yes", "No"}));
    bar.setCurrent(1);
    bar.setCommands(test::pegs({"Call"}));
    EXPECT_EQ(bar.current(), 0);
    EXPECT_EQ(bar.text(0), test::peg("Call"));
    bar.setCommands({});
    EXPECT_EQ(bar.current(), -1);
}

TEST_F(CommandBarTest, ShowsAllCommandsWhereEachHasFourPixelsOnEitherSide)
{
    constexpr int PADDING = 4;
    const auto commands = test::pegs({"Yes", "No"});
    bar.setCommands(commands);
    int needed = 0;
    for (const PegString& command : commands)
        needed += host::Lcd::current()->textWidth(CommandBar::font(), command) + 2 * PADDING;
    EXPECT_THAT(shownOn(needed), ElementsAre("Yes", "No"));
    EXPECT_THAT(shownOn(needed - 1), ElementsAre("Yes"));
}

TEST_F(CommandBarTest, IgnoresCommandsThatThereAreNot)
{
    bar.setCommands(test::pegs({"Yes", "No"}));
    bar.setCurrent(2);
    bar.setCurrent(-1);
    EXPECT_EQ(bar.current(), 0);
}

TEST_F(CommandBarTest, LeavesOtherKeysToItsHolder)
{
    bar.setCommands(test::pegs({"Yes"}));
    for (const char* key : {"^", "v", "5", "#"})
        EXPECT_FALSE(press(bar, key)) << key;
}

TEST_F(CommandBarTest, TakesAndGivesBackSingleCommands)
{
    bar.append(test::peg("Yes"));
    bar.append(test::peg("No"));
    bar.append(test::peg("Later"));
    EXPECT_EQ(bar.current(), 0);
    bar.setCurrent(2);
    bar.remove(0);
    EXPECT_EQ(bar.current(), 1);
    bar.remove(1);
    EXPECT_EQ(bar.current(), 0);
    EXPECT_EQ(bar.text(0), test::peg("No"));
    bar.remove(1);
    bar.remove(-1);
    EXPECT_EQ(bar.count(), 1);
    bar.remove(0);
    EXPECT_EQ(bar.current(), -1);
    bar.append(test::peg("Call"));
    EXPECT_EQ(bar.current(), 0);
}

TEST_F(CommandBarTest, MakesRoomForANewText)
{
    bar.append(test::peg("Yes"));
    bar.append(test::peg("No"));
    bar.setCurrent(1);
    bar.setText(0, test::peg("Certainly not"));
    EXPECT_EQ(bar.current(), 1);
    EXPECT_THAT(shownOn(60), ElementsAre("No"));
    bar.remove(0);
    EXPECT_THAT(shownOn(60), ElementsAre("No"));
}
