#include "DisplayAPI/SearchList.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "DisplayAPI/SearchListBoxPrivateIfc.h"
#include "doubles/Mocks.h"
#include "support/LogLines.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/FacadeTest.h"
#include "unit/src/LiveRow.h"
#include "utilities/TranslationInfo.h"
#include "variants/list/SearchListBoxPrivate.h"

using namespace DisplayAPI;
using doubles::Answers;
using doubles::callText;
using test::From;
using test::LiveRow;
using testing::ElementsAre;
using testing::IsEmpty;

static_assert(!std::is_destructible_v<SearchListBoxPrivateIfc>, "a list leaves its displays before its side goes");

namespace {

class SearchListTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    SearchListTest()
    {
        gui.settle();
        reached();
    }

    ~SearchListTest() override
    {
        run([&] { list.reset(); });
        for (const LiveRow* row : {first, second})
            if (LiveRow::isAlive(row))
                delete row;
    }

    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }

    std::vector<std::string> made(int variant = 1)
    {
        test::setHardwareVariant(variant);
        run([&] { list = std::make_unique<SearchList>(); });
        expectAllOnGuiThread();
        return reached();
    }

    void makeWithRows()
    {
        made();
        run([&] {
            list->append(first);
            list->append(second);
        });
        reached();
    }

    std::vector<ListItem*> items()
    {
        std::vector<ListItem*> all;
        run([&] { all = list->getItems(); });
        return all;
    }

    /// The lines that `work` writes, each behind its module.
    std::vector<std::string> logged(const std::function<void()>& work)
    {
        host::LogCapture capture;
        run(work);
        std::vector<std::string> texts;
        for (const host::LogLine& line : capture.lines())
            texts.push_back(line.module + " " + line.text);
        return texts;
    }

    template <typename... Args>
    static std::string call(const char* name, const Args&... args)
    {
        return callText(std::string("SearchListBoxPrivate::") + name, args...);
    }

    static const void* side(ListItem* row) { return row->getPrivateImplemetation(); }

    LiveRow* first = new LiveRow("a");
    LiveRow* second = new LiveRow("b");
    std::unique_ptr<SearchList> list;
};

TEST_P(SearchListTest, VariantZeroIsTheSmallPanelAndEveryOtherTheFullOne)
{
    for (const int variant : {0, 1, 2, 3, 8, -1}) {
        const auto calls = made(variant);
        const std::string expected = variant == 0 ? "SearchListBoxPrivateWP1" : "SearchListBoxPrivate";
        EXPECT_THAT(calls, ElementsAre(callText(expected, list.get()))) << variant;
        EXPECT_EQ(list->getName(), "SearchList");
        run([&] { list.reset(); });
        EXPECT_THAT(reached(), ElementsAre("~" + expected + "()"));
    }
}

TEST_P(SearchListTest, WithoutAnApplicationItIsTheFullPanels)
{
    KestrelApplication* const application = KestrelApplication::getCurrentApplication();
    test::setHardwareVariant(0);
    KestrelApplication::setCurrentApplication(nullptr);
    run([&] { list = std::make_unique<SearchList>(); });
    EXPECT_THAT(reached(), ElementsAre(callText("SearchListBoxPrivate", list.get())));
    KestrelApplication::setCurrentApplication(application);
}

TEST_P(SearchListTest, AdoptsASideThatHasBeenMadeElsewhere)
{
    SearchListBoxPrivate* given = nullptr;
    run([&] {
        given = new SearchListBoxPrivate(nullptr);
        list = std::make_unique<SearchList>(given);
    });
    EXPECT_EQ(list->getPrivateImpl(), given);
    EXPECT_EQ(list->getName(), "Displayable with no name");
    reached();
    run([&] { list->setSearchText("a"); });
    EXPECT_THAT(reached(), ElementsAre(call("setSearchText", std::string("a"))));
}

TEST_P(SearchListTest, WithoutASideItAnswersWithWhatThereIs)
{
    list = std::make_unique<SearchList>(static_cast<SearchListBoxPrivateIfc*>(nullptr));
    EXPECT_THAT(reached(), IsEmpty());
    EXPECT_EQ(list->getName(), "Displayable with no name");
    EXPECT_EQ(list->getPrivateImpl(), nullptr);
    run([&] {
        list->append(first);
        list->setSearchText("a");
        EXPECT_EQ(list->getSearchText(), "");
        EXPECT_EQ(list->size(), -1);
        EXPECT_FALSE(list->isSearchPopupVisible());
    });
    EXPECT_THAT(items(), ElementsAre(first));
}

