#include "host/widgets/edit/EditPage.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/widgets/edit/Utf16.h"
#include "support/Keys.h"
#include "support/RunningToolkit.h"
#include "support/VirtualTime.h"

#include <gmock/gmock.h>

using host::EditPage;
using test::peg;
using test::press;

namespace {

class EditPageTest : public testing::Test, protected test::VirtualTime {
protected:
    EditPageTest()
    {
        page.setMessageTarget(&listener);
        page.Resize(host::rectAt(0, 0, 120, 3 * host::Field::lineHeight()));
        page.setFocus(true);
    }

    std::string text() const { return ICC::fromUNICODEtoUTF8(page.text()); }

    test::StartedToolkit toolkit;
    test::Listener listener;
    EditPage page;
};

} // namespace

TEST_F(EditPageTest, IsTypedAsALineIs)
{
    page.setKind(host::EditKind::NAME);
    press(page, "999666");
    EXPECT_EQ(text(), "Yo");
    const std::pair<int, int> one{PM_CURRENT_CHANGED, 1}, two{PM_CURRENT_CHANGED, 2};
    EXPECT_THAT(listener.heard, testing::ElementsAre(one, one, one, two, two, two));
}

TEST_F(EditPageTest, IsAsHighAsItsLines)
{
    EXPECT_EQ(page.heightFor(120), page.lineHeight());
    page.setText(peg("one two three four five six seven eight nine ten"));
    EXPECT_GE(page.heightFor(120), 3 * page.lineHeight());
    EXPECT_LT(page.heightFor(1000), page.heightFor(120));
}

TEST_F(EditPageTest, KeyThatPointsToWhereTheCursorsLineBeginsTakesAwayWhileItIsHeld)
{
    struct Case {
        const char* text;
        const char* keys;
        const char* left;
    };
    const Case cases[]{{"abc\nשלום", ">", "abc\nשלו"},
                       {"abc\nשלום", "><", "abc\nשלום"},
                       {"שלום\nabc", "<", "שלום\nab"},
                       {"שלום\nabc", "<>", "שלום\nabc"}};
    for (const Case& tested : cases) {
        page.setText(peg(tested.text));
        press(page, tested.keys);
        pass(600);
        page.released(0);
        EXPECT_EQ(text(), tested.left) << tested.text << " " << tested.keys;
    }
}

TEST_F(EditPageTest, UpAndDownMoveBetweenLinesAndBelongToTheHolderAtTheEnds)
{
    page.setText(peg("one\ntwo"));
    EXPECT_FALSE(press(page, "v"));
    EXPECT_TRUE(press(page, "^"));
    EXPECT_EQ(page.cursor(), 3);
    EXPECT_FALSE(press(page, "^"));
    EXPECT_TRUE(press(page, "<v"));
    EXPECT_EQ(page.cursor(), 6);
}

TEST_F(EditPageTest, CharacterThatIsNoLongerBeingChosenIsPaintedSo)
{
    page.setKind(host::EditKind::NAME);
    gpPresent->Add(&page);
    for (const char* key : {"^", "v", ">"}) {
        press(page, "2");
        host::Lcd::current()->paint();
        press(page, key);
        EXPECT_TRUE(host::Lcd::current()->isDirty()) << key;
    }
    gpPresent->Remove(&page);
}

TEST_F(EditPageTest, IsOnlyReadWhereSaidSo)
{
    page.setText(peg("one"));
    page.setReadOnly(true);
    EXPECT_TRUE(press(page, "2"));
    EXPECT_TRUE(press(page, "<"));
    EXPECT_EQ(text(), "one");
    EXPECT_EQ(page.cursor(), 2);
}

TEST_F(EditPageTest, BreaksBehindTheLastSpaceThatFitsAndKeepsEachCharacter)
{
    host::PageLines lines;
    const std::vector<std::u16string> texts{u"",
                                            u"\n",
                                            u"one two three four five six seven",
                                            u"one\n\ntwo\n",
                                            std::u16string(700, u'm'),
                                            std::u16string(300, u' ') + u"x",
                                            u"日本語の文章は空白なしで折り返される。とても長い。",
                                            u"خبز وحليب وبيض وزبدة وجبن وشاي وسكر وملح وفلفل"};
    for (const std::u16string& text : texts) {
        lines.lay(text, host::Font::TEXT, 100);
        ASSERT_GT(lines.count(), 0u);
        EXPECT_EQ(lines[0].begin, 0u);
        for (std::size_t line = 1; line < lines.count(); ++line) {
            EXPECT_EQ(lines[line].begin, lines[line - 1].end);
            EXPECT_EQ(lines.lineOf(lines[line].begin), line);
        }
        EXPECT_EQ(lines[lines.count() - 1].end, text.size());
    }
    lines.lay(u"one two three four five six", host::Font::TEXT, 100);
    for (std::size_t line = 0; line + 1 < lines.count(); ++line)
        EXPECT_EQ(lines.textOf(line).back(), u' ');
}

