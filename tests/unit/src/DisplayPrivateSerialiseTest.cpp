// The screen as text: what can be seen of each displayable, what they say about themselves, and the system window.

#include "unit/src/DisplayPrivateLinesTest.h"

using namespace test;
using DisplayAPIUtils::Rect;
using testing::ElementsAre;
using testing::IsEmpty;

namespace DisplayAPIUtils {

void PrintTo(const Rect& rect, std::ostream* out)
{
    *out << '(' << rect.left() << ',' << rect.top() << ' ' << rect.width() << 'x' << rect.height() << ')';
}

} // namespace DisplayAPIUtils

namespace {

const Rect WHOLE{0, 0, 240, 128};
const std::string MENU = "object:\nname:Menu\nend:\n";
const std::string POPUP_TEXT = "object:\nname:Popup\nend:\n";

class DisplayPrivateSerialiseTest : public DisplayPrivateLinesTest {
protected:
    DisplayPrivateSerialiseTest()
    {
        for (Screen* screen : {&menu, &other})
            screen->widget()->Resize({0, 0, 239, 127});
        popup.widget()->Resize({40, 30, 199, 97});
        second.widget()->Resize({40, 30, 199, 97});
        menu.getPrivateImpl()->text = MENU;
        popup.getPrivateImpl()->text = POPUP_TEXT;
    }

    /// What of the menu is described when `rects` are asked for.
    std::vector<Rect> menusRects(const std::vector<Rect>& rects)
    {
        display->serialiseByRect(rects, false);
        return menu.getPrivateImpl()->lastRects;
    }
};

} // namespace

TEST_F(DisplayPrivateSerialiseTest, ADisplayableAloneIsVisibleAsAWhole)
{
    given({&menu});
    EXPECT_THAT(display->findVisibleRects(), ElementsAre(ElementsAre(WHOLE)));
}

TEST_F(DisplayPrivateSerialiseTest, OfWhatAPopupCoversTheUncoveredPartsAreVisible)
{
    given({&menu, &popup});
    EXPECT_THAT(display->findVisibleRects(), ElementsAre(ElementsAre(Rect(0, 0, 240, 30), Rect(0, 98, 240, 30),
                                                                     Rect(0, 30, 40, 68), Rect(200, 30, 40, 68)),
                                                         ElementsAre(Rect(40, 30, 160, 68))));
}

TEST_F(DisplayPrivateSerialiseTest, EveryOneAboveCovers)
{
    second.widget()->Resize({0, 0, 239, 63});
    given({&menu, &popup, &second});
    EXPECT_THAT(display->findVisibleRects(),
                ElementsAre(ElementsAre(Rect(0, 98, 240, 30), Rect(0, 64, 40, 34), Rect(200, 64, 40, 34)),
                            ElementsAre(Rect(40, 64, 160, 34)), ElementsAre(Rect(0, 0, 240, 64))));
}

TEST_F(DisplayPrivateSerialiseTest, WhatIsCoveredAltogetherHasNoVisibleParts)
{
    given({&menu, &popup, &second});
    EXPECT_THAT(display->findVisibleRects()[1], IsEmpty());
}

TEST_F(DisplayPrivateSerialiseTest, AnEmptyStackHasNoVisibleParts)
{
    given({});
    EXPECT_THAT(display->findVisibleRects(), IsEmpty());
}

TEST_F(DisplayPrivateSerialiseTest, ADisplayableWithoutAWidgetIsAnEntryWithoutVisibleParts)
{
    given({&menu, &popup});
    popup.getPrivateImpl()->dropWidget();
    EXPECT_THAT(display->findVisibleRects(), ElementsAre(ElementsAre(WHOLE), IsEmpty()));
}

TEST_F(DisplayPrivateSerialiseTest, DisplayedRectanglesAreTheWidgetsFromBottomToTop)
{
    given({&menu, &popup});
    EXPECT_THAT(*display->getDisplayedRects(), ElementsAre(WHOLE, Rect(40, 30, 160, 68)));
    display->setCurrent(nullptr);
    EXPECT_THAT(*display->getDisplayedRects(), IsEmpty());
}

TEST_F(DisplayPrivateSerialiseTest, DisplayedRectanglesFollowTheWidgets)
{
    given({&menu});
    menu.widget()->Resize({1, 2, 3, 4});
    EXPECT_THAT(*display->getDisplayedRects(), ElementsAre(Rect(1, 2, 3, 3)));
}

TEST_F(DisplayPrivateSerialiseTest, DescribingTheStackRecordsWhereItsEntriesLie)
{
    given({&menu, &popup});
    menu.widget()->Resize({1, 2, 3, 4});
    display->serialise();
    EXPECT_THAT(display->monitoredRects(), ElementsAre(Rect(1, 2, 3, 3), Rect(40, 30, 160, 68)));
    popup.widget()->Resize({5, 6, 7, 8});
    display->serialiseByRect({WHOLE}, false);
    EXPECT_THAT(display->monitoredRects(), ElementsAre(Rect(1, 2, 3, 3), Rect(5, 6, 3, 3)));
}