TEST_P(SearchListTest, SecondRequestToMakeItLeavesTheFirstSide)
{
    makeWithRows();
    carryOut(GetParam(), *list, 0);
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(SearchListTest, TextsBecomeRowsWithItemFlagTrue)
{
    made();
    TranslationInfo text("key", nullptr);
    run([&] {
        list->append("plain");
        list->append(&text);
    });
    const auto rows = items();
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0]->getText(), "plain");
    EXPECT_EQ(rows[1]->getText(), "key");
    expectAllOnGuiThread();
    EXPECT_THAT(reached(),
                ElementsAre(callText("ListItemPrivate", std::string("plain"), true), call("append", side(rows[0])),
                            callText("ListItemPrivate", &text, true), call("append", side(rows[1]))));
}

TEST_P(SearchListTest, NullAndARowWithoutASideAreNotAppended)
{
    made();
    LiveRow bare(static_cast<ListItemPrivateIfc*>(nullptr));
    run([&] {
        list->append(&bare);
        list->append(static_cast<ListItem*>(nullptr));
    });
    EXPECT_THAT(reached(), IsEmpty());
    EXPECT_THAT(items(), IsEmpty());
}

TEST_P(SearchListTest, InsertAtBelowZeroIsAtTheFrontAndPastTheEndAppends)
{
    made();
    run([&] {
        list->insertAt(first, 1000);
        list->insertAt(second, -5);
        list->insertAt(nullptr, 0);
    });
    EXPECT_THAT(items(), ElementsAre(second, first));
    EXPECT_THAT(reached(), ElementsAre(call("insertAt", side(first), 1000), call("insertAt", side(second), -5)));
}

TEST_P(SearchListTest, RemoveAtGivesTheRowBackAndBelowZeroTakesTheFirst)
{
    makeWithRows();
    ListItem* taken = nullptr;
    run([&] { taken = list->removeAt(1); });
    EXPECT_EQ(taken, second);
    run([&] { taken = list->removeAt(-1); });
    EXPECT_EQ(taken, first);
    EXPECT_TRUE(LiveRow::isAlive(first) && LiveRow::isAlive(second));
    EXPECT_THAT(items(), IsEmpty());
    EXPECT_THAT(reached(), ElementsAre(call("removeAt", 1, side(second)), call("removeAt", -1, side(first))));
}

TEST_P(SearchListTest, RemoveAtPastTheEndAnswersNullAndSaysSo)
{
    makeWithRows();
    host::LogCapture capture;
    ListItem* taken = first;
    run([&] { taken = list->removeAt(2); });
    EXPECT_EQ(taken, nullptr);
    ASSERT_FALSE(capture.lines().empty());
    const host::LogLine line = capture.lines().back();
    EXPECT_EQ(line.module, "DisplayAPI::SearchList");
    EXPECT_EQ(line.file, "./src/SearchList.cpp");
    EXPECT_EQ(line.level, 3);
    EXPECT_EQ(line.text,
              "DAPI::SearchList::removeAt() this " + test::shown(list.get()) + ", cannot remove item at index 2");
}

TEST_P(SearchListTest, RemoveGivesTheRowBackAndForeignOnesReachTheSide)
{
    makeWithRows();
    LiveRow foreign("c");
    gui.settle();
    reached();
    run([&] {
        list->remove(first);
        list->remove(&foreign);
        list->remove(nullptr);
    });
    EXPECT_TRUE(LiveRow::isAlive(first));
    EXPECT_THAT(items(), ElementsAre(second));
    EXPECT_THAT(reached(), ElementsAre(call("remove", side(first)), call("remove", side(&foreign))));
}

TEST_P(SearchListTest, ClearDeletesTheRowsBehindTheSides)
{
    makeWithRows();
    run([&] { list->clear(); });
    EXPECT_FALSE(LiveRow::isAlive(first) || LiveRow::isAlive(second));
    EXPECT_THAT(reached(), testing::Contains(call("clear")));
    EXPECT_THAT(items(), IsEmpty());
}

TEST_P(SearchListTest, DestructionDeletesSideAndRows)
{
    makeWithRows();
    run([&] { list.reset(); });
    EXPECT_FALSE(LiveRow::isAlive(first) || LiveRow::isAlive(second));
    expectAllOnGuiThread();
    EXPECT_EQ(reached().front(), "~SearchListBoxPrivate()");
}

TEST_P(SearchListTest, SelectedRowIsTheOneAtTheSidesIndex)
{
    makeWithRows();
    for (const auto& [index, row] :
         std::vector<std::pair<int, ListItem*>>{{0, first}, {1, second}, {-1, nullptr}, {2, nullptr}}) {
        Answers::instance().selectedIndex = index;
        ListItem* selected = nullptr;
        run([&] { selected = list->getSelected(); });
        EXPECT_EQ(selected, row) << index;
    }
}

