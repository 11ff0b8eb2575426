#include "unit/host/variants/list/ListVariantTest.h"

#include "DisplayAPI/ListItem.h"
#include "widgets/KestrelApplication.h"

#include <type_traits>

using namespace DisplayAPI;

namespace {

/// Status lines of a list, and its changes of language.
template <typename Variant>
class ListBoxStatusTest : public test::ListVariantTest<Variant> {
protected:
    ListBoxStatusTest()
    {
        this->attach(list);
        list.append(&row);
    }
    ~ListBoxStatusTest() override
    {
        application.setLocale(PegString());
        application.setTimeFormat(PegString());
    }

    static constexpr bool HAS_LINES = std::is_same_v<Variant, test::PlainVariant>;

    KestrelApplication& application = *KestrelApplication::getCurrentApplication();
    typename Variant::ListBox list{&this->owner, false};
    typename Variant::Row row{std::string("a"), true};
};

TYPED_TEST_SUITE(ListBoxStatusTest, test::Variants);

TYPED_TEST(ListBoxStatusTest, SerialisesStatusLinesBeforeTheRows)
{
    this->list.setTitle("Menu");
    this->list.setSystemWindowText(0, "Line 0");
    this->list.setSystemWindowText(1, "Line 1");
    this->list.setSystemWindowSize(2);
    const std::string lines = "subitem:\nname:SystemWindow\nstring0:Line 0\nstring1:Line 1\nendsubitem:\n";
    EXPECT_EQ(this->list.serialise(), "object:\nname:KestrelListBox\ncaption:Menu\n" +
                                          (this->HAS_LINES ? lines : std::string()) +
                                          "subitem:\nname:KestrelListBoxItem\nstring0:a\nendsubitem:\nend:\n");
}

TYPED_TEST(ListBoxStatusTest, SerialisesStatusLinesOnlyWhereTheyAreVisible)
{
    this->list.setSysWindowText("Line 0", 0);
    this->list.setSysWindowSize(1);
    EXPECT_THAT(this->list.serialise({{0, 30, 100, 3}}), testing::Not(testing::HasSubstr("SystemWindow")));
    EXPECT_EQ(this->list.serialise({{0, 0, 1, 1}}).find("SystemWindow") != std::string::npos, this->HAS_LINES);
}

TYPED_TEST(ListBoxStatusTest, ControlCharactersDoNotBreakTheText)
{
    typename TypeParam::Row broken{std::string("b\nend:\t\x7F."), true};
    this->list.append(&broken);
    this->list.setSelectedIndex(1);
    this->list.setTitle("Me\nnu");
    this->list.setSystemWindowText(0, "Line\r\n0");
    this->list.setSystemWindowSize(1);
    const std::string text = this->list.serialise();
    EXPECT_THAT(text, testing::HasSubstr("\ncaption:Me nu\n"));
    EXPECT_THAT(text, testing::HasSubstr("\nstring0:b end:  .\n"));
    EXPECT_EQ(text.find("\nstring0:Line  0\n") != std::string::npos, this->HAS_LINES);
}

TYPED_TEST(ListBoxStatusTest, OwnLinesTellTheDisplayThoseOfTheDisplayDoNot)
{
    this->putOnScreen(this->list);
    this->display.changes = 0;
    this->list.setSystemWindowText(0, "Line 0");
    this->list.setSystemWindowSize(1);
    EXPECT_EQ(this->display.changes, 2);
    this->list.setSysWindowText("Line 1", 0);
    this->list.setSysWindowSize(0);
    EXPECT_EQ(this->display.changes, 2);
    this->putAway(this->list);
}

TYPED_TEST(ListBoxStatusTest, LinesOfADeadWidgetAreForgotten)
{
    this->putOnScreen(this->list);
    delete this->list.getWidget();
    this->list.setSysWindowText("Line 0", 0);
    this->list.setSysWindowSize(1);
    this->list.setSystemWindowText(0, "Line 0");
    this->list.setSystemWindowSize(1);
    EXPECT_EQ(this->list.serialise(), "");
}

/// Rows that belong to the list's facade.
template <typename Variant>
class ListLocaleTest : public ListBoxStatusTest<Variant> {
protected:
    struct CountingList : List {
        CountingList() : List(static_cast<ListBoxPrivateIfc*>(nullptr)) {}

        void localeChanged(std::string locale) override { locales.push_back(std::move(locale)); }

        std::vector<std::string> locales;
    };

    CountingList facade;
    typename Variant::ListBox shown{&facade, false};
};

TYPED_TEST_SUITE(ListLocaleTest, test::Variants);

TYPED_TEST(ListLocaleTest, FacadeIsToldOfTheLocaleOnceAndTheDisplayToo)
{
    this->shown.connectDisplayChangedSignal(&this->display);
    this->putOnScreen(this->shown);
    this->display.changes = 0;
    this->application.setLocale(ICC::fromUTF8toUNICODE("de"));
    EXPECT_THAT(this->facade.locales, testing::ElementsAre("de"));
    EXPECT_EQ(this->display.changes, 1);
    this->putAway(this->shown);
}

TYPED_TEST(ListLocaleTest, FormatsLeaveTheRows)
{
    this->application.setTimeFormat(ICC::fromUTF8toUNICODE("12h"));
    this->application.setDateFormat(ICC::fromUTF8toUNICODE("dd.mm."));
    EXPECT_THAT(this->facade.locales, testing::IsEmpty());
}

} // namespace
