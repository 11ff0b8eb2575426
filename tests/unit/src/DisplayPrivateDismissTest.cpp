// A displayable that the user, or the displayable itself, has closed.

#include "unit/src/DisplayPrivateTest.h"

using test::shown;
using testing::ElementsAre;
using testing::IsEmpty;

using DisplayPrivateDismissTest = test::DisplayPrivateTest;

TEST_F(DisplayPrivateDismissTest, NullDoesNothing)
{
    given({&menu, &popup});
    EXPECT_THAT(logged([&] { display->widgetDismissed(nullptr); }), IsEmpty());
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_THAT(display->itemList(), ElementsAre(&menu, &popup));
}

TEST_F(DisplayPrivateDismissTest, UnderADismissedPopupTheOneBelowBecomesCurrentAgain)
{
    given({&menu, &popup});
    display->widgetDismissed(popup.getPrivateImpl());
    EXPECT_THAT(calls(), ElementsAre("popup: gainOwnership()", "popup: gainOwnership()", "menu: releaseOwnership()",
                                     "menu: show()"));
    EXPECT_EQ(display->getCurrent(), &menu);
    EXPECT_THAT(display->itemList(), ElementsAre(&menu));
    EXPECT_TRUE(isOnScreen(menu));
    EXPECT_TRUE(hasFocus(menu));
    EXPECT_EQ(gpPresent->Pending(), menu.widget());
    EXPECT_EQ(popup.widget()->Parent(), nullptr);
    EXPECT_TRUE(popup.getPrivateImpl()->ownsWidget());
    EXPECT_FALSE(menu.getPrivateImpl()->ownsWidget());
    EXPECT_EQ(menu.widget()->Layer(), 65);
    EXPECT_EQ(observer.notifications, 0);
}

TEST_F(DisplayPrivateDismissTest, OfThreeTheSecondBecomesCurrentWhenTheTopIsDismissed)
{
    given({&menu, &popup, &second});
    display->widgetDismissed(second.getPrivateImpl());
    EXPECT_EQ(display->getCurrent(), &popup);
    EXPECT_THAT(display->itemList(), ElementsAre(&menu, &popup));
    EXPECT_TRUE(hasFocus(popup));
    EXPECT_EQ(menu.widget()->NextSibling(), popup.widget());
}

TEST_F(DisplayPrivateDismissTest, RestoringTheOneBelowIsLogged)
{
    given({&menu, &popup});
    EXPECT_THAT(
        logged([&] { display->widgetDismissed(popup.getPrivateImpl()); }),
        ElementsAre("widgetDismissed() " + self() + " removing from list disp " + named(popup) + " " + priv(popup) +
                        " widget " + widget(popup),
                    "widgetDismissed() " + self() + " showing the previous current disp " + named(menu) + " " +
                        priv(menu) + " widget " + widget(menu),
                    "widgetDismissed() " + self() + " removing widget " + widget(menu) + " from parent " + manager(),
                    "widgetDismissed() " + self() + " adding widget " + widget(menu) + " to PM " + manager(),
                    "widgetDismissed() " + self() + " calling MoveFocusTree on widget " + widget(menu)));
}

TEST_F(DisplayPrivateDismissTest, AWidgetBelowThatHasNoParentIsAddedWithoutMovingTheFocus)
{
    given({&menu, &popup});
    gpPresent->Remove(menu.widget());
    const auto lines = logged([&] { display->widgetDismissed(popup.getPrivateImpl()); });
    EXPECT_THAT(calls(), ElementsAre("popup: gainOwnership()", "popup: gainOwnership()", "menu: releaseOwnership()",
                                     "menu: show()"));
    EXPECT_TRUE(isOnScreen(menu));
    EXPECT_FALSE(hasFocus(menu));
    EXPECT_EQ(gpPresent->Pending(), menu.widget());
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[2], "widgetDismissed() " + self() + " NOT calling MoveFocusTree on widget " + widget(menu));
}

