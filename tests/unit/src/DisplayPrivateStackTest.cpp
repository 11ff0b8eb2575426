// Making displayables current: the stack, the widgets' owners and parents, and who is told.

#include "unit/src/DisplayPrivateTest.h"

using test::shown;
using testing::ElementsAre;
using testing::IsEmpty;

using DisplayPrivateStackTest = test::DisplayPrivateTest;

TEST_F(DisplayPrivateStackTest, StartsHiddenAndEmpty)
{
    EXPECT_EQ(display->getCurrent(), nullptr);
    EXPECT_THAT(display->itemList(), IsEmpty());
    display->setCurrent(&menu);
    EXPECT_FALSE(isOnScreen(menu));
}

TEST_F(DisplayPrivateStackTest, TheFirstScreenIsAddedWithRedrawAndFocusedAndGivenAway)
{
    given({});
    display->setCurrent(&menu);
    EXPECT_THAT(calls(),
                ElementsAre("menu: connect()", "menu: releaseOwnership()", "menu: show()", "menu: releaseOwnership()"));
    EXPECT_EQ(display->getCurrent(), &menu);
    EXPECT_THAT(display->itemList(), ElementsAre(&menu));
    EXPECT_EQ(menu.getPrivateImpl()->attachedTo(), display.get());
    EXPECT_TRUE(isOnScreen(menu));
    EXPECT_TRUE(hasFocus(menu));
    EXPECT_EQ(gpPresent->Pending(), menu.widget());
    EXPECT_FALSE(menu.getPrivateImpl()->ownsWidget());
}

TEST_F(DisplayPrivateStackTest, TheFirstScreenIsLogged)
{
    given({});
    EXPECT_THAT(logged([&] { display->setCurrent(&menu); }),
                ElementsAre("setCurrent() " + self() + " called on disp " + named(menu) + " " + priv(menu) +
                                " [Pegwidget " + shown(menu.widget()) + "]",
                            "setCurrentImpl() " + self() + " called on disp " + named(menu) + " " + priv(menu) +
                                " widget " + widget(menu),
                            "showWidget() " + self() + " called on " + priv(menu),
                            "showWidget() " + self() + " adding widget " + widget(menu) + " to PM " + manager(),
                            "showWidget() " + self() + " calling MoveFocusTree on widget " + widget(menu),
                            "**current, which is: [menu] [0x" + shown(menu.widget()) + "]"));
}

TEST_F(DisplayPrivateStackTest, AHiddenDisplayRecordsTheStackAndAddsNoWidget)
{
    display->setCurrent(&menu);
    display->setCurrent(&popup);
    EXPECT_THAT(display->itemList(), ElementsAre(&menu, &popup));
    EXPECT_EQ(display->getCurrent(), &popup);
    EXPECT_EQ(menu.widget()->Parent(), nullptr);
    EXPECT_EQ(popup.widget()->Parent(), nullptr);
    EXPECT_THAT(calls(),
                ElementsAre("menu: connect()", "menu: releaseOwnership()", "popup: connect()", "menu: lostFocus()",
                            "menu: gainOwnership()", "popup: releaseOwnership()", "menu: setSysWindowSize(0)"));
}

TEST_F(DisplayPrivateStackTest, AHiddenDisplayLogsThatItIsNotVisible)
{
    EXPECT_THAT(logged([&] { display->setCurrent(&menu); }),
                ElementsAre("setCurrent() " + self() + " called on disp " + named(menu) + " " + priv(menu) +
                                " [Pegwidget " + shown(menu.widget()) + "]",
                            "setCurrentImpl() " + self() + " called on disp " + named(menu) + " " + priv(menu) +
                                " widget " + widget(menu),
                            "showWidget() " + self() + " called on " + priv(menu),
                            "showWidget() " + self() + " called on " + priv(menu) + ", mVisible == false",
                            "**current, which is: [menu] [0x" + shown(menu.widget()) + "]"));
}

TEST_F(DisplayPrivateStackTest, EveryChangeOfTheCurrentDisplayableNotifiesTwice)
{
    given({});
    for (Screen* screen : {&menu, &popup, &popup, &other, &other}) {
        observer.notifications = 0;
        display->setCurrent(screen);
        EXPECT_EQ(observer.notifications, 2) << screen->getName();
    }
}

