#include "DisplayAPI/List.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "DisplayAPI/Ticker.h"
#include "unit/src/FacadeTest.h"
#include "unit/src/LiveRow.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using doubles::Answers;
using doubles::callText;
using test::From;
using test::LiveRow;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A list of three rows on the full panel, changed from the GUI thread and from another one.
class ListTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    ListTest()
    {
        for (LiveRow* row : rows)
            list.append(row);
        gui.settle();
        reached();
    }

    ~ListTest() override
    {
        for (LiveRow* row : {rows[0], rows[1], rows[2], other})
            LiveRow::deleteUnlessIn(list, row);
    }

    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }

    template <typename... Args>
    static std::string call(const char* name, const Args&... args)
    {
        return callText(std::string("ListBoxPrivate::") + name, args...);
    }

    static const void* side(ListItem* row) { return row->getPrivateImplemetation(); }

    std::vector<LiveRow*> rows{new LiveRow("a"), new LiveRow("b"), new LiveRow("c")};
    LiveRow* other = new LiveRow("d");
    List list{0};
};

} // namespace

TEST_P(ListTest, AppendPutsTheRowAtTheEnd)
{
    run([&] { list.append(other); });
    EXPECT_THAT(list.getItems(), ElementsAre(rows[0], rows[1], rows[2], other));
    EXPECT_THAT(reached(), ElementsAre(call("append", side(other))));
}

TEST_P(ListTest, AppendOfATextMakesARowWithItemFlagTrue)
{
    run([&] { list.append(std::string("new")); });
    ListItem* const row = list.getItems().back();
    EXPECT_EQ(row->getText(), "new");
    expectAllOnGuiThread();
    EXPECT_THAT(reached(),
                ElementsAre(callText("ListItemPrivate", std::string("new"), true), call("append", side(row))));
}

TEST_P(ListTest, AppendOfATranslationMakesARowWithItemFlagTrue)
{
    TranslationInfo text("key", nullptr);
    run([&] { list.append(&text); });
    ListItem* const row = list.getItems().back();
    EXPECT_EQ(row->getText(), "key");
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre(callText("ListItemPrivate", &text, true), call("append", side(row))));
}

