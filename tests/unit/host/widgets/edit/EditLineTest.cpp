#include "host/widgets/edit/EditLine.h"

#include "support/Keys.h"
#include "support/RunningToolkit.h"
#include "support/VirtualTime.h"

#include <gmock/gmock.h>

using host::EditLine;
using host::InputMode;
using test::peg;
using test::press;

namespace {

class EditLineTest : public testing::Test, protected test::VirtualTime {
protected:
    EditLineTest()
    {
        line.setMessageTarget(&listener);
        line.setFocus(true);
    }

    std::string text() const { return ICC::fromUNICODEtoUTF8(line.text()); }

    test::StartedToolkit toolkit;
    test::Listener listener;
    EditLine line;
};

} // namespace

TEST_F(EditLineTest, TypesNumbersAtFirst)
{
    EXPECT_TRUE(press(line, "0301*#"));
    EXPECT_EQ(text(), "0301*#");
    EXPECT_EQ(line.cursor(), 6);
}

TEST_F(EditLineTest, TellsTheLengthAfterEachChange)
{
    press(line, "47");
    line.deleteBack();
    EXPECT_THAT(listener.heard,
                testing::ElementsAre(testing::Pair(PM_CURRENT_CHANGED, 1), testing::Pair(PM_CURRENT_CHANGED, 2),
                                     testing::Pair(PM_CURRENT_CHANGED, 1)));
}

TEST_F(EditLineTest, IsTheSourceOfWhatItTells)
{
    press(line, "4");
    EXPECT_EQ(listener.source, &line);
}

TEST_F(EditLineTest, GoesThroughAKeysLettersUntilAnotherKey)
{
    line.setModes({InputMode::LOWER});
    press(line, "222233");
    EXPECT_EQ(text(), "2e");
    press(line, "2222"
                "2");
    EXPECT_EQ(text(), "2ea");
}

TEST_F(EditLineTest, SetsTheCharacterWhenASecondHasPassed)
{
    line.setModes({InputMode::LOWER});
    press(line, "2");
    pass(999);
    press(line, "2");
    EXPECT_EQ(text(), "b");
    pass(1000);
    press(line, "2");
    EXPECT_EQ(text(), "ba");
}

TEST_F(EditLineTest, RunsNoTimerForKeysWithOneCharacter)
{
    press(line, "5");
    EXPECT_FALSE(isTimerRunning());
}

TEST_F(EditLineTest, SetsTheCharacterWhenTheFocusGoes)
{
    line.setModes({InputMode::LOWER});
    press(line, "2");
    line.setFocus(false);
    EXPECT_FALSE(isTimerRunning());
    line.setFocus(true);
    press(line, "2");
    EXPECT_EQ(text(), "aa");
}

TEST_F(EditLineTest, SetsTheCharacterWhenATextIsSet)
{
    line.setModes({InputMode::LOWER});
    press(line, "2");
    line.setText(peg("x"));
    EXPECT_FALSE(isTimerRunning());
    press(line, "2");
    EXPECT_EQ(text(), "xa");
}

TEST_F(EditLineTest, BeginsWordsWithACapitalLetterInThatMode)
{
    line.setModes({InputMode::CAPITALISED});
    press(line, "2");
    pass(1000);
    press(line, "3330");
    pass(1000);
    press(line, "56");
    EXPECT_EQ(text(), "Af Jm");
}

TEST_F(EditLineTest, KeepsTheCaseWhileItGoesThroughLetters)
{
    line.setModes({InputMode::CAPITALISED});
    press(line, "222");
    EXPECT_EQ(text(), "C");
}

TEST_F(EditLineTest, GoesOnToTheNextModeWithTheHashKey)
{
    line.setModes({InputMode::LOWER, InputMode::NUMBERS});
    press(line, "2#2#2");
    EXPECT_EQ(text(), "a2a");
    EXPECT_EQ(line.mode(), InputMode::LOWER);
}

TEST_F(EditLineTest, KeepsAModeWhereItIsGivenNone)
{
    line.setModes({});
    EXPECT_EQ(line.mode(), InputMode::NUMBERS);
}

