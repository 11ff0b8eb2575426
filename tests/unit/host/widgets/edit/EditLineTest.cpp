#include "host/widgets/edit/EditLine.h"

#include "support/Keys.h"
#include "support/RunningToolkit.h"
#include "support/VirtualTime.h"
#include "widgets/KestrelApplication.h"

#include <gmock/gmock.h>

using host::EditKind;
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
    line.released(PK_LEFT);
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

TEST_F(EditLineTest, LeftThatIsHeldTakesAwayWhatTheCursorHasPassedAndGoesOn)
{
    line.setText(peg("Zoë 12"));
    press(line, "<<");
    pass(599);
    EXPECT_EQ(text(), "Zoë 12");
    pass(1);
    EXPECT_EQ(text(), "Zoë 2");
    EXPECT_EQ(line.cursor(), 4);
    pass(149);
    EXPECT_EQ(text(), "Zoë 2");
    pass(1);
    EXPECT_EQ(text(), "Zoë2");
    line.released(PK_LEFT);
    pass(1000);
    EXPECT_EQ(text(), "Zoë2");
    EXPECT_THAT(listener.heard,
                testing::ElementsAre(testing::Pair(PM_CURRENT_CHANGED, 5), testing::Pair(PM_CURRENT_CHANGED, 4)));
}

TEST_F(EditLineTest, LeftThatIsHeldEndsWhereNothingIsLeft)
{
    for (const EditLine::Left left : {EditLine::Left::MOVES, EditLine::Left::DELETES}) {
        line.setLeft(left);
        line.setText(peg("abc"));
        press(line, "<");
        pass(5000);
        EXPECT_EQ(text(), "");
        EXPECT_FALSE(isTimerRunning());
    }
}

TEST_F(EditLineTest, WhateverEndsALongLeftKeepsTheText)
{
    for (const auto& end : std::vector<std::function<void()>>{
             [&] { line.released(PK_LEFT); }, [&] { line.setFocus(false); }, [&] { press(line, ">"); },
             [&] { line.setText(peg("abc")); }, [&] { line.setReadOnly(true); }}) {
        line.setReadOnly(false);
        line.setFocus(true);
        line.setText(peg("abc"));
        press(line, "<");
        end();
        pass(2000);
        EXPECT_EQ(text(), "abc");
    }
}

TEST_F(EditLineTest, InATextThatIsReadFromTheRightTheRightKeyPointsToItsBegin)
{
    line.setText(peg("ابت"));
    EXPECT_FALSE(press(line, "<"));
    EXPECT_TRUE(press(line, ">"));
    EXPECT_EQ(line.cursor(), 2);
    pass(600);
    EXPECT_EQ(text(), "اب");
    pass(150);
    EXPECT_EQ(text(), "ا");
    line.released(PK_RIGHT);
    EXPECT_TRUE(press(line, ">"));
    line.released(PK_RIGHT);
    EXPECT_FALSE(press(line, ">"));
    EXPECT_TRUE(press(line, "<"));
    pass(2000);
    EXPECT_EQ(text(), "ا");
}

TEST_F(EditLineTest, LongLeftTakesTheLastLetterOfAnArabicWordAtTheEndOfALatinText)
{
    line.setText(peg("ab ابت"));
    press(line, "<");
    pass(600);
    EXPECT_EQ(text(), "ab اب");
    pass(150);
    EXPECT_EQ(text(), "ab ا");
}

TEST_F(EditLineTest, LettersGoWithTheirMarks)
{
    line.setText(peg("ne\u0301"));
    press(line, "<");
    EXPECT_EQ(line.cursor(), 1);
    line.released(PK_LEFT);
    press(line, ">");
    line.deleteBack();
    EXPECT_EQ(text(), "n");
}

TEST_F(EditLineTest, TypesWhereTheCursorHasGoneBetweenDirections)
{
    line.setText(peg("ab ابت c"));
    press(line, "<<<0");
    EXPECT_EQ(text(), "ab ا0بت c");
}

TEST_F(EditLineTest, BlinksWhereAKeyIsRefused)
{
    line.setKind(EditKind::NUMBER);
    line.setMaximum(1);
    for (const char* key : {"*", "#", "12"}) {
        EXPECT_TRUE(press(line, key)) << key;
        EXPECT_TRUE(isTimerRunning()) << key;
        pass(120);
        EXPECT_FALSE(isTimerRunning()) << key;
    }
    EXPECT_EQ(text(), "1");
    press(line, "2");
    line.setFocus(false);
    EXPECT_FALSE(isTimerRunning());
}

