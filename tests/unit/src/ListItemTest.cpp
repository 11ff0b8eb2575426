#include "DisplayAPI/ListItem.h"

#include "DisplayAPI/ListItemPrivateIfc.h"
#include "support/WidgetName.h"
#include "unit/src/FacadeTest.h"
#include "unit/src/Posted.h"
#include "utilities/TranslationInfo.h"
#include "variants/list/ListItemPrivate.h"

using namespace DisplayAPI;
using doubles::callText;
using test::From;
using test::Posted;
using test::WidgetName;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Parameters = std::tuple<From, int>;

/// As rows with more than a text are written.
class DerivedRow : public ListItem {
public:
    DerivedRow() : ListItem(nullptr) { createEmpty(); }

    void replace(const std::string& text)
    {
        delete implementation();
        setImplementation(new ListItemPrivate(text, false));
    }
};

class NamedRow : public ListItem {
public:
    NamedRow() : ListItem(nullptr)
    {
        name = "NamedRow";
        createEmpty();
    }
};

class ListItemTest : public test::FacadeTest, public testing::WithParamInterface<Parameters> {
protected:
    ListItemTest() { test::setHardwareVariant(variant()); }

    From from() const { return std::get<0>(GetParam()); }
    int variant() const { return std::get<1>(GetParam()); }
    void run(const std::function<void()>& work) { FacadeTest::run(from(), work); }

    /// Variant 1 has a row class of its own, every other variant the small panel's.
    std::string rowClass() const { return variant() == 1 ? "ListItemPrivate" : "ListItemPrivateWP1"; }

    template <typename... Args>
    void make(const Args&... args)
    {
        run([&] { item = std::make_unique<ListItem>(args...); });
    }

    std::unique_ptr<ListItem> item;
    TranslationInfo text{"key", nullptr};
};

} // namespace

TEST_P(ListItemTest, ItsNameIsThatOfItsClassOrTheOneThatADerivedRowHasTaken)
{
    make();
    EXPECT_EQ(WidgetName::of(*item), "ListItem");
    make(std::string("Ada"), true);
    EXPECT_EQ(WidgetName::of(*item), "ListItem");
    make(&text, true);
    EXPECT_EQ(WidgetName::of(*item), "ListItem");
    run([&] { item = std::make_unique<NamedRow>(); });
    EXPECT_EQ(WidgetName::of(*item), "NamedRow");
}

TEST_P(ListItemTest, DefaultRowHasTheItemFlagOnTheGuiThreadAndNotElsewhere)
{
    make();
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre(callText(rowClass(), std::string(), from() == From::GUI_THREAD)));
}

TEST_P(ListItemTest, RowWithATextHandsTextAndFlagOn)
{
    for (const bool flag : {true, false}) {
        make(std::string("Anna"), flag);
        expectAllOnGuiThread();
        EXPECT_THAT(reached(), ElementsAre(callText(rowClass(), std::string("Anna"), flag)));
        item.reset();
        reached();
    }
}

TEST_P(ListItemTest, RowWithATranslationHandsTranslationAndFlagOn)
{
    for (const bool flag : {true, false}) {
        make(&text, flag);
        expectAllOnGuiThread();
        EXPECT_THAT(reached(), ElementsAre(callText(rowClass(), &text, flag)));
        item.reset();
        reached();
    }
}

TEST_P(ListItemTest, GetTextIsTheTextThatTheRowWasMadeWith)
{
    const std::string umlauts = "J\xC3\xBCrgen \xE4\xB8\xAD";
    make(umlauts, true);
    run([&] { EXPECT_EQ(item->getText(), umlauts); });
    item.reset();
    make(&text, true);
    run([&] { EXPECT_EQ(item->getText(), "key"); });
}

TEST_P(ListItemTest, TextIsFixedWhateverIsSetFromWherever)
{
    make(std::string("Anna"), true);
    run([&] {
        item->setText(std::string("Bert"));
        item->setText(&text);
    });
    carryOut(from(), *item, 3, [](GuiRequestEvent& r) { r.stringParam1 = "Bert"; });
    carryOut(from(), *item, 3, [&](GuiRequestEvent& r) { r.ptrParam1 = &text; });
    run([&] { EXPECT_EQ(item->getText(), "Anna"); });
    EXPECT_THAT(reached(), ElementsAre(callText(rowClass(), std::string("Anna"), true)));
}

