// Displayables that close or delete themselves, or one another, while the display does something to them.

#include "unit/src/DisplayPrivateTest.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

class DisplayPrivateReactionTest : public test::DisplayPrivateTest {
protected:
    using Reaction = std::function<void()>;

    static void on(Screen& screen, const char* call, Reaction reaction)
    {
        screen.getPrivateImpl()->reactions[call] = std::move(reaction);
    }

    Reaction closing(Screen& screen)
    {
        return [&screen] { screen.getPrivateImpl()->widgetDismissed(screen.getPrivateImpl()); };
    }

    /// Off the screen and its own again.
    static bool isBack(Screen& screen)
    {
        return screen.widget()->Parent() == nullptr && screen.getPrivateImpl()->ownsWidget();
    }

    void expectClearedScreen() const
    {
        EXPECT_EQ(gpPresent->First(), nullptr);
        EXPECT_EQ(display->getCurrent(), nullptr);
        EXPECT_THAT(display->itemList(), IsEmpty());
    }

    void expectOnly(Screen& screen) const
    {
        EXPECT_EQ(display->getCurrent(), &screen);
        EXPECT_THAT(display->itemList(), ElementsAre(&screen));
        EXPECT_EQ(gpPresent->First(), screen.widget());
        EXPECT_EQ(screen.widget()->NextSibling(), nullptr);
        EXPECT_TRUE(hasFocus(screen));
        EXPECT_FALSE(screen.getPrivateImpl()->ownsWidget());
    }

    std::unique_ptr<Screen> doomed = std::make_unique<Screen>("doomed", POPUP);
};

} // namespace

TEST_F(DisplayPrivateReactionTest, APopupThatClosesItselfOnAClearedScreenBringsNothingBack)
{
    given({&menu, &popup});
    on(popup, "lostFocus", closing(popup));
    display->setCurrent(nullptr);
    expectClearedScreen();
    EXPECT_TRUE(isBack(menu));
    EXPECT_TRUE(isBack(popup));
    EXPECT_THAT(calls(), Not(Contains("menu: show()")));
    EXPECT_EQ(observer.notifications, 1);
}

TEST_F(DisplayPrivateReactionTest, TheOnlyPopupThatClosesItselfOnAClearedScreenIsClearedOnce)
{
    given({&popup});
    on(popup, "lostFocus", closing(popup));
    display->setCurrent(nullptr);
    expectClearedScreen();
    EXPECT_EQ(observer.notifications, 1);
    EXPECT_EQ(doubles::Recorder::instance().count("popup: setSysWindowSize"), 1);
}

TEST_F(DisplayPrivateReactionTest, EveryEntryOfAClearedScreenLosesTheFocusThoughOthersCloseIt)
{
    given({&menu, &popup, &second});
    on(menu, "lostFocus", closing(popup));
    display->setCurrent(nullptr);
    expectClearedScreen();
    EXPECT_THAT(calls(), Contains("popup: lostFocus()"));
    EXPECT_THAT(calls(), Contains("second: lostFocus()"));
}

TEST_F(DisplayPrivateReactionTest, OneThatIsDeletedWhileTheScreenIsClearedIsPassedOver)
{
    given({&menu, doomed.get(), &popup});
    on(menu, "lostFocus", [this] { doomed.reset(); });
    display->setCurrent(nullptr);
    expectClearedScreen();
    EXPECT_THAT(calls(), Contains("popup: lostFocus()"));
}

TEST_F(DisplayPrivateReactionTest, OneThatDeletesItselfWhenTheScreenIsClearedIsGone)
{
    given({&menu, doomed.get()});
    on(*doomed, "lostFocus", [this] { doomed.reset(); });
    display->setCurrent(nullptr);
    expectClearedScreen();
}

TEST_F(DisplayPrivateReactionTest, OneThatIsMadeCurrentWhileTheScreenIsClearedIsClearedAsWell)
{
    given({&menu});
    on(menu, "lostFocus", [this] { display->setCurrent(&other); });
    display->setCurrent(nullptr);
    expectClearedScreen();
    EXPECT_TRUE(isBack(other));
}

