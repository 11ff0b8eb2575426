#include "DisplayAPI/AbbreviatedItem.h"

#include "support/WidgetName.h"
#include "unit/src/Posted.h"
#include "unit/src/RowFacadeTest.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Posted;
using testing::ElementsAre;

namespace {

class AbbreviatedItemTest : public test::RowFacadeTest<AbbreviatedItem> {
protected:
    std::string side() const { return sideClass("AbbreviatedItemPrivate"); }

    TranslationInfo key{"key", nullptr};
};

constexpr auto ANY_ICON = static_cast<AbbreviatedItem::IconType>(-77);

} // namespace

TEST_P(AbbreviatedItemTest, RowIsMadeFromNumberIconTextAndFlag)
{
    for (const bool flag : {true, false}) {
        make(12, ANY_ICON, std::string("Anna"), flag);
        expectAllOnGuiThread();
        EXPECT_THAT(reached(), ElementsAre(callText(side(), 12, -77, std::string("Anna"), flag)));
        EXPECT_EQ(text(), "Anna");
        EXPECT_EQ(test::WidgetName::of(*row), "AbbreviatedItem");
        row.reset();
        reached();
    }
}

TEST_P(AbbreviatedItemTest, RowIsMadeFromATranslation)
{
    make(12, ANY_ICON, &key, true);
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre(callText(side(), 12, -77, &key, true)));
    EXPECT_EQ(text(), "key");
}

TEST_P(AbbreviatedItemTest, NoTranslationIsNoText)
{
    make(12, ANY_ICON, static_cast<TranslationInfo*>(nullptr), true);
    EXPECT_EQ(text(), "");
}

TEST_P(AbbreviatedItemTest, CodesTenAndElevenDeleteTheRowAndMakeAnother)
{
    make(12, ANY_ICON, std::string("Anna"), true);
    reached();
    const auto fill = [&](GuiRequestEvent& r) {
        r.intParam1 = 13;
        r.intParam2 = 4;
        r.stringParam1 = "Bert";
        r.ptrParam1 = &key;
        r.boolParam1 = true;
    };
    carryOut(from(), *row, 10, fill);
    EXPECT_THAT(reached(), ElementsAre("~" + side() + "()", callText(side(), 13, 4, std::string("Bert"), true)));
    carryOut(from(), *row, 11, fill);
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~" + side() + "()", callText(side(), 13, 4, &key, true)));
    EXPECT_EQ(row->getPrivateImpl(), row->getPrivateImplemetation());
    EXPECT_EQ(text(), "key");
}

TEST_P(AbbreviatedItemTest, OtherCodesAreTheListItems)
{
    make(12, ANY_ICON, std::string("Anna"), true);
    reached();
    carryOut(from(), *row, 2);
    EXPECT_THAT(reached(), ElementsAre("~" + side() + "()"));
    EXPECT_EQ(row->getPrivateImpl(), nullptr);
    carryOut(from(), *row, 0, [](GuiRequestEvent& r) { r.stringParam1 = "Bert"; });
    EXPECT_THAT(reached(), ElementsAre(callText(sideClass("ListItemPrivate"), std::string("Bert"), false)));
}

TEST_P(AbbreviatedItemTest, DestructorDeletesThePrivateSideOnTheGuiThread)
{
    make(12, ANY_ICON, std::string("Anna"), true);
    reached();
    run([&] { row.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~" + side() + "()"));
}

INSTANTIATE_ON_VARIANTS(AbbreviatedItemTest);

namespace {

class AbbreviatedItemPostTest : public test::SteppedTest {};

} // namespace

TEST_F(AbbreviatedItemPostTest, ConstructorsAndDestructorWait)
{
    TranslationInfo key("key", nullptr);
    std::unique_ptr<AbbreviatedItem> row;
    const auto make = [&](auto text) {
        return [&row, text] { row = std::make_unique<AbbreviatedItem>(12, ANY_ICON, text, true); };
    };
    EXPECT_EQ(test::postedBy(gui, make(std::string("Anna"))), (Posted{{10}, true}));
    EXPECT_EQ(test::postedBy(gui, [&] { row.reset(); }), (Posted{{2}, true}));
    EXPECT_EQ(test::postedBy(gui, make(&key)), (Posted{{11}, true}));
}

TEST_F(AbbreviatedItemPostTest, MayEndRightAfterItsTextHasBeenSet)
{
    auto row = std::make_unique<AbbreviatedItem>(12, ANY_ICON, std::string("Anna"), true);
    const auto end = [&] {
        row->setText("Bert");
        row.reset();
    };
    EXPECT_EQ(test::postedBy(gui, end), (Posted{{3, 2}, true}));
}
