// Texts, size, top, clock and call timer of the system window, as an application sets them.

#include "unit/src/DisplayPrivateLinesTest.h"

#include "utilities/ICC.h"
#include "widgets/KestrelListBoxItem.h"
#include "widgets/KestrelListBoxWithTitle.h"

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using DisplayPrivateSystemWindowTest = DisplayPrivateLinesTest;

int softwareType()
{
    return KestrelApplication::getCurrentApplication()->getSoftwareType();
}

} // namespace

TEST_F(DisplayPrivateSystemWindowTest, ATextBecomesTheContentWidgetsLine)
{
    given({&menu});
    display->setSystemWindowText(0, "Gr\xC3\xBC\xC3\x9F Gott");
    display->setSystemWindowText(5, "last");
    EXPECT_EQ(content().getSystemWindowText(0), "Gr\xC3\xBC\xC3\x9F Gott");
    EXPECT_EQ(content().getSystemWindowText(5), "last");
}

TEST_F(DisplayPrivateSystemWindowTest, AnEmptyTextBecomesASingleSpace)
{
    given({&menu});
    display->setSystemWindowText(1, "busy");
    display->setSystemWindowText(1, "");
    EXPECT_EQ(content().getSystemWindowText(1), " ");
}

TEST_F(DisplayPrivateSystemWindowTest, ATextIsLoggedAndItsLineMarked)
{
    given({&menu});
    EXPECT_THAT(logged([&] { display->setSystemWindowText(2, "busy"); }),
                ElementsAre(process() + " DisplayPrivate::setSystemWindowText lineIndex = 2, text = 'busy'",
                            "InvalidateSW[2] = 1"));
}

TEST_F(DisplayPrivateSystemWindowTest, AnEmptyTextIsLoggedAsItIs)
{
    given({&menu});
    EXPECT_EQ(logged([&] { display->setSystemWindowText(0, ""); })[0],
              process() + " DisplayPrivate::setSystemWindowText lineIndex = 0, text = ''");
}

TEST_F(DisplayPrivateSystemWindowTest, ATextAloneNotifiesNobodyAndShowsNothing)
{
    given({&menu});
    display->setSystemWindowText(0, "busy");
    EXPECT_EQ(observer.notifications, 0);
    EXPECT_THAT(calls(), ElementsAre("content: setSystemWindowText(0, \"busy\")"));
    EXPECT_FALSE(isUp());
}

TEST_F(DisplayPrivateSystemWindowTest, OnAHiddenDisplayATextIsOnlyLogged)
{
    display->setCurrent(&menu);
    forgetCalls();
    EXPECT_THAT(logged([&] { display->setSystemWindowText(2, "busy"); }),
                ElementsAre(process() + " DisplayPrivate::setSystemWindowText lineIndex = 2, text = 'busy'"));
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_EQ(content().getSystemWindowText(2), "");
}

TEST_F(DisplayPrivateSystemWindowTest, LinesOutsideZeroToFiveAreIgnored)
{
    given({&menu});
    for (const int line : {-1, 6, 7, 100, -100000}) {
        for (const std::string& text : logged([&] { display->setSystemWindowText(line, "busy"); }))
            EXPECT_FALSE(text.starts_with("InvalidateSW")) << text;
    }
    for (int line = 0; line < SystemWindow::MAX_LINES; ++line)
        EXPECT_EQ(content().getSystemWindowText(line), "");
}

TEST_F(DisplayPrivateSystemWindowTest, ASizeIsLogged)
{
    given({&menu});
    EXPECT_EQ(logged([&] { display->setSystemWindowSize(2); })[0],
              "setSystemWindowSize() " + process() + ", no of lines = 2");
}