TEST_F(DisplayPrivateDismissTest, DismissingOneUnderTheTopOnlyShrinksTheList)
{
    given({&menu, &popup, &second});
    const auto lines = logged([&] { display->widgetDismissed(popup.getPrivateImpl()); });
    EXPECT_THAT(calls(), ElementsAre("popup: gainOwnership()", "popup: gainOwnership()"));
    EXPECT_THAT(lines, ElementsAre("widgetDismissed() " + self() + " removing from list disp " + named(popup) + " " +
                                   priv(popup) + " widget " + widget(popup)));
    EXPECT_EQ(display->getCurrent(), &second);
    EXPECT_THAT(display->itemList(), ElementsAre(&menu, &second));
    EXPECT_TRUE(hasFocus(second));
    EXPECT_EQ(popup.widget()->Parent(), nullptr);
    EXPECT_EQ(observer.notifications, 0);
}

TEST_F(DisplayPrivateDismissTest, DismissingTheLastClearsTheScreen)
{
    given({&menu});
    EXPECT_THAT(logged([&] { display->widgetDismissed(menu.getPrivateImpl()); }),
                ElementsAre("widgetDismissed() " + self() + " removing from list disp " + named(menu) + " " +
                                priv(menu) + " widget " + widget(menu),
                            "setCurrent() " + self() + " called on disp NULL",
                            "hideContentWidget() " + self() + " called"));
    EXPECT_THAT(calls(), ElementsAre("menu: gainOwnership()", "menu: gainOwnership()", "menu: setSysWindowSize(0)"));
    EXPECT_EQ(display->getCurrent(), nullptr);
    EXPECT_THAT(display->itemList(), IsEmpty());
    EXPECT_EQ(menu.widget()->Parent(), nullptr);
    EXPECT_EQ(observer.notifications, 1);
}

TEST_F(DisplayPrivateDismissTest, OnAHiddenDisplayOnlyTheStackChanges)
{
    display->setCurrent(&menu);
    display->setCurrent(&popup);
    forgetCalls();
    const auto lines = logged([&] { display->widgetDismissed(popup.getPrivateImpl()); });
    EXPECT_EQ(lines.size(), 1u);
    EXPECT_THAT(calls(), ElementsAre("popup: gainOwnership()"));
    EXPECT_EQ(display->getCurrent(), &menu);
    EXPECT_EQ(menu.widget()->Parent(), nullptr);
}

TEST_F(DisplayPrivateDismissTest, AForeignWidgetIsTakenOutOfItsParentAllTheSame)
{
    given({&menu});
    PegWindow container;
    container.Add(other.widget());
    EXPECT_THAT(logged([&] { display->widgetDismissed(other.getPrivateImpl()); }), IsEmpty());
    EXPECT_THAT(calls(), ElementsAre("other: gainOwnership()"));
    EXPECT_EQ(other.widget()->Parent(), nullptr);
    EXPECT_THAT(display->itemList(), ElementsAre(&menu));
}

TEST_F(DisplayPrivateDismissTest, WithoutACurrentDisplayableNothingIsRestored)
{
    given({&menu});
    display->setCurrent(nullptr);
    forgetCalls();
    display->widgetDismissed(menu.getPrivateImpl());
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_EQ(display->getCurrent(), nullptr);
    EXPECT_EQ(observer.notifications, 0);
}

TEST_F(DisplayPrivateDismissTest, ThePrivateSideCanCloseItself)
{
    given({&menu, &popup});
    popup.getPrivateImpl()->widgetDismissed(popup.getPrivateImpl());
    EXPECT_EQ(display->getCurrent(), &menu);
}

TEST_F(DisplayPrivateDismissTest, ARestoredScreenIsTheFirstToHaveHadSystemWindowLines)
{
    given({&menu, &popup});
    display->widgetDismissed(popup.getPrivateImpl());
    forgetCalls();
    display->setCurrent(&other);
    EXPECT_EQ(doubles::Recorder::instance().count("popup"), 0);
    EXPECT_EQ(doubles::Recorder::instance().count("menu: setSysWindowSize"), 0);
}
