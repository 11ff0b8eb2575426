#include "widgets/PhonebookListItem.h"

#include "host/lcd/Lcd.h"
#include "host/widgets/telephony/PhonebookIcons.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/RowsOwner.h"
#include "support/RunningToolkit.h"
#include "widgets/KestrelListBoxWithTitle.h"

#include <gmock/gmock.h>

#include <set>

namespace {

PegString zoe()
{
    return ICC::fromUTF8toUNICODE("Zoë");
}

class PhonebookListItemTest : public testing::Test {
protected:
    /// The panel with such a row alone.
    std::vector<std::uint8_t> pixels(int icon, bool bold)
    {
        const test::StartedToolkit toolkit;
        auto* const list = new KestrelListBoxWithTitle;
        PhonebookListItem row(zoe(), icon, bold);
        list->append(&row);
        gpPresent->Add(list);
        host::Lcd::current()->paint();
        return host::Lcd::current()->picture().pixels;
    }
};

TEST_F(PhonebookListItemTest, HasAText)
{
    const PhonebookListItem row(zoe(), 1, true);
    EXPECT_EQ(test::textOf(&row), "Zoë");
    EXPECT_EQ(row.describe().name, "PhonebookListItem");
    EXPECT_THAT(row.describe().texts, testing::ElementsAre(zoe()));
}

TEST_F(PhonebookListItemTest, EachIconLooksDifferentAndUnknownOnesAreNone)
{
    std::set<std::vector<std::uint8_t>> looks;
    for (int icon = 0; icon <= 6; ++icon)
        EXPECT_TRUE(looks.insert(pixels(icon, false)).second) << icon;
    for (const int icon : {-1, 7, 77})
        EXPECT_EQ(pixels(icon, false), pixels(0, false)) << icon;
}

TEST_F(PhonebookListItemTest, PreferredOneIsBold)
{
    EXPECT_NE(pixels(1, true), pixels(1, false));
}

TEST(PhonebookIconsTest, KindsOfNumbersHaveIcons)
{
    using namespace host::icons;
    const std::vector<const host::Icon*> icons{nullptr, &HANDSET, &HOUSE, &MOBILE, &LETTER, &PERSON, &PICTURE, nullptr};
    for (int type = 0; type < static_cast<int>(icons.size()); ++type)
        EXPECT_EQ(host::phonebookIcon(type), icons[static_cast<std::size_t>(type)]) << type;
    EXPECT_EQ(host::phonebookIcon(-1), nullptr);
}

} // namespace
