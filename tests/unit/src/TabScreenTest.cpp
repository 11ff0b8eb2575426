#include "DisplayAPI/TabScreen.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/Display.h"
#include "DisplayAPI/List.h"
#include "DisplayPrivate.h"
#include "doubles/FakeStartUp.h"
#include "doubles/Screen.h"
#include "support/LogLines.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/FacadeTest.h"
#include "variants/tab/TabScreenPrivate.h"

using namespace DisplayAPI;
using doubles::Answers;
using doubles::callText;
using test::From;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int CREATE = 0, CLEANUP = 1, ADD = 2, REMOVE_AT = 9;

class TabScreenTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    ~TabScreenTest() override
    {
        run([&] { tabs.reset(); });
    }

    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }

    /// Makes a tab screen on the given hardware and tells what its private side has been called with.
    std::vector<std::string> made(int variant = 1)
    {
        test::setHardwareVariant(variant);
        run([&] { tabs = std::make_unique<TabScreen>(TabScreen::MESSAGES, true); });
        expectAllOnGuiThread();
        return reached();
    }

    /// A tab screen that has three tabs; the private side says so and that the one in the middle is the current one.
    void madeWithTabs()
    {
        made();
        Answers::instance().size = 3;
        Answers::instance().selectedIndex = 1;
        run([&] {
            tabs->addTab("All", &all, false);
            tabs->addTab("Nothing", nullptr, false);
            tabs->addTab("Missed", &missed, false);
        });
        reached();
    }

    std::vector<Displayable*> pages()
    {
        std::vector<Displayable*> found;
        run([&] {
            for (int index = 0; index < tabs->numberOfTabs(); ++index)
                found.push_back(tabs->getDisplayableForTabAtIndex(index));
        });
        reached();
        return found;
    }

    doubles::Screen all{"all"}, missed{"missed"}, dialled{"dialled"};
    std::unique_ptr<TabScreen> tabs;
};

TEST_P(TabScreenTest, FullPanelsSideIsToldTheIconAlone)
{
    const auto calls = made(1);
    EXPECT_THAT(calls, ElementsAre(callText("TabScreenPrivate", tabs.get(), 3)));
    EXPECT_EQ(tabs->getName(), "TabScreen");
}

TEST_P(TabScreenTest, EveryOtherPanelsSideIsToldOfTheWayBack)
{
    for (const int variant : {0, 2}) {
        run([&] { tabs.reset(); });
        reached();
        const auto calls = made(variant);
        EXPECT_THAT(calls, ElementsAre(callText("TabScreenPrivateWP1", tabs.get(), 3, true)));
    }
}

TEST_P(TabScreenTest, SideThatIsMadeElsewhereIsAdopted)
{
    TabScreenPrivateIfc* given = nullptr;
    run([&] {
        given = new TabScreenPrivate(nullptr, TabScreen::CALLS);
        tabs = std::make_unique<TabScreen>(TabScreen::CALLS, given);
    });
    EXPECT_EQ(recorder.count("TabScreenPrivate"), 1);
    EXPECT_EQ(tabs->getPrivateImpl(), given);
    EXPECT_EQ(tabs->getName(), "TabScreen");
    reached();
    run([&] { tabs.reset(); });
    EXPECT_THAT(reached(), ElementsAre("~TabScreenPrivate()"));
}

TEST_P(TabScreenTest, WithoutOneMadeElsewhereThePanelsOwnIsMade)
{
    test::setHardwareVariant(0);
    run([&] { tabs = std::make_unique<TabScreen>(TabScreen::HOME, nullptr); });
    EXPECT_THAT(reached(), ElementsAre(callText("TabScreenPrivateWP1", tabs.get(), 4, false)));
}