TEST_F(EditLineTest, IsOnlyReadWhereSaidSo)
{
    line.setKind(EditKind::NAME);
    line.setText(peg("Ada"));
    listener.heard.clear();
    line.setReadOnly(true);
    EXPECT_TRUE(press(line, "2*#0"));
    EXPECT_FALSE(line.types('2'));
    EXPECT_FALSE(line.deleteBack());
    EXPECT_TRUE(press(line, "<"));
    pass(1000);
    EXPECT_EQ(text(), "Ada");
    EXPECT_EQ(line.cursor(), 2);
    EXPECT_EQ(line.mode(), InputMode::CAPITALISED);
    EXPECT_THAT(listener.heard, testing::IsEmpty());
}

TEST_F(EditLineTest, StarOffersSymbolsThatKeysChoose)
{
    line.setKind(EditKind::TEXT);
    press(line, "*");
    EXPECT_TRUE(line.offersSymbols());
    EXPECT_EQ(text(), "");
    struct Choice {
        const char* keys;
        const char* symbol;
    };
    for (const Choice& choice : std::vector<Choice>{{"1", "."},
                                                    {"0", ";"},
                                                    {"!", "."},
                                                    {">>!", "?"},
                                                    {">><!", ","},
                                                    {"v1", "@"},
                                                    {"*2", "/"},
                                                    {"v^3", "?"},
                                                    {"#", ""}}) {
        line.setText(PegString());
        if (!line.offersSymbols())
            press(line, "*");
        EXPECT_TRUE(press(line, choice.keys));
        EXPECT_EQ(text(), choice.symbol) << choice.keys;
        EXPECT_FALSE(line.offersSymbols()) << choice.keys;
    }
}

TEST_F(EditLineTest, StarGoesThroughThePagesOfSymbolsAndAway)
{
    line.setKind(EditKind::PASSWORD);
    int pages = 0;
    do {
        press(line, "*");
        ++pages;
    } while (line.offersSymbols());
    EXPECT_EQ(pages, 5);
    EXPECT_EQ(text(), "");
}

TEST_F(EditLineTest, SymbolsGoFromTheRightWhereTextsDo)
{
    KestrelApplication* const application = KestrelApplication::getCurrentApplication();
    application->setLocale(peg("ar_EG"));
    line.setKind(EditKind::TEXT);
    press(line, "*<!");
    application->setLocale(PegString());
    EXPECT_EQ(text(), ",");
}

TEST_F(EditLineTest, SymbolsAreThoseOfTheKind)
{
    struct Offer {
        EditKind kind;
        const char* keys;
        const char* text;
    };
    for (const Offer& offer : std::vector<Offer>{{EditKind::PHONE_NUMBER, "*1*2*3*4*5", "+*#,;"},
                                                 {EditKind::NUMBER, "1*2", "12"},
                                                 {EditKind::IP_ADDRESS, "10**0*0", "10.0.0"},
                                                 {EditKind::DATE, "2026*1*2", "2026-1-2"},
                                                 {EditKind::TIME, "7*5", "7:5"}}) {
        line.setKind(offer.kind);
        line.setText(PegString());
        press(line, offer.keys);
        EXPECT_EQ(text(), offer.text);
    }
}

TEST_F(EditLineTest, SymbolsGoAwayWithTheFocus)
{
    line.setKind(EditKind::TEXT);
    press(line, "*");
    line.setFocus(false);
    EXPECT_FALSE(line.offersSymbols());
}

TEST_F(EditLineTest, TelephoneKeysAreNotTheSymbols)
{
    line.setKind(EditKind::TEXT);
    press(line, "*");
    EXPECT_FALSE(line.key(PK_HOOK));
    EXPECT_TRUE(press(line, "^"));
}

TEST_F(EditLineTest, HeldZeroIsAPlusInATelephoneNumber)
{
    line.setKind(EditKind::PHONE_NUMBER);
    press(line, "0");
    pass(600);
    EXPECT_EQ(text(), "+");
}

TEST_F(EditLineTest, PasswordShowsTheCharacterThatIsBeingChosen)
{
    line.setKind(EditKind::PASSWORD);
    press(line, "22");
    EXPECT_EQ(line.shown(), peg("b"));
    pass(1000);
    EXPECT_EQ(line.shown(), peg("\u2022"));
    EXPECT_EQ(text(), "b");
}

TEST_F(EditLineTest, DeletingStepsOverASeparatorThatHasToStay)
{
    line.setKind(EditKind::DATE);
    line.setText(peg("2026-11-22"));
    press(line, "<<");
    line.released(PK_LEFT);
    line.deleteBack();
    EXPECT_EQ(text(), "2026-1-22");
    EXPECT_EQ(line.cursor(), 6);
    press(line, "2");
    EXPECT_EQ(text(), "2026-12-22");
}

TEST_F(EditLineTest, CursorIsSetBetweenCharacters)
{
    line.setText(peg("ne\u0301x"));
    for (const auto& [wanted, there] :
         std::vector<std::pair<int, int>>{{-1, 0}, {0, 0}, {1, 1}, {2, 1}, {3, 3}, {4, 4}, {9, 4}}) {
        line.setCursor(wanted);
        EXPECT_EQ(line.cursor(), there) << wanted;
    }
}