TEST_F(DisplayPrivateSystemWindowTest, OnAHiddenDisplayASizeIsOnlyLogged)
{
    display->setCurrent(&menu);
    forgetCalls();
    EXPECT_THAT(logged([&] { display->setSystemWindowSize(2); }),
                ElementsAre("setSystemWindowSize() " + process() + ", no of lines = 2"));
    EXPECT_EQ(lineCount(), 0);
    EXPECT_EQ(observer.notifications, 0);
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(DisplayPrivateSystemWindowTest, ASizeIsStoredAndNotifiesOnce)
{
    given({&menu});
    for (const int lines : {1, 2, 3, 6, 2, 0}) {
        observer.notifications = 0;
        display->setSystemWindowSize(lines);
        EXPECT_EQ(lineCount(), lines);
        EXPECT_EQ(observer.notifications, 1);
    }
}

TEST_F(DisplayPrivateSystemWindowTest, SevenLinesAreStoredAndNothingElse)
{
    given({&menu});
    EXPECT_THAT(logged([&] { display->setSystemWindowSize(7); }),
                ElementsAre("setSystemWindowSize() " + process() + ", no of lines = 7"));
    EXPECT_EQ(lineCount(), 7);
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_EQ(observer.notifications, 0);
    EXPECT_FALSE(isUp());
}

TEST_F(DisplayPrivateSystemWindowTest, WithNothingCurrentASizeIsStoredAndNothingElse)
{
    given({});
    display->setSystemWindowSize(2);
    EXPECT_EQ(lineCount(), 2);
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_EQ(observer.notifications, 0);
}

TEST_F(DisplayPrivateSystemWindowTest, ANegativeSizeIsRefused)
{
    givenLines(2, menu);
    host::LogCapture log;
    display->setSystemWindowSize(-1);
    EXPECT_EQ(log.lines().back().level, 3);
    EXPECT_EQ(lineCount(), 2);
    EXPECT_TRUE(isUp());
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_EQ(observer.notifications, 0);
}

TEST_F(DisplayPrivateSystemWindowTest, TheTopIsTheFullPanelsWithASeparator)
{
    given({&menu});
    display->setSystemWindowTop(17);
    EXPECT_THAT(calls(), ElementsAre("content: setSystemWindowTop(17, true, false)"));
    EXPECT_EQ(window().Layer(), 64);
}

TEST_F(DisplayPrivateSystemWindowTest, OnTheSmallPanelTheTopIsZeroWithoutASeparator)
{
    start(SMALL_PANEL, SIP);
    given({&menu});
    display->setSystemWindowTop(17);
    EXPECT_THAT(calls(), ElementsAre("content: setSystemWindowTop(0, false, false)"));
    EXPECT_EQ(window().Layer(), 64);
}

TEST_F(DisplayPrivateSystemWindowTest, ATopIsSetOnAHiddenDisplayToo)
{
    display->setSystemWindowTop(17);
    EXPECT_EQ(window().Area().top, 17);
}

TEST_F(DisplayPrivateSystemWindowTest, ClockAndCallTimerReachTheContentWidgetAndNotifyOnceEach)
{
    display->showTimeInSystemWindow(true);
    display->setTimeInSystemWindow(7, 5, 9);
    display->setTimer("10:00:00");
    display->stopTimer();
    display->showTimeInSystemWindow(false);
    EXPECT_THAT(calls(), ElementsAre("content: showTimeInSystemWindow(true)", "content: setTimeInSystemWindow(7, 5, 9)",
                                     "content: setTimer(\"10:00:00\")", "content: stopTimer()",
                                     "content: showTimeInSystemWindow(false)"));
    EXPECT_EQ(observer.notifications, 5);
}

TEST_F(DisplayPrivateSystemWindowTest, ACaptionThatChangesByItselfBecomesLineZeroAndNotifies)
{
    given({&menu});
    content().OnChange(PegMessage(), "Gr\xC3\xBC\xC3\x9F Gott");
    EXPECT_EQ(content().getSystemWindowText(0), "Gr\xC3\xBC\xC3\x9F Gott");
    EXPECT_TRUE(window().isPopup());
    EXPECT_EQ(observer.notifications, 1);
}

TEST_F(DisplayPrivateSystemWindowTest, TheSoftwareTypeIsOneOfThree)
{
    for (const auto& [text, type] : {std::pair{"Corvane KVX", 1},
                                     {"Corvane SIP", 0},
                                     {"softwareUnknown", 2},
                                     {"corvane sip", 2},
                                     {"Corvane KVX ", 2},
                                     {"", 2}}) {
        display->setSoftwareType("Corvane KVX");
        display->setSoftwareType(text);
        EXPECT_EQ(softwareType(), type) << text;
    }
}

TEST_F(DisplayPrivateSystemWindowTest, ClipboardsAreTheDisplaysOwn)
{
    const auto another = makeAnother(FULL_PANEL, SIP);
    display->copy("mine");
    EXPECT_EQ(another->paste(), "");
    another->copy("yours");
    EXPECT_EQ(display->paste(), "mine");
}

namespace {

/// A screen whose widget is a list with a title, beside a list that is told the same by hand.
class DisplayPrivateListLinesTest : public DisplayPrivateLinesTest {
protected:
    DisplayPrivateListLinesTest()
    {
        for (KestrelListBoxWithTitle* box : {list, &byHand}) {
            box->Resize({0, 0, 239, 127});
            rows.push_back(std::make_unique<KestrelListBoxItem>(PegString()));
            box->append(rows.back().get());
            for (int line = 0; line < 2; ++line)
                box->setSystemWindowText(ICC::fromUTF8toUNICODE("busy"), line);
        }
        without = list->rowArea(0);
        byHand.setSystemWindowLines(2);
        with = byHand.rowArea(0);
    }

    std::vector<std::unique_ptr<KestrelListBoxItem>> rows;
    KestrelListBoxWithTitle* const list = new KestrelListBoxWithTitle;
    KestrelListBoxWithTitle byHand;
    Screen listScreen{"list", doubles::ScreenPrivate::SCREEN, list};
    PegRect without;
    PegRect with;
};

} // namespace

TEST_F(DisplayPrivateListLinesTest, OneLineMoreReachesTheList)
{
    ASSERT_NE(with, without);
    given({&listScreen});
    display->listInWidgetSetSWLines(1, 2);
    EXPECT_EQ(list->rowArea(0), with);
}

TEST_F(DisplayPrivateListLinesTest, AnyOtherChangeOfTheLinesDoesNot)
{
    given({&listScreen});
    for (const auto& [before, lines] : {std::pair{2, 2}, {3, 2}, {0, 2}, {2, 1}})
        display->listInWidgetSetSWLines(before, lines);
    EXPECT_EQ(list->rowArea(0), without);
}

TEST_F(DisplayPrivateListLinesTest, AHiddenDisplaysListIsLeftAlone)
{
    display->setCurrent(&listScreen);
    display->listInWidgetSetSWLines(1, 2);
    EXPECT_EQ(list->rowArea(0), without);
}

TEST_F(DisplayPrivateListLinesTest, AListUnderTheCurrentDisplayableIsLeftAlone)
{
    given({&listScreen, &popup});
    display->listInWidgetSetSWLines(1, 2);
    EXPECT_EQ(list->rowArea(0), without);
}

TEST_F(DisplayPrivateListLinesTest, TheTypeOfTheWidgetDecides)
{
    struct Untitled : KestrelListBoxWithTitle {
        Untitled() { Type(TYPE_WINDOW); }
    };
    struct Claiming : PegWindow {
        Claiming() { Type(TYPE_LIST_WITH_TITLE); }
    };
    auto* const untitled = new Untitled;
    untitled->setSystemWindowText(ICC::fromUTF8toUNICODE("busy"), 0);
    Screen wrongType("wrong type", doubles::ScreenPrivate::SCREEN, untitled);
    Screen noList("no list", doubles::ScreenPrivate::SCREEN, new Claiming);
    given({&wrongType});
    display->listInWidgetSetSWLines(0, 1);
    EXPECT_EQ(untitled->systemWindowLines(), 0);
    given({&noList});
    display->listInWidgetSetSWLines(0, 1);
}

TEST_F(DisplayPrivateListLinesTest, WithNothingCurrentOrWithoutAWidgetNothingIsDone)
{
    given({});
    display->listInWidgetSetSWLines(1, 2);
    given({&menu});
    menu.getPrivateImpl()->dropWidget();
    display->listInWidgetSetSWLines(1, 2);
    EXPECT_THAT(calls(), IsEmpty());
}