TEST_F(DisplayPrivateReactionTest, OneThatIsClosedWhileAFullScreenTakesItsPlaceBringsNothingBack)
{
    for (const char* call : {"disconnect", "gainOwnership"}) {
        given({&menu, &popup, &second});
        on(popup, call, [this] { display->widgetDismissed(second.getPrivateImpl()); });
        display->setCurrent(&other);
        expectOnly(other);
        for (Screen* screen : {&menu, &popup, &second})
            EXPECT_TRUE(isBack(*screen)) << call;
    }
}

TEST_F(DisplayPrivateReactionTest, OneThatIsDeletedWhileAFullScreenTakesItsPlaceIsPassedOver)
{
    given({&menu, doomed.get(), &popup});
    on(menu, "gainOwnership", [this] { doomed.reset(); });
    display->setCurrent(&other);
    expectOnly(other);
}

TEST_F(DisplayPrivateReactionTest, OneThatClosesItselfWhenAPopupTakesTheFocusLeavesTheStack)
{
    given({&menu, &popup});
    on(popup, "lostFocus", closing(popup));
    display->setCurrent(&second);
    EXPECT_THAT(display->itemList(), ElementsAre(&menu, &second));
    EXPECT_EQ(display->getCurrent(), &second);
    EXPECT_TRUE(hasFocus(second));
    EXPECT_TRUE(isBack(popup));
    EXPECT_EQ(doubles::Recorder::instance().count("second: show"), 1);
}

TEST_F(DisplayPrivateReactionTest, OneThatDeletesItselfWhenAPopupTakesTheFocusIsGone)
{
    given({&menu, doomed.get()});
    on(*doomed, "lostFocus", [this] { doomed.reset(); });
    display->setCurrent(&second);
    EXPECT_THAT(display->itemList(), ElementsAre(&menu, &second));
    EXPECT_EQ(display->getCurrent(), &second);
}

TEST_F(DisplayPrivateReactionTest, AScreenThatIsClearedWhileAPopupTakesTheFocusStaysClear)
{
    given({&menu});
    on(menu, "lostFocus", [this] { display->setCurrent(nullptr); });
    display->setCurrent(&popup);
    expectClearedScreen();
    EXPECT_TRUE(isBack(popup));
}

TEST_F(DisplayPrivateReactionTest, APopupThatClosesItselfAsItIsShownUncoversTheOneBelow)
{
    given({&menu});
    on(popup, "show", closing(popup));
    display->setCurrent(&popup);
    expectOnly(menu);
    EXPECT_TRUE(isBack(popup));
    EXPECT_THAT(calls(), Contains("menu: show()"));
}

TEST_F(DisplayPrivateReactionTest, APopupThatDeletesItselfAsItIsShownUncoversTheOneBelow)
{
    given({&menu});
    on(*doomed, "show", [this] { doomed.reset(); });
    display->setCurrent(doomed.get());
    expectOnly(menu);
}

TEST_F(DisplayPrivateReactionTest, AFullScreenThatClosesItselfAsItIsShownLeavesTheScreenEmpty)
{
    given({&menu});
    on(other, "show", closing(other));
    display->setCurrent(&other);
    expectClearedScreen();
    EXPECT_TRUE(isBack(other));
}

TEST_F(DisplayPrivateReactionTest, AFullScreenThatClosesItselfAsItIsShownAgainLeavesTheScreenEmpty)
{
    given({&menu, &popup});
    on(menu, "show", closing(menu));
    display->setCurrent(&menu);
    expectClearedScreen();
    EXPECT_TRUE(isBack(menu));
    EXPECT_TRUE(isBack(popup));
}

TEST_F(DisplayPrivateReactionTest, OneThatMakesAnotherOneCurrentAsItIsShownStaysBelow)
{
    given({&menu});
    on(popup, "show", [this] { display->setCurrent(&second); });
    display->setCurrent(&popup);
    EXPECT_THAT(display->itemList(), ElementsAre(&menu, &popup, &second));
    EXPECT_EQ(display->getCurrent(), &second);
    EXPECT_TRUE(hasFocus(second));
    EXPECT_EQ(popup.widget()->NextSibling(), second.widget());
}

