#include "DisplayAPI/ExpandingTreeList.h"

#include "DisplayAPI/ExpandingTreeListItem.h"
#include "DisplayAPI/ExpandingTreeListPrivateIfc.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "doubles/Mocks.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/FacadeTest.h"
#include "utilities/TranslationInfo.h"
#include "widgets/KestrelListBoxItem.h"

using namespace DisplayAPI;
using doubles::Answers;
using doubles::callText;
using test::From;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ExpandingTreeListTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    ~ExpandingTreeListTest() override
    {
        run([&] { list.reset(); });
    }

    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }

    std::vector<std::string> made(int variant = 1, bool backItem = true)
    {
        test::setHardwareVariant(variant);
        run([&] { list = std::make_unique<ExpandingTreeList>(backItem); });
        expectAllOnGuiThread();
        return reached();
    }

    ExpandingTreeListItem* append(const std::string& text, int level)
    {
        ExpandingTreeListItem* item = nullptr;
        run([&] {
            item = new ExpandingTreeListItem(text, level);
            list->append(item);
        });
        return item;
    }

    std::vector<ExpandingTreeListItem*> items()
    {
        std::vector<ExpandingTreeListItem*> all;
        run([&] { all = list->getExpandingItemsList(); });
        return all;
    }

    ExpandingTreeListItem* selected()
    {
        ExpandingTreeListItem* item = nullptr;
        run([&] { item = list->getSelected(); });
        return item;
    }

    std::unique_ptr<ExpandingTreeList> list;
};

TEST_P(ExpandingTreeListTest, FullPanelIsOneAndEveryOtherTheSmallOneWhichIsToldOfTheWayBack)
{
    const auto onFullPanel = made(1);
    EXPECT_THAT(onFullPanel, ElementsAre(callText("ExpandingTreeListPrivate", list.get(), false)));
    EXPECT_EQ(list->getName(), "ExpandingTreeList");
    for (const int variant : {0, 2, 8}) {
        for (const bool backItem : {false, true}) {
            run([&] { list.reset(); });
            reached();
            const auto calls = made(variant, backItem);
            EXPECT_THAT(calls, ElementsAre(callText("ExpandingTreeListPrivateWP1", list.get(), backItem)));
        }
    }
}

TEST_P(ExpandingTreeListTest, RowsKeepTheirOrderAndTheirLevels)
{
    made();
    ExpandingTreeListItem* const network = append("Network", 0);
    ExpandingTreeListItem* const address = append("Address", 1);
    EXPECT_THAT(items(), ElementsAre(network, address));
    EXPECT_EQ(address->getLevel(), 1);
    EXPECT_EQ(address->getText(), "Address");
    EXPECT_EQ(
        recorder.last("ExpandingTreeListPrivate::append").text,
        callText("ExpandingTreeListPrivate::append", static_cast<const void*>(address->getPrivateImplemetation()), 1));
}

TEST_P(ExpandingTreeListTest, RowWithoutASideIsOneOfThemAndNullIsNone)
{
    made();
    auto* const bare = new ExpandingTreeListItem(static_cast<ListItemPrivateIfc*>(nullptr), 3);
    run([&] {
        list->append(nullptr);
        list->append(bare);
    });
    EXPECT_THAT(reached(),
                ElementsAre(callText("ExpandingTreeListPrivate::append", static_cast<const void*>(nullptr), 3)));
    EXPECT_THAT(items(), ElementsAre(bare));
}

TEST_P(ExpandingTreeListTest, SecondRequestToMakeItLeavesTheFirstSide)
{
    made();
    append("a", 0);
    reached();
    carryOut(GetParam(), *list, 0);
    EXPECT_THAT(reached(), IsEmpty());
    for (const int code : {10, 11}) {
        ListItemPrivateIfc* const side = items().front()->getPrivateImplemetation();
        carryOut(GetParam(), *items().front(), code);
        EXPECT_EQ(items().front()->getPrivateImplemetation(), side);
    }
}

