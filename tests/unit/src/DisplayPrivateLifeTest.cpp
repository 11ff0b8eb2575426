// How displays begin and end, and displayables that end while a display knows them.

#include "ContentWidget.h"
#include "ContentWidgetFactory.h"
#include "DisplayAPI/List.h"
#include "DisplayEventFilter.h"
#include "support/TestWidget.h"
#include "support/Worker.h"
#include "unit/src/DisplayPrivateTest.h"
#include "utilities/ICC.h"
#include "utilities/Threadable.h"

using namespace DisplayAPI;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::unique_ptr<DisplayPrivate> make(const char* hardware, bool narrow)
{
    return std::make_unique<DisplayPrivate>(narrow, hardware, "Corvane SIP", "de", "d.m.", "24", nullptr, nullptr,
                                            new doubles::FakeStartUp, false);
}

class CountingFactory : public ContentWidgetFactoryIfc {
public:
    explicit CountingFactory(ContentWidget*& made) : mMade(made) {}
    ContentWidget* createContentWidget() override { return mMade = new ContentWidget; }

private:
    ContentWidget*& mMade;
};

using DisplayPrivateLifeTest = test::DisplayPrivateTest;

} // namespace

TEST_F(DisplayPrivateLifeTest, TheAreaFollowsHardwareAndNarrowness)
{
    using DisplayAPIUtils::Rect;
    EXPECT_EQ(*make("any", false)->getDisplayArea(), Rect(0, 0, 240, 128));
    EXPECT_EQ(*make("any", true)->getDisplayArea(), Rect(0, 0, 168, 128));
    EXPECT_EQ(*make("", true)->getDisplayArea(), Rect(0, 0, 168, 128));
    EXPECT_EQ(*make("WP1", false)->getDisplayArea(), Rect(0, 0, 208, 42));
    EXPECT_EQ(*make("WP1", true)->getDisplayArea(), Rect(0, 0, 208, 42));
}

TEST_F(DisplayPrivateLifeTest, TheGivenRectangleIsNotUsed)
{
    DisplayAPIUtils::Rect given(1, 2, 3, 4);
    const DisplayPrivate made(false, "any", "", "", "", "", &given, nullptr, new doubles::FakeStartUp, false);
    EXPECT_EQ(*const_cast<DisplayPrivate&>(made).getDisplayArea(), DisplayAPIUtils::Rect(0, 0, 240, 128));
}

TEST_F(DisplayPrivateLifeTest, WithoutAnApplicationTheDisplayIsTheFullPanels)
{
    KestrelApplication* const application = KestrelApplication::getCurrentApplication();
    KestrelApplication::setCurrentApplication(nullptr);
    const auto made = make("WP1", false);
    EXPECT_EQ(*made->getDisplayArea(), DisplayAPIUtils::Rect(0, 0, 240, 128));
    made->localeChanged("fr");
    made->dateFormatChanged("m/d");
    made->timeFormatChanged("12");
    made->setSoftwareType("Corvane KVX");
    EXPECT_EQ(made->dateFormat(), "m/d");
    EXPECT_EQ(made->timeFormat(), "12");
    KestrelApplication::setCurrentApplication(application);
}

TEST_F(DisplayPrivateLifeTest, TheApplicationLearnsVariantTypeLocaleAndFormats)
{
    const auto* application = KestrelApplication::getCurrentApplication();
    const auto small = make("WP1", false);
    EXPECT_EQ(application->getHardwareVariant(), 0);
    EXPECT_EQ(application->getSoftwareType(), 0);
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(application->getLocale()), "de");
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(application->getDateFormat()), "d.m.");
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(application->getTimeFormat()), "24");
    EXPECT_EQ(small->dateFormat(), "d.m.");
    EXPECT_EQ(small->timeFormat(), "24");
    const auto full = make("wp1", false);
    EXPECT_EQ(application->getHardwareVariant(), 1);
}

