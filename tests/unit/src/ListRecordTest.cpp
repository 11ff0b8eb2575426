// Records filled by hand with the codes that change or ask for rows: the numbers are known outside this process.

#include "DisplayAPI/List.h"

#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "DisplayAPI/Ticker.h"
#include "DisplayAPI/TickerPrivateIfc.h"
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

/// A list of two rows.
class ListRecordTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    ListRecordTest()
    {
        list.append(first);
        list.append(last);
        gui.settle();
        reached();
    }

    ~ListRecordTest() override
    {
        for (LiveRow* row : {first, last, other})
            LiveRow::deleteUnlessIn(list, row);
    }

    void carryOut(
        int code, const std::function<void(GuiRequestEvent&)>& fill = [](auto&) {})
    {
        FacadeTest::carryOut(GetParam(), list, code, fill);
        expectAllOnGuiThread();
    }

    template <typename... Args>
    static std::string call(const char* name, const Args&... args)
    {
        return callText(std::string("ListBoxPrivate::") + name, args...);
    }

    static const void* side(ListItem* row) { return row->getPrivateImplemetation(); }

    LiveRow* first = new LiveRow("first");
    LiveRow* last = new LiveRow("last");
    LiveRow* other = new LiveRow("other");
    List list{0};
};

} // namespace

TEST_P(ListRecordTest, FiveAppendsAText)
{
    carryOut(5, [](GuiRequestEvent& r) { r.stringParam1 = "new"; });
    EXPECT_EQ(list.getItems().size(), 3u);
    EXPECT_EQ(list.getItems().back()->getText(), "new");
}

TEST_P(ListRecordTest, SixAppendsATranslation)
{
    TranslationInfo text("key", nullptr);
    carryOut(6, [&](GuiRequestEvent& r) { r.ptrParam1 = &text; });
    EXPECT_EQ(list.getItems().size(), 3u);
    EXPECT_EQ(list.getItems().back()->getText(), "key");
}

TEST_P(ListRecordTest, SevenAppendsARow)
{
    carryOut(7, [&](GuiRequestEvent& r) { r.ptrParam1 = static_cast<ListItem*>(other); });
    EXPECT_THAT(list.getItems(), ElementsAre(first, last, other));
    EXPECT_THAT(reached(), ElementsAre(call("append", side(other))));
}

TEST_P(ListRecordTest, EightClears)
{
    carryOut(8);
    EXPECT_THAT(list.getItems(), IsEmpty());
    EXPECT_FALSE(LiveRow::isAlive(first) || LiveRow::isAlive(last));
    EXPECT_THAT(reached(), ElementsAre(call("clear"), "~ListItemPrivate()", "~ListItemPrivate()"));
}

TEST_P(ListRecordTest, NineAnswersTheSelectedRow)
{
    Answers::instance().selectedIndex = 1;
    ListItem* selected = nullptr;
    carryOut(9, [&](GuiRequestEvent& r) { r.returnValue3 = &selected; });
    EXPECT_EQ(selected, last);
}

TEST_P(ListRecordTest, TenSelectsARowAndIgnoresNull)
{
    carryOut(10, [&](GuiRequestEvent& r) { r.ptrParam1 = static_cast<ListItem*>(last); });
    carryOut(10);
    EXPECT_THAT(reached(), ElementsAre(call("setSelected", side(last))));
}

TEST_P(ListRecordTest, ElevenAnswersTheSelectedIndex)
{
    Answers::instance().selectedIndex = 4;
    int index = -1;
    carryOut(11, [&](GuiRequestEvent& r) { r.returnValue3 = &index; });
    EXPECT_EQ(index, 4);
}

TEST_P(ListRecordTest, ThirteenInserts)
{
    carryOut(13, [&](GuiRequestEvent& r) {
        r.ptrParam1 = static_cast<ListItem*>(other);
        r.intParam1 = 1;
    });
    EXPECT_THAT(list.getItems(), ElementsAre(first, other, last));
    EXPECT_THAT(reached(), ElementsAre(call("insertAt", side(other), 1)));
}

TEST_P(ListRecordTest, FourteenRemovesByIndexAndAnswersTheRow)
{
    ListItem* removed = nullptr;
    carryOut(14, [&](GuiRequestEvent& r) {
        r.intParam1 = 1;
        r.returnValue3 = &removed;
    });
    EXPECT_EQ(removed, last);
    EXPECT_THAT(list.getItems(), ElementsAre(first));
    EXPECT_THAT(reached(), ElementsAre(call("removeAt", 1, side(last))));
}

TEST_P(ListRecordTest, FifteenRemovesARow)
{
    carryOut(15, [&](GuiRequestEvent& r) { r.ptrParam1 = static_cast<ListItem*>(first); });
    EXPECT_THAT(list.getItems(), ElementsAre(last));
    EXPECT_THAT(reached(), ElementsAre(call("remove", side(first))));
}

TEST_P(ListRecordTest, SixteenRemovesAll)
{
    carryOut(16);
    EXPECT_THAT(list.getItems(), IsEmpty());
    EXPECT_TRUE(LiveRow::isAlive(first) && LiveRow::isAlive(last));
}

TEST_P(ListRecordTest, SeventeenReplaces)
{
    carryOut(17, [&](GuiRequestEvent& r) {
        r.ptrParam1 = static_cast<ListItem*>(first);
        r.ptrParam2 = static_cast<ListItem*>(other);
    });
    EXPECT_THAT(list.getItems(), ElementsAre(other, last));
    EXPECT_THAT(reached(), ElementsAre(call("remove", side(first)), call("insertAt", side(other), 0)));
}

TEST_P(ListRecordTest, EighteenAnswersTheSize)
{
    Answers::instance().size = 9;
    int size = -1;
    carryOut(18, [&](GuiRequestEvent& r) { r.returnValue3 = &size; });
    EXPECT_EQ(size, 9);
}

TEST_P(ListRecordTest, TwentyRemembersTheTickerAndHandsItsGuiThreadSideOn)
{
    auto ticker = std::make_unique<Ticker>("News");
    carryOut(20, [&](GuiRequestEvent& r) { r.ptrParam1 = ticker.get(); });
    EXPECT_EQ(list.getTicker(), ticker.get());
    carryOut(20, [](GuiRequestEvent& r) { r.ptrParam1 = nullptr; });
    EXPECT_EQ(list.getTicker(), nullptr);
    const void* const side = ticker->getPrivateImpl();
    EXPECT_THAT(reached(), ElementsAre(call("setTicker", side), call("setTicker", static_cast<const void*>(nullptr))));
    gui.call([&] { ticker.reset(); });
}

TEST_P(ListRecordTest, CodesOfRoundTripsDoNothing)
{
    for (const int code : {21, 30, 31})
        carryOut(code);
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(ListRecordTest, QuestionsWithoutAResultAddressAreCompleted)
{
    for (const int code : {9, 11, 14, 18})
        carryOut(code);
    EXPECT_THAT(list.getItems(), ElementsAre(last)) << "14 takes the first row out all the same";
}

INSTANTIATE_TEST_SUITE_P(From, ListRecordTest, testing::Values(From::GUI_THREAD, From::WORKER),
                         [](const testing::TestParamInfo<From>& test) { return test::nameOf(test.param); });