TEST_P(TabScreenTest, DestructorDeletesThePrivateSide)
{
    made();
    run([&] { tabs.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~TabScreenPrivate()"));
}

TEST_P(TabScreenTest, CleanUpForgetsTheTabs)
{
    madeWithTabs();
    run([&] { tabs->cleanup(); });
    EXPECT_THAT(pages(), IsEmpty());
    EXPECT_EQ(tabs->getPrivateImpl(), nullptr);
}

TEST_P(TabScreenTest, TabsKeepTheirOrderAndMayBeEmpty)
{
    madeWithTabs();
    EXPECT_THAT(pages(), ElementsAre(&all, nullptr, &missed));
}

TEST_P(TabScreenTest, IndexOutsideTheTabsRemovesNothing)
{
    madeWithTabs();
    run([&] {
        tabs->removeTabAtIndex(-1);
        tabs->removeTabAtIndex(3);
    });
    EXPECT_THAT(reached(), IsEmpty());
    EXPECT_THAT(pages(), ElementsAre(&all, nullptr, &missed));
}

TEST_P(TabScreenTest, TabIsRemovedByItsIndex)
{
    madeWithTabs();
    run([&] { tabs->removeTabAtIndex(1); });
    EXPECT_THAT(reached(), ElementsAre("TabScreenPrivate::removeTabAtIndex(1)"));
    EXPECT_THAT(pages(), ElementsAre(&all, &missed));
}

TEST_P(TabScreenTest, FirstTabWithThePageIsRemoved)
{
    madeWithTabs();
    run([&] {
        tabs->addTab("Again", &all, false);
        tabs->removeTab(&all);
    });
    EXPECT_THAT(pages(), ElementsAre(nullptr, &missed, &all));
}

TEST_P(TabScreenTest, RemovalOfAPageThatIsInNoTabReachesThePrivateSide)
{
    madeWithTabs();
    run([&] { tabs->removeTab(&dialled); });
    const DisplayablePrivateIfc* const side = dialled.getPrivateImpl();
    EXPECT_THAT(reached(), ElementsAre(callText("TabScreenPrivate::removeTab", side)));
    EXPECT_THAT(pages(), ElementsAre(&all, nullptr, &missed));
}

TEST_P(TabScreenTest, NegativeIndexIsTheFirstTabs)
{
    made();
    run([&] { EXPECT_EQ(tabs->getDisplayableForTabAtIndex(-1), nullptr); });
    madeWithTabs();
    run([&] {
        EXPECT_EQ(tabs->getDisplayableForTabAtIndex(-7), &all);
        EXPECT_EQ(tabs->getDisplayableForTabAtIndex(0), &all);
        EXPECT_EQ(tabs->getDisplayableForTabAtIndex(3), nullptr);
    });
}

TEST_P(TabScreenTest, PageIsFoundInTheFirstTabThatHasIt)
{
    madeWithTabs();
    run([&] {
        tabs->addTab("Again", &missed, false);
        EXPECT_EQ(tabs->getIndexForTab(&missed), 2);
        EXPECT_EQ(tabs->getIndexForTab(nullptr), 1);
        EXPECT_EQ(tabs->getIndexForTab(&dialled), -1);
    });
}

TEST_P(TabScreenTest, CurrentTabGetsThePage)
{
    madeWithTabs();
    run([&] { tabs->setCurrentDisplayable(&dialled); });
    EXPECT_THAT(pages(), ElementsAre(&all, &dialled, &missed));
}

TEST_P(TabScreenTest, PageForACurrentTabThatIsNotThereReachesThePrivateSideAlone)
{
    madeWithTabs();
    for (const int current : {-1, 3}) {
        Answers::instance().selectedIndex = current;
        run([&] { tabs->setCurrentDisplayable(&dialled); });
        EXPECT_EQ(recorder.count("TabScreenPrivate::setCurrentDisplayable("), 1);
        EXPECT_THAT(pages(), ElementsAre(&all, nullptr, &missed));
    }
}

TEST_P(TabScreenTest, TabAtAnIndexGetsThePage)
{
    madeWithTabs();
    run([&] {
        tabs->setCurrentDisplayableForTabAtIndex(2, &dialled);
        tabs->setCurrentDisplayableForTabAtIndex(-1, &dialled);
        tabs->setCurrentDisplayableForTabAtIndex(3, &dialled);
    });
    EXPECT_EQ(recorder.count("TabScreenPrivate::setCurrentDisplayableForTabAtIndex("), 3);
    EXPECT_THAT(pages(), ElementsAre(&all, nullptr, &dialled));
}

TEST_P(TabScreenTest, CurrentTabIsNullOutsideTheTabs)
{
    madeWithTabs();
    run([&] { EXPECT_EQ(tabs->currentTab(), nullptr); });
    Answers::instance().selectedIndex = 2;
    run([&] { EXPECT_EQ(tabs->currentTab(), &missed); });
    for (const int current : {-1, 3}) {
        Answers::instance().selectedIndex = current;
        run([&] { EXPECT_EQ(tabs->currentTab(), nullptr); });
    }
}

TEST_P(TabScreenTest, PrivateSideThatCountsDifferentlyIsLogged)
{
    madeWithTabs();
    Answers::instance().size = 2;
    const host::LogCapture log;
    run([&] { EXPECT_EQ(tabs->numberOfTabs(), 3); });
    const auto lines = test::linesOf(log, "DisplayAPI::TabScreen");
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].level, 2);
    EXPECT_EQ(lines[0].file, "./src/TabScreen");
    EXPECT_EQ(lines[0].text, "TabScreen - number of tabs is NOT equal to the size of the mDisplayableItems list");
}

TEST_P(TabScreenTest, EqualNumbersAreNotLogged)
{
    madeWithTabs();
    const host::LogCapture log;
    run([&] { EXPECT_EQ(tabs->numberOfTabs(), 3); });
    EXPECT_THAT(test::linesOf(log, "DisplayAPI::TabScreen"), IsEmpty());
}