TEST_F(DisplayPrivateLifeTest, AGivenFactoryMakesTheContentWidget)
{
    ContentWidget* content = nullptr;
    DisplayPrivate made(false, "any", "", "", "", "", nullptr, new CountingFactory(content), new doubles::FakeStartUp,
                        false);
    ASSERT_NE(content, nullptr);
    EXPECT_EQ(made.getContentWidget(), content);
    EXPECT_EQ(content->getParent(), &made);
}

TEST_F(DisplayPrivateLifeTest, TheGivenStartUpRunsOnceAndItsCleanUpAtTheEnd)
{
    int starts = 0;
    int stops = 0;
    {
        const DisplayPrivate made(false, "any", "", "", "", "", nullptr, nullptr,
                                  new doubles::FakeStartUp(&starts, &stops), false);
        EXPECT_EQ(starts, 1);
        EXPECT_EQ(stops, 0);
    }
    EXPECT_EQ(starts, 1);
    EXPECT_EQ(stops, 1);
}

TEST_F(DisplayPrivateLifeTest, AFilterIsInstalledWhereItIsAskedForAndTakenOutWithTheDisplay)
{
    EXPECT_EQ(DisplayEventFilter::getFilterPointer(), gui.filter());
    {
        const DisplayPrivate made(false, "any", "", "", "", "", nullptr, nullptr, new doubles::FakeStartUp, true);
        EXPECT_NE(DisplayEventFilter::getFilterPointer(), gui.filter());
        EXPECT_NE(DisplayEventFilter::getFilterPointer(), nullptr);
    }
    EXPECT_EQ(DisplayEventFilter::getFilterPointer(), gui.filter());
}

TEST_F(DisplayPrivateLifeTest, ADisplayThatOutlivesASecondOneCarriesOutWhatIsQueued)
{
    auto later = std::make_unique<DisplayPrivate>(false, "any", "", "", "", "", nullptr, nullptr,
                                                  new doubles::FakeStartUp, true);
    test::TestWidget widget;
    widget.postEventAsync(1);
    test::Worker caller([&] { widget.postEvent(2); });
    gui.waitForQueued(2);

    later.reset();
    EXPECT_TRUE(caller.isBlocked());
    gui.runAll();
    caller.join();
    widget.postEventAsync(3);
    gui.runAll();

    EXPECT_THAT(widget.codes(), ElementsAre(1, 2, 3));
    EXPECT_THAT(widget.threads(), testing::Each(Threadable::currentThreadId()));
}

TEST_F(DisplayPrivateLifeTest, TheFilterOfASecondDisplaySurvivesTheFirst)
{
    auto first = std::make_unique<DisplayPrivate>(false, "any", "", "", "", "", nullptr, nullptr,
                                                  new doubles::FakeStartUp, true);
    const DisplayPrivate survivor(false, "any", "", "", "", "", nullptr, nullptr, new doubles::FakeStartUp, true);
    const auto* const installed = DisplayEventFilter::getFilterPointer();
    first.reset();
    EXPECT_EQ(DisplayEventFilter::getFilterPointer(), installed);
}

TEST_F(DisplayPrivateLifeTest, TwoDisplaysKeepStacksOfTheirOwn)
{
    const auto another = make("any", false);
    display->show();
    another->show();
    display->setCurrent(&menu);
    another->setCurrent(&other);
    EXPECT_THAT(display->itemList(), ElementsAre(&menu));
    EXPECT_THAT(another->itemList(), ElementsAre(&other));
    EXPECT_TRUE(isOnScreen(menu));
    EXPECT_TRUE(isOnScreen(other));
    another->setCurrent(nullptr);
    EXPECT_TRUE(isOnScreen(menu));
}

TEST_F(DisplayPrivateLifeTest, ADisplayThatEndsHandsItsWidgetsBack)
{
    given({&menu, &popup});
    display.reset();
    for (Screen* screen : {&menu, &popup}) {
        EXPECT_TRUE(screen->getPrivateImpl()->ownsWidget());
        EXPECT_EQ(screen->widget()->Parent(), nullptr);
        EXPECT_EQ(screen->getPrivateImpl()->attachedTo(), nullptr);
    }
}