TEST_F(DisplayPrivateStackTest, AFullScreenReplacesTheWholeStack)
{
    given({&menu, &popup});
    display->setCurrent(&other);
    EXPECT_THAT(calls(), ElementsAre("menu: disconnect()", "menu: gainOwnership()", "popup: disconnect()",
                                     "popup: gainOwnership()", "other: connect()", "popup: lostFocus()",
                                     "popup: gainOwnership()", "other: releaseOwnership()", "other: show()",
                                     "other: releaseOwnership()", "popup: setSysWindowSize(0)"));
    EXPECT_THAT(display->itemList(), ElementsAre(&other));
    EXPECT_EQ(menu.widget()->Parent(), nullptr);
    EXPECT_EQ(popup.widget()->Parent(), nullptr);
    EXPECT_TRUE(menu.getPrivateImpl()->ownsWidget());
    EXPECT_TRUE(popup.getPrivateImpl()->ownsWidget());
    EXPECT_EQ(menu.getPrivateImpl()->attachedTo(), nullptr);
    EXPECT_TRUE(isOnScreen(other));
    EXPECT_TRUE(hasFocus(other));
}

TEST_F(DisplayPrivateStackTest, AFullScreenLogsTheStackThatItReplaces)
{
    given({&menu, &popup});
    const auto lines = logged([&] { display->setCurrent(&other); });
    ASSERT_EQ(lines.size(), 9u);
    EXPECT_EQ(lines[2], "setCurrentImpl() " + self() + " mItemList:");
    EXPECT_EQ(lines[3], "  mItemList[0] displayable " + named(menu));
    EXPECT_EQ(lines[4], "  mItemList[1] displayable " + named(popup));
    EXPECT_EQ(lines[8], "**current, which is: [other] [0x" + shown(other.widget()) + "]");
}

TEST_F(DisplayPrivateStackTest, APopupStacksOnTopOfWhatIsShown)
{
    given({&menu});
    display->setCurrent(&popup);
    EXPECT_THAT(calls(), ElementsAre("popup: connect()", "menu: lostFocus()", "menu: gainOwnership()",
                                     "popup: releaseOwnership()", "popup: show()", "popup: releaseOwnership()",
                                     "menu: setSysWindowSize(0)"));
    EXPECT_THAT(display->itemList(), ElementsAre(&menu, &popup));
    EXPECT_TRUE(isOnScreen(menu));
    EXPECT_TRUE(isOnScreen(popup));
    EXPECT_EQ(menu.widget()->NextSibling(), popup.widget());
    EXPECT_TRUE(hasFocus(popup));
    EXPECT_EQ(menu.getPrivateImpl()->attachedTo(), display.get());
}

TEST_F(DisplayPrivateStackTest, APopupThatIsMadeCurrentTwiceStandsInTheStackOnce)
{
    given({&menu, &popup});
    display->setCurrent(&popup);
    EXPECT_THAT(display->itemList(), ElementsAre(&menu, &popup));
    EXPECT_THAT(calls(), ElementsAre("popup: connect()", "popup: releaseOwnership()", "popup: show()",
                                     "popup: releaseOwnership()"));
}

TEST_F(DisplayPrivateStackTest, APopupUnderTheTopKeepsItsPlaceInTheListAndComesToTheFrontOnScreen)
{
    given({&menu, &popup, &second});
    display->setCurrent(&popup);
    EXPECT_THAT(display->itemList(), ElementsAre(&menu, &popup, &second));
    EXPECT_EQ(display->getCurrent(), &popup);
    EXPECT_TRUE(hasFocus(popup));
    EXPECT_EQ(second.widget()->NextSibling(), popup.widget());
    EXPECT_THAT(calls(), ElementsAre("popup: connect()", "second: lostFocus()", "second: gainOwnership()",
                                     "popup: releaseOwnership()", "popup: show()", "popup: releaseOwnership()",
                                     "second: setSysWindowSize(0)"));
}

TEST_F(DisplayPrivateStackTest, AWidgetThatIsOnScreenIsTakenOffBeforeItIsAddedAgain)
{
    given({&menu, &popup, &second});
    const auto lines = logged([&] { display->setCurrent(&popup); });
    ASSERT_EQ(lines.size(), 11u);
    EXPECT_EQ(lines[6],
              "addNewCurrent() " + self() + " removing widget " + widget(popup) + " from parent " + manager());
    EXPECT_EQ(lines[7], "showWidget() " + self() + " called on " + priv(popup));
    EXPECT_EQ(lines[8], "showWidget() " + self() + " adding widget " + widget(popup) + " to PM " + manager());
}

TEST_F(DisplayPrivateStackTest, AScreenThatIsShownAlreadyIsOnlyShownAgain)
{
    given({&menu});
    const auto lines = logged([&] { display->setCurrent(&menu); });
    EXPECT_THAT(calls(), ElementsAre("menu: connect()", "menu: show()"));
    EXPECT_THAT(display->itemList(), ElementsAre(&menu));
    EXPECT_TRUE(isOnScreen(menu));
    EXPECT_FALSE(menu.getPrivateImpl()->ownsWidget());
    ASSERT_EQ(lines.size(), 5u);
    EXPECT_EQ(lines[4], "**current, which is: [menu] [0x" + shown(menu.widget()) + "]");
}