TEST_P(ListItemTest, DestructorDeletesThePrivateSideOnTheGuiThread)
{
    make(std::string("Anna"), true);
    reached();
    run([&] { item.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~" + rowClass() + "()"));
}

TEST_P(ListItemTest, AdoptedPrivateSideIsDeletedWithTheRow)
{
    ListItemPrivate* side = nullptr;
    gui.call([&] { side = new ListItemPrivate(std::string("mine"), false); });
    make(static_cast<ListItemPrivateIfc*>(side));
    EXPECT_EQ(item->getPrivateImplemetation(), side);
    run([&] { EXPECT_EQ(item->getText(), "mine"); });
    reached();
    run([&] { item.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~ListItemPrivate()"));
}

TEST_P(ListItemTest, WithoutAPrivateSideTheTextIsEmpty)
{
    make(static_cast<ListItemPrivateIfc*>(nullptr));
    EXPECT_EQ(item->getPrivateImplemetation(), nullptr);
    run([&] { EXPECT_EQ(item->getText(), ""); });
    std::string answer = "untouched";
    carryOut(from(), *item, 6, [&](GuiRequestEvent& r) { r.returnValue3 = &answer; });
    EXPECT_EQ(answer, "untouched");
}

TEST_P(ListItemTest, CodesZeroAndOneMakeThePrivateSide)
{
    ListItem bare(nullptr);
    carryOut(from(), bare, 0, [](GuiRequestEvent& r) {
        r.stringParam1 = "Anna";
        r.boolParam1 = true;
    });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre(callText(rowClass(), std::string("Anna"), true)));
    carryOut(from(), bare, 2);
    reached();
    carryOut(from(), bare, 1, [&](GuiRequestEvent& r) { r.ptrParam1 = &text; });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre(callText(rowClass(), &text, false)));
}

TEST_P(ListItemTest, CodeTwoDeletesThePrivateSide)
{
    make(std::string("Anna"), true);
    reached();
    carryOut(from(), *item, 2);
    EXPECT_EQ(item->getPrivateImplemetation(), nullptr);
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~" + rowClass() + "()"));
}

TEST_P(ListItemTest, DerivedRowMakesTheBasesPrivateSideWhenItIsCompleteItself)
{
    run([&] { item = std::make_unique<DerivedRow>(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre(callText(rowClass(), std::string(), from() == From::GUI_THREAD)));
}

TEST_P(ListItemTest, DerivedRowPutsAPrivateSideOfItsOwnInPlaceOfTheBases)
{
    run([&] { item = std::make_unique<DerivedRow>(); });
    gui.call([&] { static_cast<DerivedRow*>(item.get())->replace("own"); });
    run([&] { EXPECT_EQ(item->getText(), "own"); });
    reached();
    run([&] { item.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~ListItemPrivate()"));
}

TEST_P(ListItemTest, ContextMenuArrowDoesNothing)
{
    make(std::string("Anna"), true);
    reached();
    run([&] { item->enableContextMenuArrow(true); });
    EXPECT_THAT(reached(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Requests, ListItemTest,
                         testing::Combine(testing::Values(From::GUI_THREAD, From::WORKER), testing::Values(0, 1, 2)),
                         [](const testing::TestParamInfo<Parameters>& test) {
                             return test::nameOf(std::get<0>(test.param)) + "OnVariant" +
                                    std::to_string(std::get<1>(test.param));
                         });

namespace {

class ListItemPostTest : public test::SteppedTest {};

} // namespace

TEST_F(ListItemPostTest, ConstructorsPostAndReturn)
{
    TranslationInfo text("key", nullptr);
    std::vector<std::unique_ptr<ListItem>> items;
    const auto add = [&](auto... args) { items.push_back(std::make_unique<ListItem>(args...)); };
    EXPECT_EQ(test::postedBy(gui, [&] { add(); }), (Posted{{0}, false}));
    EXPECT_EQ(test::postedBy(gui, [&] { add(std::string("x"), true); }), (Posted{{0}, false}));
    EXPECT_EQ(test::postedBy(gui, [&] { add(&text, true); }), (Posted{{1}, false}));
    EXPECT_EQ(test::postedBy(gui, [&] { add(nullptr); }), (Posted{{}, false}));
}

TEST_F(ListItemPostTest, DestructorWaits)
{
    auto item = std::make_unique<ListItem>();
    EXPECT_EQ(test::postedBy(gui, [&] { item.reset(); }), (Posted{{2}, true}));
}
