// Showing and hiding the stack, and server displays.

#include "unit/src/DisplayPrivateTest.h"

#include "ContentWidget.h"
#include "widgets/SystemWindow.h"

using test::shown;
using testing::ElementsAre;
using testing::IsEmpty;

using DisplayPrivateShowTest = test::DisplayPrivateTest;

TEST_F(DisplayPrivateShowTest, EveryWidgetIsAddedAndOnlyTheTopmostShown)
{
    display->setCurrent(&menu);
    display->setCurrent(&popup);
    forgetCalls();
    EXPECT_THAT(
        logged([&] { display->show(); }),
        ElementsAre("show() " + self() + " calling showContentWidget()", "showContentWidget() " + self() + " called",
                    "showContentWidget() " + self() + " adding widget " + widget(menu) + " to PM " + manager(),
                    "showContentWidget() " + self() + " adding widget " + widget(popup) + " to PM " + manager(),
                    "showContentWidget end",
                    "show() " + self() + " calling showWidget on disp " + named(popup) + " " + priv(popup) +
                        " widget " + widget(popup),
                    "showWidget() " + self() + " called on " + priv(popup),
                    "showWidget() " + self() + " adding widget " + widget(popup) + " to PM _SKIPPED_ " + manager(),
                    "showWidget() " + self() + " calling MoveFocusTree on widget " + widget(popup)));
    EXPECT_THAT(calls(), ElementsAre("menu: releaseOwnership()", "popup: releaseOwnership()", "popup: show()"));
    EXPECT_TRUE(isOnScreen(menu));
    EXPECT_TRUE(isOnScreen(popup));
    EXPECT_TRUE(hasFocus(popup));
    EXPECT_FALSE(menu.getPrivateImpl()->ownsWidget());
    EXPECT_FALSE(popup.getPrivateImpl()->ownsWidget());
}

TEST_F(DisplayPrivateShowTest, WhatIsOnScreenIsNotAddedAgain)
{
    given({&menu});
    EXPECT_THAT(
        logged([&] { display->show(); }),
        ElementsAre("show() " + self() + " calling showContentWidget()", "showContentWidget() " + self() + " called",
                    "showContentWidget() " + self() + "  widget " + widget(menu) + " already in PM " + manager(),
                    "showContentWidget end",
                    "show() " + self() + " calling showWidget on disp " + named(menu) + " " + priv(menu) + " widget " +
                        widget(menu),
                    "showWidget() " + self() + " called on " + priv(menu),
                    "showWidget() " + self() + " adding widget " + widget(menu) + " to PM _SKIPPED_ " + manager()));
    EXPECT_THAT(calls(), ElementsAre("menu: show()"));
}

TEST_F(DisplayPrivateShowTest, AWidgetWithAnotherParentIsTakenFromIt)
{
    PegWindow container;
    display->setCurrent(&menu);
    container.Add(menu.widget());
    const auto lines = logged([&] { display->show(); });
    EXPECT_EQ(lines[2], "showContentWidget() " + self() + " removing widget " + widget(menu) + " from parent [" +
                            shown(&container) + "]");
    EXPECT_TRUE(isOnScreen(menu));
}

