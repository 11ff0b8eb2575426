// How lists begin and end, and who deletes what.

#include "DisplayAPI/Command.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "unit/src/FacadeTest.h"
#include "unit/src/LiveRow.h"
#include "variants/list/ListBoxPrivate.h"

#include <latch>

using namespace DisplayAPI;
using doubles::callText;
using test::From;
using test::LiveRow;
using testing::ElementsAre;
using testing::IsEmpty;

static_assert(!std::is_destructible_v<ListBoxPrivateIfc>, "a list leaves its displays before it deletes its side");

namespace {

class ListLifeTest : public test::FacadeTest {
protected:
    /// The call that has made the private side of a list of the given type.
    std::string made(From from, int listType, const void*& list, bool& hasBackItem)
    {
        std::unique_ptr<List> made;
        run(from, [&] { made = std::make_unique<List>(listType); });
        list = made.get();
        hasBackItem = made->hasBackItem();
        expectAllOnGuiThread();
        const std::vector<std::string> texts = reached();
        return texts.size() == 1 ? texts.front() : "not one call";
    }
};

} // namespace

TEST_F(ListLifeTest, OnTheFullPanelListTypesTwoAndThreeHaveAWayBackAndNoBackItem)
{
    for (const From from : {From::GUI_THREAD, From::WORKER}) {
        for (int type = 0; type <= 4; ++type) {
            const void* list = nullptr;
            bool hasBackItem = true;
            const std::string text = made(from, type, list, hasBackItem);
            EXPECT_EQ(text, callText("ListBoxPrivate", list, type == 2 || type == 3)) << "type " << type;
            EXPECT_FALSE(hasBackItem);
            reached();
        }
    }
}

TEST_F(ListLifeTest, OnOtherPanelsListTypesOneAndThreeHaveABackItem)
{
    for (const int variant : {0, 2}) {
        for (const From from : {From::GUI_THREAD, From::WORKER}) {
            for (int type = 0; type <= 4; ++type) {
                test::setHardwareVariant(variant);
                const void* list = nullptr;
                bool hasBackItem = false;
                const bool expected = type == 1 || type == 3;
                const std::string text = made(from, type, list, hasBackItem);
                EXPECT_EQ(text, callText("ListBoxPrivateWP1", list, expected)) << "type " << type;
                EXPECT_EQ(hasBackItem, expected);
                reached();
            }
        }
    }
}

TEST_F(ListLifeTest, SubVariantThreeOfTheSmallPanelHasNoBackItem)
{
    test::setHardwareVariant(0);
    HardwareVersion::setHWSubVariant(3);
    const void* list = nullptr;
    bool hasBackItem = true;
    const std::string text = made(From::WORKER, 1, list, hasBackItem);
    EXPECT_EQ(text, callText("ListBoxPrivateWP1", list, false));
    EXPECT_FALSE(hasBackItem);
}

TEST_F(ListLifeTest, WithoutAnApplicationTheListIsTheFullPanels)
{
    KestrelApplication* const application = KestrelApplication::getCurrentApplication();
    test::setHardwareVariant(0);
    KestrelApplication::setCurrentApplication(nullptr);
    const void* list = nullptr;
    bool hasBackItem = true;
    const std::string text = made(From::WORKER, 2, list, hasBackItem);
    EXPECT_EQ(text, callText("ListBoxPrivate", list, true));
    KestrelApplication::setCurrentApplication(application);
}

TEST_F(ListLifeTest, ListIsCalledListOnceItIsCreated)
{
    List list(0);
    List adopted(nullptr);
    gui.settle();
    EXPECT_EQ(list.getName(), "List");
    EXPECT_EQ(adopted.getName(), "Displayable with no name");
}

TEST_F(ListLifeTest, RecordWithCodeZeroCreatesWithItsFlag)
{
    for (const From from : {From::GUI_THREAD, From::WORKER}) {
        List list(nullptr);
        carryOut(from, list, 0, [](GuiRequestEvent& r) { r.boolParam1 = true; });
        expectAllOnGuiThread();
        EXPECT_THAT(reached(), ElementsAre(callText("ListBoxPrivate", &list, true)));
        EXPECT_NE(list.getPrivateImpl(), nullptr);
        carryOut(from, list, 1);
        reached();
    }
}

TEST_F(ListLifeTest, RecordWithCodeZeroNotesTheBackItemOnTheSmallPanel)
{
    test::setHardwareVariant(0);
    for (const From from : {From::GUI_THREAD, From::WORKER}) {
        for (const bool flag : {true, false}) {
            List list(nullptr);
            carryOut(from, list, 0, [=](GuiRequestEvent& r) { r.boolParam1 = flag; });
            EXPECT_THAT(reached(), ElementsAre(callText("ListBoxPrivateWP1", &list, flag)));
            EXPECT_EQ(list.hasBackItem(), flag);
            carryOut(from, list, 1);
            reached();
        }
    }
}

TEST_F(ListLifeTest, AdoptedImplementationIsThePrivateSideAndIsDeletedWithTheList)
{
    ListBoxPrivate* implementation = nullptr;
    gui.call([&] { implementation = new ListBoxPrivate(nullptr, false); });
    auto list = std::make_unique<List>(implementation);
    EXPECT_EQ(list->getPrivateImpl(), implementation);
    reached();
    list.reset();
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~ListBoxPrivate()"));
}