TEST_P(ListTest, AppendOfARowWithoutPrivateSideLeavesTheListUnchanged)
{
    LiveRow bare(static_cast<ListItemPrivateIfc*>(nullptr));
    run([&] { list.append(&bare); });
    EXPECT_EQ(list.getItems().size(), 3u);
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(ListTest, AppendOfNullLeavesTheListUnchanged)
{
    run([&] { list.append(static_cast<ListItem*>(nullptr)); });
    EXPECT_EQ(list.getItems().size(), 3u);
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(ListTest, WithoutAnImplementationRowsBelongToTheListWhicheverWayTheyCame)
{
    auto bare = std::make_unique<List>(nullptr);
    LiveRow* const row = new LiveRow("row");
    gui.settle();
    run([&] {
        bare->append(other);
        bare->insertAt(row, 0);
    });
    EXPECT_THAT(bare->getItems(), ElementsAre(row, other));
    run([&] { bare.reset(); });
    EXPECT_FALSE(LiveRow::isAlive(other) || LiveRow::isAlive(row));
}

TEST_P(ListTest, InsertAtCountsFromZero)
{
    run([&] { list.insertAt(other, 1); });
    EXPECT_THAT(list.getItems(), ElementsAre(rows[0], other, rows[1], rows[2]));
    EXPECT_THAT(reached(), ElementsAre(call("insertAt", side(other), 1)));
}

TEST_P(ListTest, InsertAtANegativeIndexInsertsAtTheFront)
{
    run([&] { list.insertAt(other, -5); });
    EXPECT_THAT(list.getItems(), ElementsAre(other, rows[0], rows[1], rows[2]));
    EXPECT_THAT(reached(), ElementsAre(call("insertAt", side(other), -5)));
}

TEST_P(ListTest, InsertAtPastTheEndAppends)
{
    run([&] { list.insertAt(other, 1000); });
    EXPECT_THAT(list.getItems(), ElementsAre(rows[0], rows[1], rows[2], other));
    EXPECT_THAT(reached(), ElementsAre(call("insertAt", side(other), 1000)));
}

TEST_P(ListTest, RemoveAtGivesTheRowBackAlive)
{
    ListItem* removed = nullptr;
    run([&] { removed = list.removeAt(1); });
    EXPECT_EQ(removed, rows[1]);
    EXPECT_TRUE(LiveRow::isAlive(rows[1]));
    EXPECT_THAT(list.getItems(), ElementsAre(rows[0], rows[2]));
    EXPECT_THAT(reached(), ElementsAre(call("removeAt", 1, side(rows[1]))));
}

TEST_P(ListTest, RemoveAtANegativeIndexTakesTheFirstRowAndHandsTheIndexOn)
{
    ListItem* removed = nullptr;
    run([&] { removed = list.removeAt(-1); });
    EXPECT_EQ(removed, rows[0]);
    EXPECT_THAT(list.getItems(), ElementsAre(rows[1], rows[2]));
    EXPECT_THAT(reached(), ElementsAre(call("removeAt", -1, side(rows[0]))));
}

TEST_P(ListTest, RemoveAtPastTheEndAnswersNull)
{
    ListItem* removed = other;
    run([&] { removed = list.removeAt(3); });
    EXPECT_EQ(removed, nullptr);
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(ListTest, RemoveTakesTheRowOutAlive)
{
    run([&] { list.remove(rows[1]); });
    EXPECT_TRUE(LiveRow::isAlive(rows[1]));
    EXPECT_THAT(list.getItems(), ElementsAre(rows[0], rows[2]));
    EXPECT_THAT(reached(), ElementsAre(call("remove", side(rows[1]))));
}

TEST_P(ListTest, RemoveOfAForeignRowReachesThePrivateSideAllTheSame)
{
    run([&] { list.remove(other); });
    EXPECT_EQ(list.getItems().size(), 3u);
    EXPECT_THAT(reached(), ElementsAre(call("remove", side(other))));
}

TEST_P(ListTest, RemoveAllTakesOutEachRowInOrderAndKeepsThemAlive)
{
    run([&] { list.removeAll(); });
    EXPECT_THAT(list.getItems(), IsEmpty());
    EXPECT_TRUE(LiveRow::isAlive(rows[0]) && LiveRow::isAlive(rows[1]) && LiveRow::isAlive(rows[2]));
    EXPECT_THAT(reached(), ElementsAre(call("remove", side(rows[0])), call("remove", side(rows[1])),
                                       call("remove", side(rows[2]))));
}

TEST_P(ListTest, ReplacePutsTheNewRowInTheOldOnesPlace)
{
    run([&] { list.replace(rows[1], other); });
    EXPECT_THAT(list.getItems(), ElementsAre(rows[0], other, rows[2]));
    EXPECT_TRUE(LiveRow::isAlive(rows[1]));
    EXPECT_THAT(reached(), ElementsAre(call("remove", side(rows[1])), call("insertAt", side(other), 1)));
}

TEST_P(ListTest, ReplaceOfAForeignRowAsksToRemoveItAndAppends)
{
    LiveRow foreign;
    gui.settle();
    reached();
    run([&] { list.replace(&foreign, other); });
    EXPECT_THAT(list.getItems(), ElementsAre(rows[0], rows[1], rows[2], other));
    EXPECT_THAT(reached(), ElementsAre(call("remove", side(&foreign)), call("append", side(other))));
}

TEST_P(ListTest, ReplaceOfNullAppends)
{
    run([&] { list.replace(nullptr, other); });
    EXPECT_THAT(list.getItems(), ElementsAre(rows[0], rows[1], rows[2], other));
    EXPECT_THAT(reached(), ElementsAre(call("append", side(other))));
}

TEST_P(ListTest, ReplaceByNullDoesNothing)
{
    run([&] { list.replace(rows[0], nullptr); });
    EXPECT_THAT(list.getItems(), ElementsAre(rows[0], rows[1], rows[2]));
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(ListTest, ClearEmptiesThePrivateSideAndDeletesTheRows)
{
    run([&] { list.clear(); });
    EXPECT_THAT(list.getItems(), IsEmpty());
    EXPECT_FALSE(LiveRow::isAlive(rows[0]) || LiveRow::isAlive(rows[1]) || LiveRow::isAlive(rows[2]));
    expectAllOnGuiThread();
    EXPECT_THAT(reached(),
                ElementsAre(call("clear"), "~ListItemPrivate()", "~ListItemPrivate()", "~ListItemPrivate()"));
}

TEST_P(ListTest, SetSelectedReachesThePrivateSideWithTheRowsOwn)
{
    run([&] { list.setSelected(rows[2]); });
    EXPECT_THAT(reached(), ElementsAre(call("setSelected", side(rows[2]))));
}

TEST_P(ListTest, SetSelectedOfNullDoesNothing)
{
    run([&] { list.setSelected(nullptr); });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(ListTest, GetSelectedIsTheRowAtTheIndexThatThePrivateSideReports)
{
    Answers::instance().selectedIndex = 1;
    ListItem* selected = nullptr;
    run([&] { selected = list.getSelected(); });
    EXPECT_EQ(selected, rows[1]);
    EXPECT_THAT(reached(), ElementsAre(call("getSelectedIndex")));
}

TEST_P(ListTest, GetSelectedIsNullWithoutASelectionOrPastTheEnd)
{
    for (const int index : {-1, 3, 1000}) {
        Answers::instance().selectedIndex = index;
        ListItem* selected = other;
        run([&] { selected = list.getSelected(); });
        EXPECT_EQ(selected, nullptr) << index;
    }
}

TEST_P(ListTest, SizeAndSelectedIndexAreThePrivateSides)
{
    Answers::instance().size = 17;
    Answers::instance().selectedIndex = 2;
    int size = 0;
    int index = 0;
    run([&] {
        size = list.size();
        index = list.getSelectedIndex();
    });
    EXPECT_EQ(size, 17);
    EXPECT_EQ(index, 2);
    EXPECT_THAT(reached(), ElementsAre(call("size"), call("getSelectedIndex")));
}

TEST_P(ListTest, ChangesOfRowsDoNotTouchTheSelection)
{
    run([&] {
        list.insertAt(other, 0);
        list.removeAt(0);
        list.replace(rows[0], other);
    });
    EXPECT_EQ(recorder.count("ListBoxPrivate::setSelected"), 0);
    EXPECT_EQ(recorder.count("ListBoxPrivate::setSelectedIndex"), 0);
}

TEST_P(ListTest, GetTickerAndGetDialerAreWhatWasGivenLast)
{
    auto ticker = std::make_unique<Ticker>("News");
    auto* const dialer = reinterpret_cast<PopupDialer*>(0x2000);
    run([&] {
        EXPECT_EQ(list.getTicker(), nullptr);
        EXPECT_EQ(list.getDialer(), nullptr);
        list.setTicker(ticker.get());
        list.addDialer(dialer);
        EXPECT_EQ(list.getTicker(), ticker.get());
        EXPECT_EQ(list.getDialer(), dialer);
    });
    gui.call([&] { ticker.reset(); });
}

TEST_P(ListTest, LocaleChangedReachesEachRowInOrderAndNotTheList)
{
    gui.call([&] { list.localeChanged("de"); });
    const std::string expected = callText("ListItemPrivate::localeChanged", std::string("de"));
    std::vector<const void*> objects;
    for (const doubles::Call& call : recorder.calls())
        objects.push_back(call.object);
    EXPECT_THAT(reached(), ElementsAre(expected, expected, expected));
    EXPECT_THAT(objects, ElementsAre(side(rows[0]), side(rows[1]), side(rows[2])));
}

INSTANTIATE_TEST_SUITE_P(From, ListTest, testing::Values(From::GUI_THREAD, From::WORKER),
                         [](const testing::TestParamInfo<From>& test) { return test::nameOf(test.param); });
