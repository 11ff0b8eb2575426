#include "PhonebookItemPrivate.h"

#include "doubles/Mocks.h"
#include "support/RowsOwner.h"
#include "utilities/TranslationInfo.h"

#include <gmock/gmock.h>

using namespace DisplayAPI;
using test::textOf;
using testing::Return;

namespace {

constexpr auto ICON = PhonebookItem::ICON_HOME;

TEST(PhonebookItemPrivateTest, TextIsFixedAndNotLookedUp)
{
    PhonebookItemPrivate side(ICON, true, std::string("Ærø"), true);
    side.setText(std::string("other"));
    side.localeChanged("de");
    EXPECT_EQ(textOf(side.getKestrelListItem()), "Ærø");
}

TEST(PhonebookItemPrivateTest, TranslationFollowsTheLanguage)
{
    testing::StrictMock<doubles::MockTranslator> translator;
    EXPECT_CALL(translator, translate("Home")).WillOnce(Return("Home")).WillOnce(Return("Zuhause"));
    TranslationInfo text("Home", &translator);
    PhonebookItemPrivate side(ICON, false, &text, true);
    EXPECT_EQ(textOf(side.getKestrelListItem()), "Home");
    side.localeChanged("de");
    EXPECT_EQ(textOf(side.getKestrelListItem()), "Zuhause");
}

TEST(PhonebookItemPrivateTest, NoTranslationIsNoText)
{
    PhonebookItemPrivate side(ICON, false, static_cast<TranslationInfo*>(nullptr), true);
    EXPECT_EQ(textOf(side.getKestrelListItem()), "");
}

TEST(PhonebookItemPrivateTest, ToolkitRowGoesWithWhoeverOwnsIt)
{
    std::unique_ptr<KestrelListBoxItem> item;
    {
        PhonebookItemPrivate side(ICON, true, std::string("Ada"), true);
        side.releaseOwnership();
        item.reset(side.getKestrelListItem());
    }
    EXPECT_EQ(textOf(item.get()), "Ada");
    PhonebookItemPrivate side(ICON, true, std::string("Ada"), true);
    side.releaseOwnership();
    side.gainOwnership(); // or else it leaks
}

} // namespace
