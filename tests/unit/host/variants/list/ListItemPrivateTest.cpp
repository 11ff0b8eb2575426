#include "unit/host/variants/list/ListVariantTest.h"

#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using test::textOf;
using testing::Return;

namespace {

template <typename Variant>
class ListItemPrivateTest : public testing::Test {
protected:
    using Row = typename Variant::Row;
};

TYPED_TEST_SUITE(ListItemPrivateTest, test::Variants);

TYPED_TEST(ListItemPrivateTest, HasItsText)
{
    typename TypeParam::Row row(std::string("Ærø"), false);
    EXPECT_EQ(textOf(row.getKestrelListItem()), "Ærø");
}

TYPED_TEST(ListItemPrivateTest, TextIsFixed)
{
    typename TypeParam::Row row(std::string("a"), false);
    TranslationInfo other("other", nullptr);
    row.setText(std::string("b"));
    row.setText(&other);
    row.localeChanged("de");
    EXPECT_EQ(textOf(row.getKestrelListItem()), "a");
}

TYPED_TEST(ListItemPrivateTest, TranslatedTextFollowsTheLocale)
{
    testing::StrictMock<doubles::MockTranslator> translator;
    EXPECT_CALL(translator, translate("Calls")).WillOnce(Return("Calls")).WillOnce(Return("Anrufe"));
    TranslationInfo text("Calls", &translator, ": 3");
    typename TypeParam::Row row(&text, true);
    EXPECT_EQ(textOf(row.getKestrelListItem()), "Calls: 3");
    row.localeChanged("de");
    EXPECT_EQ(textOf(row.getKestrelListItem()), "Anrufe: 3");
}

TYPED_TEST(ListItemPrivateTest, NoTranslationIsNoText)
{
    typename TypeParam::Row row(static_cast<TranslationInfo*>(nullptr), true);
    EXPECT_EQ(textOf(row.getKestrelListItem()), "");
    row.localeChanged("de");
    EXPECT_EQ(textOf(row.getKestrelListItem()), "");
}

TYPED_TEST(ListItemPrivateTest, ReleasedToolkitRowIsNotDeletedWithIt)
{
    std::unique_ptr<KestrelListBoxItem> item;
    {
        typename TypeParam::Row row(std::string("a"), true);
        row.releaseOwnership();
        item.reset(row.getKestrelListItem());
    }
    EXPECT_EQ(textOf(item.get()), "a");
}

TYPED_TEST(ListItemPrivateTest, ReleasedToolkitRowMayGoFirst)
{
    TranslationInfo text("Calls", nullptr);
    typename TypeParam::Row row(&text, true);
    row.releaseOwnership();
    delete row.getKestrelListItem();
    row.localeChanged("de");
    row.gainOwnership();
}

TYPED_TEST(ListItemPrivateTest, ToolkitRowTakenBackIsDeletedAgain)
{
    typename TypeParam::Row row(std::string("a"), true);
    row.releaseOwnership();
    row.gainOwnership();
}

} // namespace
