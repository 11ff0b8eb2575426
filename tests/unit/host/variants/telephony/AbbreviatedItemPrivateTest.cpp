#include "DisplayAPI/AbbreviatedItem.h"

#include "unit/host/variants/telephony/LogRowVariantTest.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using namespace host::icons;
using testing::ElementsAre;

namespace {

using AbbreviatedItemPrivateTest = test::LogRowVariantTest;

} // namespace

TEST_P(AbbreviatedItemPrivateTest, ShowsItsNumberAndTheText)
{
    auto& row = add<AbbreviatedItem>(12, AbbreviatedItem::ICON_NUMBER, "Zoë", true);
    EXPECT_EQ(shown(), asText("AbbreviatedItem", "string0:12 Zoë\n"));
    EXPECT_FALSE(lookOf(row).hasIcons);
    EXPECT_EQ(row.getText(), "Zoë");
}

TEST_P(AbbreviatedItemPrivateTest, ShowsAnIconInThePlaceOfTheNumber)
{
    const std::vector<std::pair<int, const host::Icon*>> icons{{1, &HANDSET}, {2, &HOUSE},   {3, &MOBILE},
                                                               {4, &LETTER},  {5, &PERSON},  {6, &PICTURE},
                                                               {7, nullptr},  {-1, nullptr}, {77, nullptr}};
    for (const auto& [type, icon] : icons) {
        auto& row = add<AbbreviatedItem>(12, static_cast<AbbreviatedItem::IconType>(type), "Zoë", true);
        EXPECT_EQ(lookOf(row).lines.front().icon, icon) << type;
        EXPECT_THAT(linesOf(row), ElementsAre("Zoë"));
    }
}

TEST_P(AbbreviatedItemPrivateTest, TranslationFollowsTheLanguage)
{
    TranslationInfo text("Desk", &dictionary);
    auto& row = add<AbbreviatedItem>(3, AbbreviatedItem::ICON_NUMBER, &text, true);
    EXPECT_THAT(linesOf(row), ElementsAre("3 en:Desk"));
    changeLanguage("de");
    EXPECT_THAT(linesOf(row), ElementsAre("3 de:Desk"));
    EXPECT_EQ(row.getText(), "de:Desk");
}

TEST_P(AbbreviatedItemPrivateTest, ItsTextIsTheNewOneWhenTheObserverIsTold)
{
    TranslationInfo text("Desk", &dictionary);
    auto& row = add<AbbreviatedItem>(3, AbbreviatedItem::ICON_NUMBER, &text, true);
    std::string told;
    class Reader : public DisplayEventIfc {
    public:
        Reader(ListItem& read, std::string& text) : mRead(read), mText(text) {}
        void displayChanged(std::string) override { mText = mRead.getText(); }

    private:
        ListItem& mRead;
        std::string& mText;
    } reader(row, told);
    display.subscribe(&reader);
    dictionary.language = "de:";
    row.getPrivateImpl()->localeChanged("de");
    display.unSubscribe();
    EXPECT_EQ(told, "de:Desk");
}

TEST_P(AbbreviatedItemPrivateTest, ObserverIsToldOfALanguageAsOftenForManyRowsAsForOne)
{
    TranslationInfo text("Desk", &dictionary);
    add<AbbreviatedItem>(1, AbbreviatedItem::ICON_NUMBER, &text, true);
    const int forOne = changesBy([this] { changeLanguage("de"); });
    add<AbbreviatedItem>(2, AbbreviatedItem::ICON_NUMBER, &text, true);
    EXPECT_EQ(changesBy([this] { changeLanguage("fr"); }), forOne);
}

TEST_P(AbbreviatedItemPrivateTest, ObserverMayRemoveTheRowsWhileTheLanguageChanges)
{
    TranslationInfo text("Desk", &dictionary);
    add<AbbreviatedItem>(1, AbbreviatedItem::ICON_NUMBER, &text, true);
    add<AbbreviatedItem>(2, AbbreviatedItem::ICON_NUMBER, &text, true);
    class Remover : public DisplayEventIfc {
    public:
        explicit Remover(List& list) : mList(list) {}
        void displayChanged(std::string) override
        {
            if (mList.size() > 0)
                mList.clear();
        }

    private:
        List& mList;
    } remover(list);
    display.subscribe(&remover);
    changeLanguage("de");
    display.unSubscribe();
    EXPECT_EQ(list.size(), 0);
}

TEST_P(AbbreviatedItemPrivateTest, ToolkitRowGoesWithWhoeverOwnsIt)
{
    std::unique_ptr<KestrelListBoxItem> item;
    {
        AbbreviatedItem row(12, AbbreviatedItem::ICON_NUMBER, "Ada", true);
        row.getPrivateImpl()->releaseOwnership();
        item.reset(row.getPrivateImpl()->getKestrelListItem());
    }
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(item->DataGet()), "Ada");
    AbbreviatedItem row(12, AbbreviatedItem::ICON_NUMBER, "Ada", true);
    row.getPrivateImpl()->releaseOwnership();
    row.getPrivateImpl()->gainOwnership(); // or else it leaks
}

INSTANTIATE_ON_PANELS(AbbreviatedItemPrivateTest);
