#include "DisplayAPI/PhonebookItem.h"

#include "support/WidgetName.h"
#include "unit/src/Posted.h"
#include "unit/src/RowFacadeTest.h"
#include "utilities/TranslationInfo.h"
#include "widgets/PhonebookListItem.h"

using namespace DisplayAPI;
using test::From;
using test::Posted;
using testing::ElementsAre;

namespace {

class PhonebookItemTest : public test::RowFacadeTest<PhonebookItem> {
protected:
    const PhonebookListItem* item()
    {
        return dynamic_cast<PhonebookListItem*>(row->getPrivateImpl()->getKestrelListItem());
    }

    void expectLook(PhonebookItem::IconType icon, bool isBold)
    {
        ASSERT_NE(item(), nullptr);
        EXPECT_EQ(item()->icon(), icon);
        EXPECT_EQ(item()->isBold(), isBold);
    }

    TranslationInfo key{"key", nullptr};
};

} // namespace

TEST_P(PhonebookItemTest, ShowsItsTextOnEveryVariant)
{
    make(PhonebookItem::ICON_HOME, true, std::string("Zoë"), false);
    expectLook(PhonebookItem::ICON_HOME, true);
    EXPECT_EQ(text(), "Zoë");
    EXPECT_THAT(texts(), ElementsAre("Zoë"));
    EXPECT_EQ(test::WidgetName::of(*row), "PhonebookItem");
}

TEST_P(PhonebookItemTest, TranslationIsShownWhereItIsMadeOnTheGuiThreadAndNotElsewhere)
{
    make(PhonebookItem::ICON_HOME, false, &key, true);
    expectLook(PhonebookItem::ICON_HOME, false);
    EXPECT_EQ(text(), from() == From::GUI_THREAD ? "key" : "");
}

TEST_P(PhonebookItemTest, CodeTenMakesARowFromTheTextAndElevenFromTheTranslation)
{
    make(PhonebookItem::ICON_HOME, true, std::string("Zoë"), false);
    bool isPreferred = true;
    const auto fill = [&](GuiRequestEvent& r) {
        r.intParam1 = PhonebookItem::ICON_WORK;
        r.boolParam1 = isPreferred;
        r.boolParam2 = !isPreferred;
        r.stringParam1 = "Ada";
        r.ptrParam1 = &key;
    };
    carryOut(from(), *row, 10, fill);
    EXPECT_EQ(text(), "Ada");
    expectLook(PhonebookItem::ICON_WORK, true);
    isPreferred = false;
    carryOut(from(), *row, 11, fill);
    EXPECT_EQ(text(), "key");
    expectLook(PhonebookItem::ICON_WORK, false);
    EXPECT_EQ(row->getPrivateImpl(), row->getPrivateImplemetation());
}

TEST_P(PhonebookItemTest, CodeTwoDeletesTheRow)
{
    make(PhonebookItem::ICON_HOME, true, std::string("Zoë"), false);
    carryOut(from(), *row, 2);
    EXPECT_EQ(row->getPrivateImpl(), nullptr);
}

TEST_P(PhonebookItemTest, RewritingDoesNothing)
{
    make(PhonebookItem::ICON_HOME, true, std::string("Zoë"), false);
    run([&] {
        row->rewritePhonebookListItem(PhonebookItem::ICON_WORK, false, "Ada", true);
        row->rewritePhonebookListItem(PhonebookItem::ICON_WORK, false, &key, true);
    });
    EXPECT_EQ(text(), "Zoë");
}

INSTANTIATE_ON_VARIANTS(PhonebookItemTest);

TEST(PhonebookIconTest, KindOfNumberHasAnIconAndAnUnknownOneNone)
{
    const std::vector<std::pair<int, int>> icons{{0, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 5}, {5, 0}, {9, 0}, {-1, 0}};
    for (const auto& [number, icon] : icons) {
        const auto type = static_cast<CallPartyIdentifier::PhoneNumberIconType>(number);
        EXPECT_EQ(PhonebookItem::callPartyIconToIconType(type), icon) << number;
    }
}

namespace {

class PhonebookItemPostTest : public test::SteppedTest {};

} // namespace

TEST_F(PhonebookItemPostTest, ConstructorsPostTheSameRequestAndWait)
{
    TranslationInfo key("key", nullptr);
    std::unique_ptr<PhonebookItem> row;
    const auto make = [&](auto text) {
        return [&row, text] { row = std::make_unique<PhonebookItem>(PhonebookItem::ICON_HOME, true, text, true); };
    };
    EXPECT_EQ(test::postedBy(gui, make(std::string("Anna"))), (Posted{{10}, true}));
    EXPECT_EQ(test::postedBy(gui, [&] { row.reset(); }), (Posted{{2}, true}));
    EXPECT_EQ(test::postedBy(gui, make(&key)), (Posted{{10}, true}));
}

TEST_F(PhonebookItemPostTest, RewritingPostsNothing)
{
    PhonebookItem row(PhonebookItem::ICON_HOME, true, "Anna", true);
    const auto rewrite = [&] { row.rewritePhonebookListItem(PhonebookItem::ICON_HOME, true, "Bert", true); };
    EXPECT_EQ(test::postedBy(gui, rewrite), (Posted{{}, false}));
}