TEST_P(SearchListTest, ListenersReachTheSideOnTheGuiThread)
{
    made();
    testing::NiceMock<doubles::MockCommandListener> mock;
    CommandListener* const listener = &mock;
    run([&] {
        list->addCommandListener(listener);
        list->removeCommandListener(listener);
    });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre(call("addCommandListener", listener), call("removeCommandListener", listener)));
    carryOut(GetParam(), *list, 1);
    run([&] {
        list->addCommandListener(listener);
        list->removeCommandListener(listener);
    });
}

TEST_P(SearchListTest, LocaleReachesTheRowsAndThenTheSide)
{
    made();
    TranslationInfo key{"Contacts.None", nullptr};
    run([&] { list->append(&key); });
    reached();
    gui.call([&] { list->localeChanged("de_DE"); });
    EXPECT_THAT(reached(), ElementsAre("ListItemPrivate::localeChanged(\"de_DE\")", call("localeChanged")));
}

TEST_P(SearchListTest, WhatDoesNothingReachesNobody)
{
    made();
    run([&] {
        list->setSelectionHighlight(false);
        list->setUsedWithTab(true, nullptr);
        list->setWrapAround(true);
        list->setWaitAnimation(true);
    });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(SearchListTest, RowsOfAWorkerAreThereBeforeItsQuestionIsAnswered)
{
    made();
    run([&] {
        list->append(first);
        list->append("x");
        EXPECT_EQ(list->getItems().size(), 2u);
        list->clear();
        EXPECT_THAT(list->getItems(), IsEmpty());
    });
}

TEST_P(SearchListTest, BookkeepingIsLoggedAsAListsUnderItsOwnName)
{
    made();
    const auto texts = logged([&] { list->append(first); });
    const std::string self = test::shown(list.get());
    EXPECT_THAT(texts, ElementsAre("DisplayAPI::SearchList DAPI::SearchList::append() this: " + self +
                                       " listItem: " + test::shown(first) + ", a",
                                   "DisplayAPI::SearchList DAPI::SearchList::privateAppend() this: " + self));
}

TEST_P(SearchListTest, RowOfATextIsLoggedAsOneThatIsAppended)
{
    made();
    TranslationInfo text("key", nullptr);
    const auto of = [&](const std::string& shown) {
        return "DisplayAPI::SearchList DAPI::SearchList::append() this: " + test::shown(list.get()) +
               " listItem: " + test::shown(items().back()) + ", " + shown;
    };
    const auto plain = logged([&] { list->append("plain"); });
    EXPECT_THAT(plain, testing::Contains(of("plain")));
    const auto translated = logged([&] { list->append(&text); });
    EXPECT_THAT(translated, testing::Contains(of("key")));
}

INSTANTIATE_FROM_BOTH_THREADS(SearchListTest);

TEST(SearchListCommandTest, EachIsOneObjectOfItsOwnTypeWithoutAText)
{
    const std::vector<std::pair<Command*, Command::Type>> commands{{SearchList::SELECT_COMMAND(), Command::OK},
                                                                   {SearchList::RIGHT_COMMAND(), Command::RIGHT},
                                                                   {SearchList::BACK_COMMAND(), Command::BACK}};
    for (const auto& [command, type] : commands) {
        EXPECT_EQ(command->getType(), type);
        EXPECT_EQ(command->getText(), "");
    }
    EXPECT_EQ(SearchList::SELECT_COMMAND(), SearchList::SELECT_COMMAND());
    EXPECT_NE(SearchList::SELECT_COMMAND(), List::SELECT_COMMAND());
}

using QueuedSearchListTest = test::SteppedTest;

TEST_F(QueuedSearchListTest, ClearComesBehindWhatIsQueuedAndDeletesThat)
{
    auto list = std::make_unique<SearchList>();
    auto* const row = new LiveRow("a");
    test::onOtherThread([&] {
        list->append(row);
        list->clear();
    });
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(4, 5));
    gui.runAll();
    EXPECT_FALSE(LiveRow::isAlive(row));
}

TEST_F(QueuedSearchListTest, RowWhoseAppendIsQueuedWhenTheGuiThreadDeletesTheListStaysTheCallers)
{
    auto list = std::make_unique<SearchList>();
    auto* const row = new LiveRow("a");
    test::onOtherThread([&] { list->append(row); });
    list.reset();
    EXPECT_EQ(gui.queued(), 0);
    EXPECT_TRUE(LiveRow::isAlive(row));
    delete row;
}

TEST_F(QueuedSearchListTest, WorkerThatDeletesTheListWaitsBehindWhatItHasQueued)
{
    auto list = std::make_unique<SearchList>();
    auto* const row = new LiveRow("a");
    test::Worker worker([&] {
        list->append(row);
        list.reset();
    });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(4, 1));
    gui.runAll();
    worker.join();
    EXPECT_FALSE(LiveRow::isAlive(row));
}

} // namespace