TEST_F(DisplayPrivateShowTest, AnEmptyStackShowsNothing)
{
    EXPECT_THAT(logged([&] { display->show(); }),
                ElementsAre("show() " + self() + " calling showContentWidget()",
                            "showContentWidget() " + self() + " called", "showContentWidget end"));
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(DisplayPrivateShowTest, HidingTakesEveryWidgetOffTheScreenAndKeepsTheStack)
{
    given({&menu, &popup});
    EXPECT_THAT(logged([&] { display->hide(); }),
                ElementsAre("hide() " + self() + " calling hideContentWidget()",
                            "hideContentWidget() " + self() + " called",
                            "hideContentWidget() calling remove on [menu] [0x" + shown(menu.widget()) + "]",
                            "hideContentWidget() calling remove on [popup] [0x" + shown(popup.widget()) + "]"));
    EXPECT_THAT(calls(), ElementsAre("popup: lostFocus()", "menu: gainOwnership()", "popup: gainOwnership()"));
    EXPECT_THAT(display->itemList(), ElementsAre(&menu, &popup));
    EXPECT_EQ(display->getCurrent(), &popup);
    EXPECT_EQ(menu.widget()->Parent(), nullptr);
    EXPECT_EQ(popup.widget()->Parent(), nullptr);
}

TEST_F(DisplayPrivateShowTest, HidingShrinksTheSystemWindowToNothing)
{
    given({&menu});
    display->getContentWidget()->setSystemWindowSize(2);
    display->getContentWidget()->setSystemWindowText(1, "busy");
    display->hide();
    const PegRect area = display->getContentWidget()->getSystemWindow()->Area();
    EXPECT_LT(area.bottom, area.top);
}

TEST_F(DisplayPrivateShowTest, ShowingAfterHidingRestoresTheSameStack)
{
    given({&menu, &popup});
    display->hide();
    forgetCalls();
    display->show();
    EXPECT_THAT(calls(), ElementsAre("menu: releaseOwnership()", "popup: releaseOwnership()", "popup: show()"));
    EXPECT_EQ(menu.widget()->NextSibling(), popup.widget());
    EXPECT_TRUE(hasFocus(popup));
}

TEST_F(DisplayPrivateShowTest, HidingWithoutACurrentDisplayableTouchesNothing)
{
    given({});
    EXPECT_THAT(logged([&] { display->hide(); }), IsEmpty());
    display->setCurrent(&menu);
    EXPECT_FALSE(isOnScreen(menu)) << "hidden all the same";
}

TEST_F(DisplayPrivateShowTest, OnTheFullPanelNobodyIsNotified)
{
    given({&menu});
    display->hide();
    display->show();
    EXPECT_EQ(observer.notifications, 0);
}

TEST_F(DisplayPrivateShowTest, OnTheSmallPanelEachOfThemNotifiesOnceWithOrWithoutAScreen)
{
    makeDisplay("WP1");
    display->show();
    EXPECT_EQ(observer.notifications, 1);
    display->hide();
    EXPECT_EQ(observer.notifications, 2);
    display->setCurrent(&menu);
    observer.notifications = 0;
    display->show();
    EXPECT_EQ(observer.notifications, 1);
    display->hide();
    EXPECT_EQ(observer.notifications, 2);
}

using DisplayPrivateServerTest = test::DisplayPrivateTest;

TEST_F(DisplayPrivateServerTest, AServerDisplayAddsTheDisplayableAndItsWidget)
{
    PegWindow container;
    container.Add(menu.widget());
    EXPECT_THAT(logged([&] { display->createServerDisplay(&menu); }),
                ElementsAre("1. DisplayPrivate::createServerDisplay mItemList size is: 1 " + named(menu)));
    EXPECT_THAT(calls(), ElementsAre("menu: connect()", "menu: releaseOwnership()", "menu: show()"));
    EXPECT_EQ(display->getCurrent(), &menu);
    EXPECT_THAT(display->itemList(), ElementsAre(&menu));
    EXPECT_TRUE(isOnScreen(menu));
    EXPECT_EQ(menu.getPrivateImpl()->attachedTo(), display.get());
}

TEST_F(DisplayPrivateServerTest, AServerDisplayStacksWithoutReplacing)
{
    display->createServerDisplay(&menu);
    const auto lines = logged([&] { display->createServerDisplay(&other); });
    EXPECT_EQ(lines.back(), "1. DisplayPrivate::createServerDisplay mItemList size is: 2 " + named(other));
    EXPECT_THAT(display->itemList(), ElementsAre(&menu, &other));
    EXPECT_TRUE(isOnScreen(menu));
}

TEST_F(DisplayPrivateServerTest, ANarrowDisplayOnlyMakesItCurrentAndShowsIt)
{
    makeDisplay("any", true);
    EXPECT_THAT(logged([&] { display->createServerDisplay(&menu); }), IsEmpty());
    EXPECT_THAT(calls(), ElementsAre("menu: connect()", "menu: show()"));
    EXPECT_EQ(display->getCurrent(), &menu);
    EXPECT_THAT(display->itemList(), IsEmpty());
    EXPECT_EQ(menu.widget()->Parent(), nullptr);
    EXPECT_EQ(observer.notifications, 0);
}

TEST_F(DisplayPrivateServerTest, NullDoesNothing)
{
    given({&menu});
    display->createServerDisplay(nullptr);
    EXPECT_EQ(display->getCurrent(), &menu);
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(DisplayPrivateServerTest, ADisplayableWithoutAWidgetIsListedAndShown)
{
    menu.getPrivateImpl()->dropWidget();
    display->createServerDisplay(&menu);
    EXPECT_THAT(calls(), ElementsAre("menu: connect()", "menu: show()"));
    EXPECT_THAT(display->itemList(), ElementsAre(&menu));
}

TEST_F(DisplayPrivateServerTest, ADisplayableThatWasAddedTwiceIsGoneWhenItIsDeleted)
{
    auto twice = std::make_unique<Screen>("twice");
    display->show();
    display->createServerDisplay(twice.get());
    display->createServerDisplay(&menu);
    display->createServerDisplay(twice.get());
    twice.reset();
    EXPECT_THAT(display->itemList(), ElementsAre(&menu));
    EXPECT_EQ(display->getCurrent(), &menu);
}

TEST_F(DisplayPrivateServerTest, ADisplayThatEndsLetsGoOfACurrentOneThatIsNotInItsStack)
{
    makeDisplay("any", true);
    display->createServerDisplay(&menu);
    forgetCalls();
    display.reset();
    EXPECT_THAT(calls(), ElementsAre("menu: disconnect()", "menu: gainOwnership()"));
}