TEST_F(EditLineTest, InsertsWhereTheCursorStands)
{
    press(line, "14<23");
    EXPECT_EQ(text(), "1234");
    EXPECT_EQ(line.cursor(), 3);
    EXPECT_TRUE(press(line, ">"));
    EXPECT_FALSE(press(line, ">"));
    EXPECT_TRUE(press(line, "<<<<"));
    EXPECT_FALSE(press(line, "<"));
}

TEST_F(EditLineTest, DeletesWithTheLeftKeyWhileThereIsSomethingWhereToldTo)
{
    line.setLeft(EditLine::Left::DELETES);
    EXPECT_TRUE(press(line, "12<"));
    EXPECT_EQ(text(), "1");
    EXPECT_TRUE(press(line, "<"));
    EXPECT_FALSE(press(line, "<"));
    EXPECT_EQ(text(), "");
}

TEST_F(EditLineTest, TakesNoMoreThanItsMaximum)
{
    line.setMaximum(3);
    EXPECT_TRUE(press(line, "12345"));
    EXPECT_EQ(text(), "123");
    line.setMaximum(2);
    EXPECT_EQ(text(), "12");
    line.setText(peg("987"));
    EXPECT_EQ(text(), "98");
    line.setMaximum(-1);
    EXPECT_EQ(text(), "");
}

TEST_F(EditLineTest, LeavesKeysThatItDoesNotKnowToItsHolder)
{
    for (const char* key : {"^", "v", "!"})
        EXPECT_FALSE(press(line, key)) << key;
    EXPECT_FALSE(line.key(PK_HOOK));
}

TEST_F(EditLineTest, IsReplacedWhole)
{
    press(line, "12");
    line.setText(peg("Zoë"));
    EXPECT_EQ(text(), "Zoë");
    EXPECT_EQ(line.cursor(), 3);
}

TEST_F(EditLineTest, ZeroThatIsHeldIsAPlusWhereAskedFor)
{
    press(line, "0");
    pass(1000);
    EXPECT_EQ(text(), "0");
    line.setText(PegString());
    line.setPlusByLongZero(true);
    press(line, "10");
    pass(599);
    EXPECT_EQ(text(), "10");
    listener.heard.clear();
    pass(1);
    EXPECT_EQ(text(), "1+");
    EXPECT_THAT(listener.heard, testing::ElementsAre(testing::Pair(PM_CURRENT_CHANGED, 2)));
    EXPECT_FALSE(isTimerRunning());
}

TEST_F(EditLineTest, WhateverEndsALongZeroLeavesTheZero)
{
    line.setPlusByLongZero(true);
    for (const auto& end : std::vector<std::function<void()>>{
             [&] { line.released('0'); }, [&] { line.Message({.wType = PM_KEYRELEASE, .iData = '0'}); },
             [&] { line.setFocus(false); }, [&] { line.setText(peg("0")); }}) {
        line.setFocus(true);
        line.setText(PegString());
        press(line, "0");
        end();
        pass(1000);
        EXPECT_EQ(text(), "0");
    }
    line.setText(PegString());
    press(line, "0<");
    pass(1000);
    EXPECT_EQ(text(), "0");
}

TEST_F(EditLineTest, LettersOfTheZeroKeyKeepTheirTime)
{
    line.setPlusByLongZero(true);
    line.setModes({InputMode::LOWER});
    press(line, "0");
    pass(700);
    press(line, "0");
    EXPECT_EQ(text(), "0");
}

TEST_F(EditLineTest, SaysWhichKeysType)
{
    EXPECT_TRUE(line.types('*'));
    EXPECT_FALSE(line.types(PK_OK));
    line.setModes({InputMode::LOWER, InputMode::UPPER});
    EXPECT_TRUE(line.types('2'));
    EXPECT_FALSE(line.types('#'));
    line.setMaximum(0);
    EXPECT_FALSE(line.types('2'));
}

TEST_F(EditLineTest, ShowsItsHintUntilThereIsAText)
{
    line.setHint(peg("Number?"));
    EXPECT_EQ(line.shown(), peg("Number?"));
    press(line, "4");
    EXPECT_EQ(line.shown(), peg("4"));
    line.setHidden(true);
    EXPECT_EQ(line.shown(), peg("\u2022"));
}
