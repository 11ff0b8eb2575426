// How pages come into a tab screen and leave it, whose their widgets are, and where the keys go.

#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/DisplayEventIfc.h"
#include "support/LogLines.h"
#include "unit/host/variants/Told.h"
#include "unit/host/variants/tab/TabScreenVariantTest.h"

#include <functional>
#include <utility>

using namespace DisplayAPI;
using testing::ElementsAre;

namespace {

class Observer : public DisplayEventIfc {
public:
    void displayChanged(std::string) override { ++changes; }

    int changes = 0;
};

class TabPagesTest : public test::TabScreenVariantTest {
protected:
    static void dismiss(List& list)
    {
        auto* const side = dynamic_cast<DisplayablePrivate*>(list.getPrivateImpl());
        side->widgetDismissed(side);
    }
};

TEST_P(TabPagesTest, TabThatGoesTakesTheFocusToTheNextOne)
{
    open();
    tabs->removeTab(all.get());
    EXPECT_EQ(tabs->getCurrentTabIndex(), 0);
    EXPECT_EQ(widgetOf(*all)->Parent(), nullptr);
    expectInPage(*missed);
    tabs->removeTabAtIndex(0);
    EXPECT_EQ(tabs->getCurrentTabIndex(), -1);
    expectInBar();
    for (const int key : {PK_UP, PK_DOWN, PK_RIGHT, PK_OK})
        press(key);
    expectInBar();
}

TEST_P(TabPagesTest, LastTabThatGoesTakesTheFocusToTheOneBefore)
{
    open();
    tabs->setCurrentTabIndex(1);
    expectInPage(*missed);
    tabs->removeTab(missed.get());
    EXPECT_EQ(tabs->getCurrentTabIndex(), 0);
    expectInPage(*all);
}

TEST_P(TabPagesTest, TabThatGoesBeforeTheCurrentOneLeavesThatInPlace)
{
    open();
    tabs->setCurrentTabIndex(1);
    tabs->removeTabAtIndex(0);
    EXPECT_EQ(tabs->getCurrentTabIndex(), 0);
    expectInPage(*missed);
}

TEST_P(TabPagesTest, UserInTheBarStaysThereWhenTabsGo)
{
    open();
    press(PK_UP);
    tabs->removeTab(all.get());
    expectInBar();
    EXPECT_EQ(tabs->currentTab(), missed.get());
}

TEST_P(TabPagesTest, PageThatIsInNoTabIsIgnored)
{
    List other(0);
    open();
    tabs->removeTab(&other);
    EXPECT_EQ(tabs->numberOfTabs(), 2);
    expectInPage(*all);
}

TEST_P(TabPagesTest, PageWithoutASideIsTakenOutOfItsOwnTab)
{
    List bare(nullptr), other(nullptr);
    tabs->addTab("Nothing", nullptr, false);
    tabs->addTab("Bare", &bare, false);
    const host::LogCapture log;
    tabs->removeTab(&other);
    EXPECT_EQ(tabs->numberOfTabs(), 4);
    tabs->removeTab(&bare);
    EXPECT_EQ(tabs->numberOfTabs(), 3);
    EXPECT_EQ(tabs->getTitleForTabAtIndex(2), "Nothing");
    EXPECT_TRUE(test::linesOf(log, "DisplayAPI::TabScreen").empty());
}

TEST_P(TabPagesTest, FirstEmptyTabIsTakenOutAndNotOneWithAPageWithoutASide)
{
    List bare(nullptr);
    tabs->addTab("Bare", &bare, false);
    tabs->addTab("Nothing", nullptr, false);
    tabs->removeTab(nullptr);
    EXPECT_EQ(tabs->numberOfTabs(), 3);
    EXPECT_EQ(tabs->getTitleForTabAtIndex(2), "Bare");
}

TEST_P(TabPagesTest, EmptyTabGivesTheKeysToTheBar)
{
    tabs->addTab("Nothing", nullptr, false);
    open();
    tabs->setCurrentTabIndex(2);
    expectInBar();
    press(PK_DOWN);
    expectInBar();
    press(PK_LEFT);
    EXPECT_EQ(tabs->getCurrentTabIndex(), 1);
}

TEST_P(TabPagesTest, LeftIsTheBarsWhereThePageHasNoWayBack)
{
    open();
    tabs->setCurrentTabIndex(1);
    press(PK_LEFT);
    expectInPage(*all);
    press(PK_LEFT);
    EXPECT_THAT(raised, ElementsAre(TabScreen::TABBACK_COMMAND(), TabScreen::BACK_COMMAND()));
}

TEST_P(TabPagesTest, LeftIsThePagesWhereItHasAWayBack)
{
    List dialled(3);
    dialled.addCommandListener(&listener);
    tabs->addTab("Dialled", &dialled, true);
    open();
    press(PK_LEFT);
    EXPECT_EQ(tabs->currentTab(), &dialled);
    EXPECT_THAT(raised, ElementsAre(List::BACK_COMMAND()));
}

TEST_P(TabPagesTest, RightIsTheBarsWhereThePageHasNoRows)
{
    open();
    press(PK_RIGHT);
    EXPECT_EQ(tabs->currentTab(), all.get());
    all->clear();
    press(PK_RIGHT);
    EXPECT_EQ(tabs->currentTab(), missed.get());
}

TEST_P(TabPagesTest, AnotherPageTakesThePlaceOfTheCurrentOne)
{
    List dialled(0);
    dialled.append("Dora");
    dialled.append("Emil");
    open();
    tabs->setCurrentDisplayable(&dialled);
    expectInPage(dialled);
    EXPECT_EQ(widgetOf(*all)->Parent(), nullptr);
    tabs->setCurrentDisplayable(nullptr);
    expectInBar();
    EXPECT_EQ(tabs->currentTab(), nullptr);
    tabs->setCurrentDisplayableForTabAtIndex(0, all.get());
    press(PK_OK);
    expectInPage(*all);
}

TEST_P(TabPagesTest, PageThatIsDeletedLeavesItsTabEmpty)
{
    open();
    all.reset();
    expectInBar();
    EXPECT_EQ(tabs->currentTab(), nullptr);
    EXPECT_EQ(tabs->numberOfTabs(), 2);
    press(PK_RIGHT);
    press(PK_DOWN);
    expectInPage(*missed);
}

TEST_P(TabPagesTest, WhoIsToldOfAPagesEndMayDeleteThePageAndTheTabs)
{
    TabScreen other(TabScreen::CALLS, true);
    other.addTab("All", all.get(), false);
    open();
    const test::Told told(display, [&] {
        tabs.reset();
        all.reset();
    });
    all->cleanup();
    EXPECT_EQ(all, nullptr);
    EXPECT_EQ(other.currentTab(), nullptr);
}

TEST_P(TabPagesTest, WhoIsToldOfAnotherPageMayDeleteTheTabs)
{
    using Change = std::function<void()>;
    for (const Change& change : {Change([&] { tabs->setCurrentDisplayable(nullptr); }),
                                 Change([&] { tabs->setCurrentDisplayableForTabAtIndex(0, nullptr); })}) {
        tabs = std::make_unique<TabScreen>(TabScreen::CALLS, true);
        tabs->addTab("All", all.get(), false);
        open();
        const test::Told told(display, [&] { tabs.reset(); });
        change();
        EXPECT_EQ(tabs, nullptr);
    }
}

TEST_P(TabPagesTest, PageThatIsNotShownMayBeDeleted)
{
    open();
    missed.reset();
    tabs->setCurrentTabIndex(1);
    EXPECT_EQ(tabs->currentTab(), nullptr);
    expectInBar();
}

TEST_P(TabPagesTest, PageThatDismissesItselfGivesTheKeysToTheBarAndComesBackWhenEntered)
{
    open();
    dismiss(*all);
    EXPECT_EQ(widgetOf(*all)->Parent(), nullptr);
    expectInBar();
    press(PK_OK);
    expectInPage(*all);
    dismiss(*all);
    tabs->setCurrentTabIndex(1);
    tabs->setCurrentTabIndex(0);
    EXPECT_EQ(widgetOf(*all)->Parent(), window());
}

TEST_P(TabPagesTest, PageThatIsHiddenGivesTheKeysToTheBar)
{
    open();
    all->hide();
    expectInBar();
    press(PK_DOWN);
    expectInPage(*all);
}

TEST_P(TabPagesTest, PopupGivesTheKeysBackToThePageOrToTheBar)
{
    ContextMenu menu(false);
    open();
    display.setCurrent(&menu);
    EXPECT_EQ(gpPresent->Focus(), widgetOf(menu));
    menu.dismiss();
    expectInPage(*all);
    all->setSelectedIndex(0);
    press(PK_UP);
    display.setCurrent(&menu);
    menu.dismiss();
    expectInBar();
}

TEST_P(TabPagesTest, TabThatChangesUnderAPopupLeavesThatTheKeys)
{
    ContextMenu menu(false);
    open();
    display.setCurrent(&menu);
    tabs->setCurrentTabIndex(1);
    dismiss(*missed);
    tabs->removeTab(all.get());
    EXPECT_EQ(gpPresent->Focus(), widgetOf(menu));
    menu.dismiss();
    expectInPage(*missed);
}

TEST_P(TabPagesTest, PageGetsItsFormerAreaBack)
{
    const PegRect before = widgetOf(*missed)->Area();
    open();
    tabs->setCurrentTabIndex(1);
    EXPECT_NE(widgetOf(*missed)->Area(), before);
    tabs->setCurrentTabIndex(0);
    EXPECT_EQ(widgetOf(*missed)->Area(), before);
}

TEST_P(TabPagesTest, PageThatIsShownByItselfComesBackWithItsTabScreen)
{
    open();
    display.setCurrent(all.get());
    EXPECT_EQ(gpPresent->Focus(), widgetOf(*all));
    EXPECT_EQ(widgetOf(*all)->Area().top, 0);
    open();
    expectInPage(*all);
}

TEST_P(TabPagesTest, PageThatIsOnTheScreenStaysThereUntilItsTabScreenIsShown)
{
    List list(0);
    list.append("Dora");
    list.append("Emil");
    display.setCurrent(&list);
    tabs->setCurrentDisplayable(&list);
    EXPECT_EQ(widgetOf(list)->Parent(), gpPresent);
    EXPECT_EQ(gpPresent->Focus(), widgetOf(list));
    open();
    expectInPage(list);
    display.setCurrent(nullptr);
}

TEST_P(TabPagesTest, ObserverCountsAsManyTabsAsThereAre)
{
    struct Counting : DisplayEventIfc {
        explicit Counting(TabScreen& counted) : screen(counted) {}
        void displayChanged(std::string) override { screen.numberOfTabs(); }
        TabScreen& screen;
    } counting(*tabs);
    open();
    display.subscribe(&counting);
    const host::LogCapture log;
    tabs->addTab("Nothing", nullptr, true);
    tabs->removeTabAtIndex(0);
    tabs->removeTab(nullptr);
    EXPECT_TRUE(test::linesOf(log, "DisplayAPI::TabScreen").empty());
    display.unSubscribe();
}

/// Notes its end.
struct Mark : PegThing {
    explicit Mark(bool& end) : isGone(end) {}
    ~Mark() override { isGone = true; }
    bool& isGone;
};

TEST_P(TabPagesTest, PageThatHasLeftDeletesItsWidgetItself)
{
    bool isGone = false;
    widgetOf(*all)->Add(new Mark(isGone));
    open();
    tabs->setCurrentTabIndex(1);
    EXPECT_FALSE(isGone);
    all.reset();
    EXPECT_TRUE(isGone);
}

TEST_P(TabPagesTest, TabScreenThatGoesLeavesItsPages)
{
    open();
    tabs.reset();
    EXPECT_EQ(widgetOf(*all)->Parent(), nullptr);
    display.setCurrent(all.get());
    EXPECT_EQ(gpPresent->Focus(), widgetOf(*all));
}

TEST_P(TabPagesTest, ChangeOfATabReachesTheObserverWhileTheTabsAreOnScreen)
{
    const std::vector<std::pair<const char*, std::function<void()>>> changes{
        {"title", [&] { tabs->setTitleForTabAtIndex(1, "Lost"); }},
        {"empty tab", [&] { tabs->addTab("Sent", nullptr, false); }},
        {"page", [&] { tabs->setCurrentDisplayableForTabAtIndex(1, nullptr); }},
        {"removal", [&] { tabs->removeTabAtIndex(2); }},
    };
    Observer observer;
    open();
    display.subscribe(&observer);
    for (const auto& [what, change] : changes) {
        change();
        EXPECT_EQ(std::exchange(observer.changes, 0), 1) << what;
    }
    display.setCurrent(missed.get());
    observer.changes = 0;
    for (const auto& [what, change] : changes) {
        change();
        EXPECT_EQ(observer.changes, 0) << what;
    }
    display.unSubscribe();
}

TEST_P(TabPagesTest, ChangeOfTheShownPageReachesTheObserver)
{
    Observer observer;
    open();
    display.subscribe(&observer);
    all->setTitle("Calls");
    EXPECT_GT(std::exchange(observer.changes, 0), 0);
    missed->setTitle("Calls");
    EXPECT_EQ(observer.changes, 0);
    tabs->setCurrentTabIndex(1);
    EXPECT_GT(std::exchange(observer.changes, 0), 0);
    missed->setTitle("Missed calls");
    EXPECT_GT(observer.changes, 0);
    display.unSubscribe();
}

TEST_P(TabPagesTest, CleanedUpScreenIsGoneFromItsDisplay)
{
    open();
    tabs->cleanup();
    EXPECT_EQ(display.getCurrent(), nullptr);
    tabs->addTab("All", all.get(), false);
    EXPECT_EQ(tabs->numberOfTabs(), 1);
}

INSTANTIATE_ON_PANELS(TabPagesTest);

} // namespace