TEST_F(DisplayPrivateSerialiseTest, TheWholeStackIsDescribedFromBottomToTop)
{
    given({&menu, &popup});
    EXPECT_EQ(display->serialise(), MENU + POPUP_TEXT);
    EXPECT_EQ(observer.notifications, 0);
}

TEST_F(DisplayPrivateSerialiseTest, AnEmptyStackIsAnEmptyText)
{
    given({});
    EXPECT_EQ(display->serialise(), "");
    EXPECT_EQ(display->serialiseByRect({WHOLE}, true), "");
}

TEST_F(DisplayPrivateSerialiseTest, ADisplayableThatCannotDescribeItselfSaysSo)
{
    given({&other});
    EXPECT_EQ(display->serialise(), "object:\nname:Not Implemented\nend:\n");
    EXPECT_EQ(display->serialiseByRect({WHOLE}, false), "object:\nname:Not Implemented\nend:\n");
}

TEST_F(DisplayPrivateSerialiseTest, TheWholeStackNeedsNoListenerAndNoVisibleDisplay)
{
    display->setCurrent(&menu);
    display->unSubscribe();
    EXPECT_EQ(display->serialise(), MENU);
}

TEST_F(DisplayPrivateSerialiseTest, ADisplayableWithoutAPrivateSideSaysNothing)
{
    given({&menu, &popup});
    menu.dropPrivate();
    EXPECT_EQ(display->serialise(), POPUP_TEXT);
    EXPECT_EQ(display->serialiseByRect({WHOLE}, false), POPUP_TEXT);
}

TEST_F(DisplayPrivateSerialiseTest, CharactersOutsideAsciiBecomeQuestionMarks)
{
    menu.getPrivateImpl()->text = "caption:M\xC3\xBCller \xE3\x81\x82\n";
    given({&menu});
    EXPECT_EQ(display->serialise(), "caption:M?ller ?\n");
    EXPECT_EQ(display->serialiseByRect({WHOLE}, false), "caption:M?ller ?\n");
}

TEST_F(DisplayPrivateSerialiseTest, AContainedPartIsAskedForOnce)
{
    given({&menu});
    EXPECT_THAT(menusRects({WHOLE}), ElementsAre(WHOLE));
    EXPECT_THAT(menusRects({WHOLE, WHOLE, Rect(0, 0, 10, 10)}), ElementsAre(WHOLE));
    EXPECT_THAT(menusRects({Rect(-5, -5, 1000, 1000)}), ElementsAre(WHOLE));
}

TEST_F(DisplayPrivateSerialiseTest, APartThatStraddlesTwoRectanglesIsAskedForInTwoPieces)
{
    given({&menu});
    EXPECT_THAT(menusRects({Rect(0, 0, 120, 128), Rect(120, 0, 500, 128)}),
                ElementsAre(Rect(0, 0, 120, 128), Rect(120, 0, 120, 128)));
}

TEST_F(DisplayPrivateSerialiseTest, APartThatOverlapsOneRectangleAndLiesInTheNextIsAskedForTwice)
{
    given({&menu});
    EXPECT_THAT(menusRects({Rect(0, 0, 10, 10), WHOLE, Rect(5, 5, 10, 10)}), ElementsAre(Rect(0, 0, 10, 10), WHOLE));
}

TEST_F(DisplayPrivateSerialiseTest, APartIsContainedOnlyWithAllFourEdges)
{
    given({&menu});
    for (const Rect& rect : {Rect(1, 0, 239, 128), Rect(0, 1, 240, 127), Rect(0, 0, 239, 128), Rect(0, 0, 240, 127)})
        EXPECT_THAT(menusRects({rect, WHOLE}), ElementsAre(rect, WHOLE));
}

TEST_F(DisplayPrivateSerialiseTest, RectanglesThatTouchNothingAskForNothing)
{
    given({&menu});
    EXPECT_THAT(menusRects({Rect(240, 0, 10, 10), Rect(0, 128, 10, 10), Rect(-10, 0, 10, 10)}), IsEmpty());
    EXPECT_THAT(menusRects({}), IsEmpty());
    EXPECT_EQ(display->serialiseByRect({}, false), MENU) << "the displayable decides what to say";
}

TEST_F(DisplayPrivateSerialiseTest, EachVisiblePartIsLookedForInEveryRectangle)
{
    given({&menu, &popup});
    EXPECT_THAT(menusRects({Rect(0, 0, 240, 64), Rect(0, 64, 240, 64)}),
                ElementsAre(Rect(0, 0, 240, 30), Rect(0, 98, 240, 30), Rect(0, 30, 40, 34), Rect(0, 64, 40, 34),
                            Rect(200, 30, 40, 34), Rect(200, 64, 40, 34)));
    EXPECT_THAT(popup.getPrivateImpl()->lastRects, ElementsAre(Rect(40, 30, 160, 34), Rect(40, 64, 160, 34)));
}

