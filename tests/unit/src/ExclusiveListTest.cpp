#include "DisplayAPI/ExclusiveList.h"

#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "unit/src/FacadeTest.h"
#include "unit/src/LiveRow.h"
#include "unit/src/Posted.h"

using namespace DisplayAPI;
using doubles::Answers;
using doubles::callText;
using test::From;
using test::LiveRow;
using test::Posted;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

namespace {

class ExclusiveListTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }

    /// Makes a list on the given hardware and tells what its private sides have been called with.
    std::vector<std::string> made(int variant)
    {
        test::setHardwareVariant(variant);
        run([&] { list = std::make_unique<ExclusiveList>(); });
        expectAllOnGuiThread();
        return reached();
    }

    std::unique_ptr<ExclusiveList> list;
};

} // namespace

TEST_P(ExclusiveListTest, OnTheFullPanelTheBasesImplementationIsReplacedByTheExclusiveOne)
{
    const auto calls = made(1);
    EXPECT_THAT(calls, ElementsAre(callText("ListBoxPrivate", list.get(), false),
                                   callText("ListBoxPrivate", list.get(), false),
                                   callText("ExclusiveListPrivate", list.get())));
}

TEST_P(ExclusiveListTest, OnTheSmallPanelTheBasesImplementationIsReplacedByTheExclusiveOne)
{
    const auto calls = made(0);
    EXPECT_THAT(calls, ElementsAre(callText("ListBoxPrivateWP1", list.get(), true),
                                   callText("ListBoxPrivateWP1", list.get(), false),
                                   callText("ExclusiveListPrivateWP1", list.get())));
    EXPECT_TRUE(list->hasBackItem());
}

TEST_P(ExclusiveListTest, OnEveryOtherPanelOnlyTheExclusiveImplementationIsTheFullPanels)
{
    const auto calls = made(2);
    EXPECT_THAT(calls, ElementsAre(callText("ListBoxPrivateWP1", list.get(), true),
                                   callText("ListBoxPrivate", list.get(), false),
                                   callText("ExclusiveListPrivate", list.get())));
}

TEST_P(ExclusiveListTest, ListIsCalledList)
{
    made(1);
    EXPECT_EQ(list->getName(), "List");
}

TEST_P(ExclusiveListTest, CleanUpDoesNothingWhileTheListLives)
{
    made(1);
    auto* const row = new LiveRow;
    list->append(row);
    gui.settle();
    reached();
    run([&] { list->cleanup(); });
    carryOut(GetParam(), *list, 1);
    EXPECT_THAT(reached(), IsEmpty());
    EXPECT_TRUE(LiveRow::isAlive(row));
    EXPECT_NE(list->getPrivateImpl(), nullptr);
}

TEST_P(ExclusiveListTest, DestructorReleasesTheExclusiveImplementationAndTheRows)
{
    made(1);
    auto* const row = new LiveRow;
    list->append(row);
    gui.settle();
    reached();
    run([&] { list.reset(); });
    EXPECT_FALSE(LiveRow::isAlive(row));
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~ListBoxPrivate()", "~ListItemPrivate()"));
}

TEST_P(ExclusiveListTest, DestructorCarriesOutWhatIsQueuedFirst)
{
    made(1);
    run([&] {
        list->setTitle(std::string("last"));
        list.reset();
    });
    EXPECT_THAT(reached(), ElementsAre(callText("ListBoxPrivate::setTitle", std::string("last")), "~ListBoxPrivate()"));
}

TEST_P(ExclusiveListTest, CommandsAndWaitAnimationDoNothing)
{
    made(1);
    run([&] {
        list->addCommand(List::SELECT_COMMAND());
        list->removeCommand(List::SELECT_COMMAND());
        list->setWaitAnimation(true);
    });
    EXPECT_THAT(reached(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(From, ExclusiveListTest, testing::Values(From::GUI_THREAD, From::WORKER),
                         [](const testing::TestParamInfo<From>& test) { return test::nameOf(test.param); });

namespace {

class ExclusiveListPostTest : public test::SteppedTest {
protected:
    ExclusiveListPostTest() { test::setHardwareVariant(1); }
};

} // namespace

TEST_F(ExclusiveListPostTest, ConstructorPostsBothCreationsAndWaitsForTheSecond)
{
    std::unique_ptr<ExclusiveList> list;
    EXPECT_EQ(test::postedBy(gui, [&] { list = std::make_unique<ExclusiveList>(); }), (Posted{{0, 40}, true}));
}

TEST_F(ExclusiveListPostTest, DestructorLetsQueuedRequestsReachTheExclusiveImplementation)
{
    auto list = std::make_unique<ExclusiveList>();
    doubles::Recorder::instance().clear();
    test::Worker worker([&] {
        list->isSelected(1);
        list.reset();
    });
    gui.waitForQueued(2);
    EXPECT_TRUE(worker.isBlocked());
    while (!worker.hasReturned())
        gui.step();
    EXPECT_THAT(doubles::Recorder::instance().texts(), Contains("ExclusiveListPrivate::isSelected(1)"));
}

TEST_F(ExclusiveListPostTest, PurgedSelectionAnswersMinusOne)
{
    ExclusiveList list;
    doubles::Answers::instance().selectedIndex = 3;
    int index = 0;
    test::Worker worker([&] { index = list.getSelectedIndex(); });
    gui.waitForQueued(1);
    list.purgeOwnMessage(41);
    worker.join();
    EXPECT_EQ(index, -1);
}