TEST_P(ExpandingTreeListTest, ClearDeletesTheRowsBehindTheSides)
{
    made();
    append("a", 0);
    append("b", 1);
    reached();
    run([&] { list->clear(); });
    EXPECT_THAT(reached(), ElementsAre("ExpandingTreeListPrivate::clear()"));
    EXPECT_THAT(items(), IsEmpty());
}

TEST_P(ExpandingTreeListTest, CleanUpDeletesSideAndRows)
{
    made();
    append("a", 0);
    reached();
    run([&] { list->cleanup(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~ExpandingTreeListPrivate()"));
    EXPECT_THAT(items(), IsEmpty());
    EXPECT_EQ(selected(), nullptr);
    EXPECT_EQ(list->getPrivateImpl(), nullptr);
}

TEST_P(ExpandingTreeListTest, SelectedRowIsTheOneAtTheSidesIndex)
{
    made();
    append("a", 0);
    ExpandingTreeListItem* const second = append("b", 0);
    Answers::instance().selectedIndex = 1;
    EXPECT_EQ(selected(), second);
    for (const int nowhere : {-1, 2}) {
        Answers::instance().selectedIndex = nowhere;
        EXPECT_EQ(selected(), nullptr);
    }
}

TEST_P(ExpandingTreeListTest, ListenersReachTheSideOnTheGuiThread)
{
    made();
    testing::NiceMock<doubles::MockCommandListener> mock;
    CommandListener* const listener = &mock;
    run([&] {
        list->addCommandListener(listener);
        list->removeCommandListener(listener);
    });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre(callText("ExpandingTreeListPrivate::addCommandListener", listener),
                                       callText("ExpandingTreeListPrivate::removeCommandListener", listener)));
    run([&] {
        list->cleanup();
        list->addCommandListener(listener);
        list->removeCommandListener(listener);
    });
}

TEST_P(ExpandingTreeListTest, LocaleReachesTranslatedRows)
{
    made();
    TranslationInfo key{"Settings.Network", nullptr};
    ExpandingTreeListItem* item = nullptr;
    run([&] {
        item = new ExpandingTreeListItem(&key, 0);
        list->append(item);
    });
    EXPECT_EQ(item->getText(), "Settings.Network");
    gui.call([&] {
        item->getPrivateImplemetation()->getKestrelListItem()->DataSet(PegString());
        list->localeChanged("de_DE");
    });
    EXPECT_EQ(item->getText(), "Settings.Network");
}

TEST_P(ExpandingTreeListTest, ItemCompletesWhatNobodyKnowsAndKeepsItsText)
{
    run([&] {
        ExpandingTreeListItem item("a", -3);
        EXPECT_EQ(item.getLevel(), -3);
        item.setText("b");
        EXPECT_EQ(item.getText(), "a");
    });
    ExpandingTreeListItem item("a");
    EXPECT_EQ(item.getLevel(), 0);
    for (const int code : {-1, 4, 5, 7, 9, 12, 99})
        carryOut(GetParam(), item, code);
    EXPECT_EQ(item.getText(), "a");
}

INSTANTIATE_FROM_BOTH_THREADS(ExpandingTreeListTest);

using QueuedExpandingTreeListTest = test::SteppedTest;

TEST_F(QueuedExpandingTreeListTest, RowThatIsStillQueuedGoesWithTheList)
{
    struct Row : ExpandingTreeListItem {
        explicit Row(int& deleted) : ExpandingTreeListItem("a"), mDeleted(deleted) {}
        ~Row() override { ++mDeleted; }
        int& mDeleted;
    };
    int deleted = 0;
    auto list = std::make_unique<ExpandingTreeList>(true);
    auto* const row = new Row(deleted);
    test::Worker worker([&] { list->append(row); });
    worker.join();
    ASSERT_EQ(gui.queued(), 1);
    list.reset();
    EXPECT_EQ(deleted, 1);
    EXPECT_EQ(gui.queued(), 0);
}

} // namespace