TEST_F(DisplayPrivateSerialiseTest, EveryStepIsLogged)
{
    given({&menu, &popup});
    std::string text;
    EXPECT_THAT(
        logged([&] { text = display->serialiseByRect({Rect(0, 0, 240, 40)}, false); }),
        ElementsAre(
            "serialiseByRect() rects.size() = 1, doSW = 0",
            "serialiseByRect() mDisplayChangeListener = " + shown(&observer), "serialiseByRect() mItemList.size() = 2",
            "serialiseByRect() adding to newRects: (0,0),(239,29)",
            "serialiseByRect() OVERLAP adding to newRects: (0,30),(39,39)",
            "serialiseByRect() OVERLAP adding to newRects: (200,30),(239,39)", "serialiseByRect() newRects.size() = 3",
            "serialiseByRect() mItemList.at(0) serialised as \"" + MENU + "\"",
            "serialiseByRect() OVERLAP adding to newRects: (40,30),(199,39)", "serialiseByRect() newRects.size() = 1",
            "serialiseByRect() mItemList.at(1) serialised as \"" + POPUP_TEXT + "\"",
            "serialiseByRect() returning = \"" + MENU + POPUP_TEXT + "\""));
    EXPECT_EQ(text, MENU + POPUP_TEXT);
}

TEST_F(DisplayPrivateSerialiseTest, ThatNothingOfADisplayableIsAskedForIsLoggedToo)
{
    given({&menu});
    EXPECT_THAT(logged([&] { display->serialiseByRect({}, true); }),
                ElementsAre("serialiseByRect() rects.size() = 0, doSW = 1",
                            "serialiseByRect() mDisplayChangeListener = " + shown(&observer),
                            "serialiseByRect() mItemList.size() = 1", "serialiseByRect() newRects.size() = 0",
                            "serialiseByRect() mItemList.at(0) serialised as \"" + MENU + "\"",
                            "serialiseByRect() returning = \"" + MENU + "\""));
}

TEST_F(DisplayPrivateSerialiseTest, WithoutAListenerNothingIsDescribed)
{
    given({&menu});
    display->unSubscribe();
    EXPECT_THAT(logged([&] { EXPECT_EQ(display->serialiseByRect({WHOLE}, true), ""); }),
                ElementsAre("serialiseByRect() rects.size() = 1, doSW = 1",
                            "serialiseByRect() mDisplayChangeListener = " + shown(nullptr),
                            "serialiseByRect() returning = \"\""));
}

TEST_F(DisplayPrivateSerialiseTest, TheSystemWindowFollowsTheScreenOnTheFullPanelWithTheKvxSoftware)
{
    start(FULL_PANEL, KVX);
    givenLines(2, menu);
    const std::string window = "object:\nname:PopupTextField\ncaption:line 0\nsubitem:\nname:KestrelListBoxItem\n"
                               "string0:line 1\nendsubitem:\nend:\n";
    EXPECT_EQ(display->serialiseByRect({WHOLE}, true), MENU + window);
    EXPECT_EQ(display->serialiseByRect({WHOLE}, false), MENU);
    EXPECT_EQ(display->serialise(), MENU);
    display->unSubscribe();
    EXPECT_EQ(display->serialiseByRect({WHOLE}, true), window);
}

TEST_F(DisplayPrivateSerialiseTest, TheSystemWindowsTextIsAsciiToo)
{
    start(FULL_PANEL, KVX);
    given({&menu});
    display->setSystemWindowText(0, "M\xC3\xBCller");
    display->setSystemWindowSize(1);
    EXPECT_THAT(display->serialiseByRect({}, true), testing::HasSubstr("caption:M?ller\n"));
}

TEST_F(DisplayPrivateSerialiseTest, ASystemWindowThatIsNotUpIsNotDescribed)
{
    start(FULL_PANEL, KVX);
    givenLines(2, menu);
    display->setSystemWindowSize(0);
    EXPECT_EQ(display->serialiseByRect({WHOLE}, true), MENU);
}

TEST_F(DisplayPrivateSerialiseTest, ASystemWindowThatTheNewCurrentOneDrawsIsNotDescribed)
{
    start(FULL_PANEL, KVX);
    givenLines(2, menu);
    popup.getPrivateImpl()->drawsSystemWindow = true;
    display->setCurrent(&popup);
    EXPECT_EQ(display->serialiseByRect({WHOLE}, true), MENU + POPUP_TEXT);
}

TEST_F(DisplayPrivateSerialiseTest, WithAnotherSoftwareTheFullPanelHasNoSystemWindowText)
{
    for (const char* software : {SIP, "softwareUnknown"}) {
        start(FULL_PANEL, software);
        givenLines(2, menu);
        EXPECT_EQ(display->serialiseByRect({WHOLE}, true), MENU) << software;
    }
}

TEST_F(DisplayPrivateSerialiseTest, TheSoftwareTypeCountsWhenTheTextIsAskedFor)
{
    givenLines(2, menu);
    display->setSoftwareType(KVX);
    EXPECT_NE(display->serialiseByRect({WHOLE}, true), MENU);
}

TEST_F(DisplayPrivateSerialiseTest, AnotherHardwareHasNoSystemWindowText)
{
    start(FULL_PANEL, KVX);
    givenLines(2, menu);
    KestrelApplication::getCurrentApplication()->setHardwareVariant(2);
    EXPECT_EQ(display->serialiseByRect({WHOLE}, true), MENU);
}