TEST_F(DisplayPrivateLifeTest, DeletingTheCurrentPopupRestoresTheOneBelow)
{
    auto doomed = std::make_unique<Screen>("doomed", POPUP);
    given({&menu, doomed.get()});
    doomed.reset();
    EXPECT_EQ(display->getCurrent(), &menu);
    EXPECT_THAT(display->itemList(), ElementsAre(&menu));
    EXPECT_TRUE(hasFocus(menu));
}

TEST_F(DisplayPrivateLifeTest, DeletingTheLastDisplayableClearsTheScreen)
{
    auto doomed = std::make_unique<Screen>("doomed");
    given({doomed.get()});
    doomed.reset();
    EXPECT_EQ(display->getCurrent(), nullptr);
    EXPECT_THAT(display->itemList(), IsEmpty());
    EXPECT_EQ(gpPresent->First(), nullptr);
    display->setCurrent(&menu);
    EXPECT_TRUE(hasFocus(menu));
}

TEST_F(DisplayPrivateLifeTest, DeletingADisplayableUnderTheTopShrinksTheStack)
{
    auto doomed = std::make_unique<Screen>("doomed");
    given({doomed.get(), &popup});
    doomed.reset();
    EXPECT_EQ(display->getCurrent(), &popup);
    EXPECT_THAT(display->itemList(), ElementsAre(&popup));
    EXPECT_TRUE(hasFocus(popup));
}

TEST_F(DisplayPrivateLifeTest, DeletingAHiddenDisplaysDisplayableForgetsIt)
{
    auto doomed = std::make_unique<Screen>("doomed");
    display->setCurrent(doomed.get());
    doomed.reset();
    EXPECT_EQ(display->getCurrent(), nullptr);
    display->show();
    EXPECT_EQ(gpPresent->First(), nullptr);
}

TEST_F(DisplayPrivateLifeTest, DeletingTheOneWhoseLinesAreRememberedForgetsIt)
{
    auto doomed = std::make_unique<Screen>("doomed");
    given({doomed.get()});
    display->createServerDisplay(&menu);
    doomed.reset();
    display->setCurrent(&other);
    EXPECT_EQ(doubles::Recorder::instance().last("doomed: setSysWindowSize").text, "");
    EXPECT_EQ(display->getCurrent(), &other);
}

TEST_F(DisplayPrivateLifeTest, ADisplayableThatNeverLeftIsForgottenByItsDestructor)
{
    struct Careless : Displayable {
        DisplayablePrivateIfc* getPrivateImpl() override { return side.get(); }
        std::unique_ptr<doubles::ScreenPrivate> side =
            std::make_unique<doubles::ScreenPrivate>("careless", doubles::ScreenPrivate::POPUP);
    };
    auto careless = std::make_unique<Careless>();
    given({&menu});
    display->setCurrent(careless.get());
    careless.reset();
    EXPECT_EQ(display->getCurrent(), &menu);
    EXPECT_THAT(display->itemList(), ElementsAre(&menu));
}

TEST_F(DisplayPrivateLifeTest, DeletingAListOnTwoDisplaysForgetsItOnBoth)
{
    const auto another = make("any", true);
    auto list = std::make_unique<List>(0);
    display->show();
    display->setCurrent(list.get());
    another->createServerDisplay(list.get());
    list.reset();
    EXPECT_EQ(display->getCurrent(), nullptr);
    EXPECT_EQ(another->getCurrent(), nullptr);
}

TEST_F(DisplayPrivateLifeTest, DisplayablesThatHaveLeftTheStackOutliveTheirDisplay)
{
    given({&menu, &popup});
    second.getPrivateImpl()->join(popup.getPrivateImpl());
    display->widgetDismissed(popup.getPrivateImpl());
    display->setCurrent(nullptr);
    display.reset();
    for (Screen* screen : {&menu, &popup, &second}) {
        EXPECT_EQ(screen->getPrivateImpl()->attachedTo(), nullptr);
        screen->getPrivateImpl()->generateDisplayChangedEvent();
        screen->getPrivateImpl()->widgetDismissed(screen->getPrivateImpl());
    }
    EXPECT_EQ(observer.notifications, 1) << "of the cleared screen";
}