TEST_F(ListLifeTest, DestructorDeletesThePrivateSideAndThenTheRowsOnTheGuiThread)
{
    for (const From from : {From::GUI_THREAD, From::WORKER}) {
        auto list = std::make_unique<List>(0);
        auto* const row = new LiveRow;
        list->append(row);
        gui.settle();
        reached();
        run(from, [&] { list.reset(); });
        EXPECT_FALSE(LiveRow::isAlive(row));
        expectAllOnGuiThread();
        EXPECT_THAT(reached(), ElementsAre("~ListBoxPrivate()", "~ListItemPrivate()"));
    }
}

TEST_F(ListLifeTest, RecordWithCodeOneCleansUpAndTheListStaysUsable)
{
    for (const From from : {From::GUI_THREAD, From::WORKER}) {
        List list(0);
        auto* const row = new LiveRow;
        list.append(row);
        carryOut(from, list, 1);
        EXPECT_FALSE(LiveRow::isAlive(row));
        EXPECT_EQ(list.getPrivateImpl(), nullptr);
        EXPECT_THAT(list.getItems(), IsEmpty());
        EXPECT_EQ(list.size(), -1);
        EXPECT_EQ(list.getSelectedIndex(), -1);
        EXPECT_EQ(list.getSelected(), nullptr);
    }
}

TEST_F(ListLifeTest, WithoutAPrivateSideRowsAreStillKept)
{
    List list(nullptr);
    auto* const row = new LiveRow;
    auto* const other = new LiveRow;
    list.append(row);
    EXPECT_THAT(list.getItems(), ElementsAre(row));
    list.replace(row, other);
    EXPECT_THAT(list.getItems(), ElementsAre(other));
    list.remove(other);
    list.append(row);
    EXPECT_EQ(list.removeAt(0), row);
    list.append(row);
    list.removeAll();
    EXPECT_THAT(list.getItems(), IsEmpty());
    list.append(row);
    gui.settle();
    list.clear();
    EXPECT_THAT(list.getItems(), IsEmpty());
    EXPECT_FALSE(LiveRow::isAlive(row));
    delete other;
}

TEST_F(ListLifeTest, UnknownCodesAreCompletedWithoutEffect)
{
    List list(0);
    gui.settle();
    reached();
    for (const From from : {From::GUI_THREAD, From::WORKER})
        for (const int code : {-1, 2, 3, 4, 33, 40, 99})
            carryOut(from, list, code);
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_F(ListLifeTest, StaticCommandsAreOneObjectEachWithAnEmptyLabel)
{
    using Accessor = Command* (*)();
    const std::pair<Accessor, int> commands[] = {
        {&List::SELECT_COMMAND, 6},          {&List::RIGHT_COMMAND, 9},         {&List::BACK_COMMAND, 1},
        {&List::DISPLAY_CHANGED_COMMAND, 7}, {&List::TABBAR_ACTIVE_COMMAND, 7}, {&List::TABBAR_INACTIVE_COMMAND, 7}};
    std::set<Command*> objects;
    for (const auto& [accessor, type] : commands) {
        EXPECT_EQ(accessor()->getType(), type);
        EXPECT_EQ(accessor()->getText(), "");
        EXPECT_EQ(accessor(), accessor());
        objects.insert(accessor());
    }
    EXPECT_EQ(objects.size(), std::size(commands));
}

TEST_F(ListLifeTest, ClearFromAWorkerDropsWhatIsQueuedAndSuperseded)
{
    List list(0);
    auto* const row = new LiveRow;
    auto* const late = new LiveRow;
    list.append(row);
    gui.settle();
    reached();
    std::latch open(1);
    gui.post([&] { open.wait(); });
    list.append(std::string("dropped"));
    list.append(static_cast<TranslationInfo*>(nullptr));
    list.append(late);
    list.setSelected(row);
    list.setTitle(std::string("kept"));
    list.setSelectedIndex(4);
    list.insertAt(late, 0);
    list.remove(row);
    list.removeAll();
    list.replace(row, late);
    list.clear();
    list.clear();
    open.count_down();
    gui.settle();
    EXPECT_THAT(reached(),
                ElementsAre(callText("ListBoxPrivate::setTitle", std::string("kept")),
                            "ListBoxPrivate::setSelectedIndex(4)", "ListBoxPrivate::clear()", "~ListItemPrivate()"));
    EXPECT_THAT(list.getItems(), IsEmpty());
    EXPECT_TRUE(LiveRow::isAlive(late));
    delete late;
}

TEST_F(ListLifeTest, ClearFromAWorkerLeavesTheRequestsOfOtherListsAlone)
{
    List list(0);
    List other(0);
    gui.settle();
    std::latch open(1);
    gui.post([&] { open.wait(); });
    other.append(std::string("kept"));
    list.clear();
    open.count_down();
    EXPECT_EQ(other.getItems().size(), 1u);
}

TEST_F(ListLifeTest, OperationsOfOneThreadKeepTheirOrder)
{
    List list(0);
    std::vector<ListItem*> rows;
    for (int i = 0; i < 200; ++i) {
        rows.push_back(new LiveRow(std::to_string(i)));
        list.append(rows.back());
    }
    EXPECT_EQ(list.getItems(), rows);
}