TEST_P(TabScreenTest, MovesBetweenBarAndPageAreTheUsers)
{
    madeWithTabs();
    run([&] {
        tabs->previousTab();
        tabs->enterTabBar();
        tabs->leaveTabBar();
    });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(TabScreenTest, LocaleReachesThePrivateSide)
{
    made();
    gui.call([&] { tabs->localeChanged("de_DE"); });
    EXPECT_THAT(reached(), ElementsAre("TabScreenPrivate::localeChanged(\"de_DE\")"));
    run([&] { tabs->cleanup(); });
    gui.call([&] { tabs->localeChanged("fr_FR"); });
    EXPECT_EQ(recorder.count("TabScreenPrivate::localeChanged"), 0);
}

TEST_P(TabScreenTest, PageThatIsDeletedLeavesItsTabsEmpty)
{
    madeWithTabs();
    auto page = std::make_unique<doubles::Screen>("page");
    run([&] {
        tabs->setCurrentDisplayableForTabAtIndex(0, page.get());
        tabs->addTab("Again", page.get(), false);
        tabs->numberOfTabs();
        page.reset();
    });
    EXPECT_EQ(recorder.count("TabScreenPrivate::setCurrentDisplayableForTabAtIndex(0, " +
                             doubles::printed(static_cast<const void*>(nullptr)) + ")"),
              1);
    EXPECT_THAT(pages(), ElementsAre(nullptr, nullptr, &missed, nullptr));
}

TEST_P(TabScreenTest, PageThatIsDeletedLeavesACleanedUpScreenToo)
{
    madeWithTabs();
    auto page = std::make_unique<doubles::Screen>("page");
    run([&] {
        tabs->cleanup();
        tabs->addTab("New", page.get(), false);
        tabs->numberOfTabs();
        page.reset();
    });
    EXPECT_THAT(pages(), ElementsAre(nullptr));
}

TEST_P(TabScreenTest, PageWithoutASideIsRemovedByTheIndexOfItsTab)
{
    madeWithTabs();
    DisplayAPI::List bare(nullptr), other(nullptr);
    const DisplayablePrivateIfc* const none = nullptr;
    run([&] {
        tabs->addTab("Bare", &bare, false);
        tabs->numberOfTabs();
        reached();
        tabs->removeTab(&other);
        tabs->removeTab(&bare);
    });
    EXPECT_THAT(reached(), ElementsAre(callText("TabScreenPrivate::removeTab", none),
                                       callText("TabScreenPrivate::removeTab", none),
                                       callText("TabScreenPrivate::removeTabAtIndex", 3)));
    EXPECT_THAT(pages(), ElementsAre(&all, nullptr, &missed));
}

TEST_P(TabScreenTest, CommandsAreOneObjectEach)
{
    run([&] {
        EXPECT_EQ(TabScreen::TABFWD_COMMAND(), TabScreen::TABFWD_COMMAND());
        EXPECT_EQ(TabScreen::TABFWD_COMMAND()->getType(), 19);
        EXPECT_EQ(TabScreen::TABBACK_COMMAND()->getType(), 18);
        EXPECT_EQ(TabScreen::OK()->getType(), 6);
        EXPECT_EQ(TabScreen::BACK_COMMAND()->getType(), 1);
        for (const Command* command :
             {TabScreen::TABFWD_COMMAND(), TabScreen::TABBACK_COMMAND(), TabScreen::OK(), TabScreen::BACK_COMMAND()})
            EXPECT_EQ(command->getText(), "");
    });
}

INSTANTIATE_TEST_SUITE_P(CalledFrom, TabScreenTest, testing::Values(From::GUI_THREAD, From::WORKER),
                         [](const auto& tested) { return test::nameOf(tested.param); });

/// With the GUI thread in the test's hands.
class QueuedTabScreenTest : public test::SteppedTest {
protected:
    QueuedTabScreenTest() { doubles::Recorder::instance().clear(); }
};

TEST_F(QueuedTabScreenTest, MakingPostsAndDeletingWaits)
{
    test::Worker worker([] { TabScreen tabs(TabScreen::NO_ICON, false); });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(CREATE, CLEANUP));
    gui.runAll();
}

TEST_F(QueuedTabScreenTest, TabsArePostedInOrderAndNoneIsDiscarded)
{
    TabScreen tabs(TabScreen::NO_ICON, false);
    test::onOtherThread([&] {
        tabs.addTab("All", nullptr, false);
        tabs.addTab("Missed", nullptr, false);
        tabs.removeTabAtIndex(0);
    });
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(ADD, ADD, REMOVE_AT));
    gui.runAll();
    Answers::instance().size = 1;
    EXPECT_EQ(tabs.numberOfTabs(), 1);
}

TEST_F(QueuedTabScreenTest, ScreenIsGoneFromItsDisplayWhenItIsDeleted)
{
    Display display(new DisplayPrivate(false, "any", "", "", "", "", nullptr, nullptr, new doubles::FakeStartUp, true));
    auto tabs = std::make_unique<TabScreen>(TabScreen::NO_ICON, false);
    display.show();
    display.setCurrent(tabs.get());
    EXPECT_EQ(display.getCurrent(), tabs.get());
    tabs.reset();
    EXPECT_EQ(display.getCurrent(), nullptr);
}

} // namespace