TEST_F(DisplayPrivateReactionTest, OneThatClearsTheScreenAsItIsShownLeavesItClear)
{
    given({});
    on(menu, "show", [this] { display->setCurrent(nullptr); });
    display->setCurrent(&menu);
    expectClearedScreen();
    EXPECT_TRUE(isBack(menu));
}

TEST_F(DisplayPrivateReactionTest, OneThatClosesItselfAsTheDisplayIsShownUncoversTheOneBelow)
{
    display->setCurrent(&menu);
    display->setCurrent(&popup);
    on(popup, "show", closing(popup));
    display->show();
    expectOnly(menu);
    EXPECT_TRUE(isBack(popup));
}

TEST_F(DisplayPrivateReactionTest, OneThatIsClosedAsTheDisplayIsShownIsNotPutThere)
{
    display->setCurrent(&menu);
    display->setCurrent(&popup);
    display->setCurrent(&second);
    on(menu, "releaseOwnership", closing(popup));
    display->show();
    EXPECT_THAT(display->itemList(), ElementsAre(&menu, &second));
    EXPECT_TRUE(isBack(popup));
    EXPECT_TRUE(isOnScreen(second));
}

TEST_F(DisplayPrivateReactionTest, OneThatClosesItselfAsTheDisplayIsHiddenIsGoneWhenItIsShown)
{
    given({&menu, &popup});
    on(popup, "lostFocus", closing(popup));
    display->hide();
    EXPECT_EQ(gpPresent->First(), nullptr);
    display->show();
    expectOnly(menu);
    EXPECT_TRUE(isBack(popup));
}

TEST_F(DisplayPrivateReactionTest, OneThatClosesItselfAsItComesBackUncoversTheNext)
{
    given({&menu, &popup, &second});
    on(popup, "show", closing(popup));
    display->widgetDismissed(second.getPrivateImpl());
    expectOnly(menu);
    EXPECT_TRUE(isBack(popup));
}

TEST_F(DisplayPrivateReactionTest, OneThatIsDeletedAsAnotherOneIsClosedIsForgotten)
{
    given({&menu, doomed.get(), &popup});
    on(popup, "gainOwnership", [this] { doomed.reset(); });
    display->widgetDismissed(popup.getPrivateImpl());
    expectOnly(menu);
    EXPECT_TRUE(isBack(popup));
}

TEST_F(DisplayPrivateReactionTest, OneThatIsDeletedWhileTheScreenIsDescribedIsPassedOver)
{
    for (const bool whole : {true, false}) {
        doomed = std::make_unique<Screen>("doomed", POPUP);
        given({&menu, doomed.get(), &popup});
        menu.getPrivateImpl()->text = "menu\n";
        popup.getPrivateImpl()->text = "popup\n";
        on(menu, "serialise", [this] { doomed.reset(); });
        EXPECT_EQ(whole ? display->serialise() : display->serialiseByRect({}, false), "menu\npopup\n");
    }
}

TEST_F(DisplayPrivateReactionTest, OneThatIsDeletedWhileItsDisplayEndsIsPassedOver)
{
    given({&menu, doomed.get(), &popup});
    on(menu, "gainOwnership", [this] { doomed.reset(); });
    on(popup, "gainOwnership", [this, ending = display.get()] { ending->widgetDismissed(menu.getPrivateImpl()); });
    display.reset();
    EXPECT_EQ(gpPresent->First(), nullptr);
    EXPECT_TRUE(isBack(menu));
    EXPECT_TRUE(isBack(popup));
}

TEST_F(DisplayPrivateReactionTest, AServersScreenThatClosesItselfAsItIsShownUncoversTheOneBelow)
{
    given({&menu});
    on(popup, "show", closing(popup));
    display->createServerDisplay(&popup);
    expectOnly(menu);
    EXPECT_TRUE(isBack(popup));
}