TEST_F(EditPageTest, BreaksBesideAnIdeographButBeforeNothingThatBelongsToTheOneBefore)
{
    const auto breaksBetween = [](char16_t before, char16_t next) {
        const std::u16string fits{u'i', u' ', before};
        host::PageLines lines;
        lines.lay(fits + next, host::Font::TEXT,
                  host::Lcd::current()->textWidth(host::Font::TEXT, host::toPegString(fits)));
        EXPECT_EQ(lines.count(), 2u);
        return lines[1].begin == fits.size();
    };
    constexpr char16_t FIRST = 0x2E80;
    EXPECT_FALSE(breaksBetween(u'a', u'b'));
    EXPECT_FALSE(breaksBetween(FIRST - 1, u'b'));
    EXPECT_TRUE(breaksBetween(u'-', u'b'));
    EXPECT_TRUE(breaksBetween(FIRST, u'b'));
    EXPECT_TRUE(breaksBetween(u'a', FIRST));
    EXPECT_TRUE(breaksBetween(u'文', u'章'));
    for (const char16_t sign : std::u16string(u"、。，．！？」』）ーっゃゅょッャュョ"))
        EXPECT_FALSE(breaksBetween(u'文', sign)) << static_cast<int>(sign);
}

TEST_F(EditPageTest, LeftAndRightGoThroughAllLines)
{
    for (const char* text :
         {"one two three four five six seven eight", "one\n\ntwo", "日本語の文章は空白なしで折り返される"}) {
        page.setText(peg(text));
        const int length = page.cursor();
        for (int at = length - 1; at >= 0; --at) {
            ASSERT_TRUE(press(page, "<")) << text;
            ASSERT_EQ(page.cursor(), at) << text;
        }
        EXPECT_FALSE(press(page, "<"));
        for (int at = 1; at <= length; ++at) {
            ASSERT_TRUE(press(page, ">")) << text;
            ASSERT_EQ(page.cursor(), at) << text;
        }
        EXPECT_FALSE(press(page, ">"));
    }
}

TEST_F(EditPageTest, ArabicLinesAreGoneThroughTheOtherWayRound)
{
    page.setText(peg("خبز وحليب وبيض وزبدة وجبن وشاي"));
    const int length = page.cursor();
    EXPECT_FALSE(press(page, "<"));
    for (int at = length - 1; at >= 0; --at) {
        ASSERT_TRUE(press(page, ">"));
        ASSERT_EQ(page.cursor(), at);
    }
    EXPECT_FALSE(press(page, ">"));
}

TEST_F(EditPageTest, CursorKeepsItsPlaceAcrossShortLines)
{
    page.setText(peg("seven letters\nx\nseven letters"));
    page.setCursor(9);
    press(page, "vv");
    EXPECT_EQ(page.cursor(), 25);
    press(page, "^");
    EXPECT_EQ(page.cursor(), 15);
    press(page, "^");
    EXPECT_EQ(page.cursor(), 9);
}

TEST_F(EditPageTest, AnotherTextHasNoColumnToKeep)
{
    page.setText(peg("seven letters\nx"));
    page.setCursor(9);
    press(page, "v");
    page.setText(peg("seven letters\nxi"));
    press(page, "^");
    EXPECT_EQ(page.cursor(), 2);
}

TEST_F(EditPageTest, LineBelowIsReachedFromAWrappedOne)
{
    page.setText(peg("one two three four five six seven eight"));
    page.setCursor(0);
    int steps = 0;
    while (press(page, "v"))
        ++steps;
    EXPECT_EQ((steps + 1) * page.lineHeight(), page.heightFor(120));
    while (press(page, "^"))
        --steps;
    EXPECT_EQ(steps, 0);
    EXPECT_EQ(page.cursor(), 0);
}

TEST_F(EditPageTest, SymbolsHaveTheArrows)
{
    page.setKind(host::EditKind::TEXT);
    page.setText(peg("one\ntwo"));
    press(page, "*v!");
    EXPECT_EQ(text(), "one\ntwo@");
}