TEST_F(DisplayPrivateStackTest, AScreenThatIsShownUnderAPopupIsFocusedAgain)
{
    given({&menu, &popup});
    const auto lines = logged([&] { display->setCurrent(&menu); });
    EXPECT_THAT(calls(),
                ElementsAre("popup: disconnect()", "popup: gainOwnership()", "menu: connect()", "popup: lostFocus()",
                            "popup: gainOwnership()", "menu: show()", "popup: setSysWindowSize(0)"));
    EXPECT_THAT(display->itemList(), ElementsAre(&menu));
    EXPECT_TRUE(hasFocus(menu));
    EXPECT_EQ(popup.widget()->Parent(), nullptr);
    EXPECT_EQ(lines[5], "_ setCurrentImpl " + self() + " calling MoveFocusTree on widget " + widget(menu));
}

TEST_F(DisplayPrivateStackTest, AWidgetWithAnotherParentIsTakenFromIt)
{
    given({});
    PegWindow container;
    container.Add(menu.widget());
    const auto lines = logged([&] { display->setCurrent(&menu); });
    EXPECT_EQ(lines[2], "addNewCurrent() " + self() + " removing widget " + widget(menu) + " from parent [" +
                            shown(&container) + "]");
    EXPECT_TRUE(isOnScreen(menu));
    EXPECT_EQ(container.First(), nullptr);
}

TEST_F(DisplayPrivateStackTest, NullClearsTheScreen)
{
    given({&menu, &popup});
    display->setCurrent(nullptr);
    EXPECT_THAT(calls(), ElementsAre("menu: gainOwnership()", "popup: gainOwnership()", "menu: lostFocus()",
                                     "popup: lostFocus()", "popup: setSysWindowSize(0)"));
    EXPECT_EQ(display->getCurrent(), nullptr);
    EXPECT_THAT(display->itemList(), IsEmpty());
    EXPECT_EQ(menu.widget()->Parent(), nullptr);
    EXPECT_EQ(popup.widget()->Parent(), nullptr);
    EXPECT_EQ(observer.notifications, 1);
}

TEST_F(DisplayPrivateStackTest, ClearingTheScreenIsLogged)
{
    given({&menu, &popup});
    EXPECT_THAT(logged([&] { display->setCurrent(nullptr); }),
                ElementsAre("setCurrent() " + self() + " called on disp NULL",
                            "hideContentWidget() " + self() + " called",
                            "hideContentWidget() calling remove on [menu] [0x" + shown(menu.widget()) + "]",
                            "hideContentWidget() calling remove on [popup] [0x" + shown(popup.widget()) + "]",
                            "setCurrentImpl() calling lostFocus on [menu] [0x" + shown(&menu) + "]",
                            "setCurrentImpl() calling lostFocus on [popup] [0x" + shown(&popup) + "]"));
}

TEST_F(DisplayPrivateStackTest, ClearingAnEmptyScreenOnlyNotifies)
{
    given({});
    display->setCurrent(nullptr);
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_EQ(observer.notifications, 1);
}

TEST_F(DisplayPrivateStackTest, ADisplayableWithoutAPrivateSideIsRefused)
{
    given({&menu});
    Screen bare("bare");
    bare.dropPrivate();
    forgetCalls();
    host::LogCapture log;
    display->setCurrent(&bare);
    EXPECT_EQ(log.lines().back().level, 3);
    EXPECT_EQ(display->getCurrent(), &menu);
    EXPECT_THAT(display->itemList(), ElementsAre(&menu));
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(DisplayPrivateStackTest, ANamelessDisplayableShowsAsOneInTheLog)
{
    given({});
    struct Nameless : Screen {
        Nameless() : Screen("x") { name = "Displayable with no name"; }
    } nameless;
    EXPECT_EQ(logged([&] { display->setCurrent(&nameless); }).back(),
              "**current, which is: [Displayable with no name] [0x" + shown(nameless.widget()) + "]");
}

TEST_F(DisplayPrivateStackTest, ADisplayableWithoutAWidgetIsShownAllTheSame)
{
    given({&menu});
    second.getPrivateImpl()->dropWidget();
    display->setCurrent(&second);
    EXPECT_EQ(display->getCurrent(), &second);
    display->widgetDismissed(second.getPrivateImpl());
    EXPECT_EQ(display->getCurrent(), &menu);
}
