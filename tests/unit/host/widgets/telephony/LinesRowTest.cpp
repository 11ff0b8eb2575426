#include "host/widgets/telephony/LinesRow.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/lcd/Painter.h"
#include "host/lcd/TextMap.h"
#include "host/lcd/TextRenderer.h"
#include "host/widgets/list/ListLayout.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/RowsOwner.h"
#include "toolkit/PegFunctions.h"
#include "widgets/KestrelListBoxWithTitle.h"

#include <gmock/gmock.h>

#include <algorithm>

using host::LinesLook;
using testing::ElementsAre;
using namespace test;

namespace {

PegString letters(const char* text)
{
    return ICC::fromUTF8toUNICODE(text);
}

class LinesRowTest : public testing::Test {
protected:
    static LinesLook lookOf(const std::vector<const char*>& lines)
    {
        LinesLook look;
        look.lines.clear();
        for (const char* line : lines)
            look.lines.push_back({.text = letters(line)});
        return look;
    }

    void draw(const LinesLook& look)
    {
        texts = {};
        buffer = host::FrameBuffer(100, 40);
        PegPainter painter(buffer, texts, renderer, AREA);
        host::draw(painter, {layout, AREA, AREA, false}, look);
    }

    /// Where the texts begin, by their order on the panel.
    std::vector<int> lefts() const
    {
        std::vector<int> all;
        for (const host::TextRun& run : texts.sorted())
            all.push_back(run.area.left);
        return all;
    }

    bool has(host::Level level) const
    {
        const auto& pixels = buffer.pixels();
        return std::find(pixels.begin(), pixels.end(), static_cast<std::uint8_t>(level)) != pixels.end();
    }

    static constexpr PegRect AREA{0, 0, 99, 39};

    KestrelListBox::Layout layout{.panel = AREA,
                                  .font = host::Font::FIXED,
                                  .titleFont = host::Font::FIXED_BOLD,
                                  .statusLineHeight = 0,
                                  .titleHeight = 0,
                                  .rowHeight = 18,
                                  .gutter = 0,
                                  .leftInset = 0,
                                  .rightInset = 0,
                                  .scrollWidth = 0,
                                  .tickerInTitle = false,
                                  .scrollBar = false};
    host::FrameBuffer buffer{100, 40};
    host::TextMap texts;
    host::TextRenderer renderer;
};

TEST_F(LinesRowTest, IsAsHighAsItsLines)
{
    host::LinesRow row("Row");
    EXPECT_EQ(row.heightIn(layout), 18);
    row.show(lookOf({"a", "b", ""}));
    EXPECT_EQ(row.heightIn(layout), 54);
}

TEST_F(LinesRowTest, TellsItsTextsWithTheEndBehindTheFirstLine)
{
    host::LinesRow row("Row");
    LinesLook look = lookOf({"a", "", "c"});
    look.end = letters("0:10");
    row.show(look);
    EXPECT_EQ(row.describe().name, "Row");
    EXPECT_THAT(row.describe().texts, ElementsAre(letters("a"), letters("0:10"), letters("c")));
    EXPECT_EQ(textOf(&row), "a");
}

TEST_F(LinesRowTest, AnotherEndIsShownAlone)
{
    host::LinesRow row("Row");
    LinesLook look = lookOf({"a", "b"});
    row.show(look);
    row.showEnd(letters("0:11"));
    look.end = letters("0:11");
    EXPECT_EQ(row.look(), look);
}

/// Notes how much of it is painted again.
class WatchedRow : public host::LinesRow {
public:
    using LinesRow::LinesRow;

    void Draw(PegPainter& painter, const Place& place) const override
    {
        ++times;
        for (int x = place.area.left; x <= place.area.right; ++x)
            for (int y = place.area.top; y <= place.area.bottom; ++y)
                pixels += painter.isClippedOut(host::rectAt(x, y, 1, 1)) ? 0 : 1;
    }

    mutable int times = 0, pixels = 0;
};

/// A list of two such rows with an end on the panel.
class LinesRowEndTest : public LinesRowTest {
protected:
    LinesRowEndTest()
    {
        pegInit();
        auto* const list = new KestrelListBoxWithTitle;
        for (WatchedRow* const row : {&first, &second}) {
            LinesLook look = lookOf({"a", "b"});
            look.end = letters("59:58");
            row->show(look);
            list->append(row);
        }
        gpPresent->Add(list);
        paint();
    }
    ~LinesRowEndTest() override { pegCleanUp(); }

    int paint()
    {
        host::Lcd::current()->paint();
        return std::exchange(first.pixels, 0);
    }

    WatchedRow first{"First"}, second{"Second"};
};

TEST_F(LinesRowEndTest, WhoeverHearsTheListIsToldOfAnotherLookAndNotOfAnEnd)
{
    MessageNotes notes;
    auto* const list = static_cast<KestrelListBox*>(gpPresent->First());
    list->setMessageTarget(&notes);
    second.showEnd(letters("59:59"));
    second.show(second.look());
    EXPECT_THAT(notes.take(), testing::IsEmpty());
    second.show(lookOf({"c"}));
    EXPECT_THAT(notes.take(), ElementsAre(std::pair<int, int>(PM_ROW_CHANGED, 1)));
    list->remove(&second);
    second.show(lookOf({"d"}));
    EXPECT_THAT(notes.take(), testing::IsEmpty());
    list->setMessageTarget(nullptr);
}

TEST_F(LinesRowEndTest, NoMoreThanAnEndOfTheSameWidthIsPaintedAgain)
{
    const int all = heightOf(lookOf({"a", "b"}), layout) * 150;
    first.showEnd(letters("59:59"));
    const int once = paint();
    EXPECT_GT(once, 0);
    EXPECT_LT(once, all / 8);
    EXPECT_EQ(second.times, 1);
    first.showEnd(letters("59:59"));
    EXPECT_EQ(paint(), 0);
    first.showEnd(letters("1:00:00"));
    EXPECT_GT(paint(), once * 3);
}

TEST_F(LinesRowTest, MovesWhatStandsBelowItWhenItHasMoreLines)
{
    KestrelListBoxWithTitle list;
    RowsOwner rows;
    host::LinesRow row("Row");
    list.append(&row);
    list.append(rows.make("z"));
    const int before = list.rowArea(1).top;
    row.show(lookOf({"a", "b"}));
    EXPECT_EQ(list.rowArea(1).top - before, host::heightOf(list.rowArea(1)));
}

TEST_F(LinesRowTest, TextsLineUpBehindTheIconsWhereThereIsOneOrNot)
{
    LinesLook look = lookOf({"a", "b"});
    look.lines[1].icon = &host::icons::HOLD;
    draw(look);
    ASSERT_EQ(lefts().size(), 2U);
    EXPECT_EQ(lefts()[0], lefts()[1]);
    EXPECT_GE(lefts()[0], host::icons::HOLD.width());
    look.hasIcons = false;
    draw(look);
    EXPECT_THAT(lefts(), ElementsAre(0, 0));
}

TEST_F(LinesRowTest, IndentMovesALine)
{
    LinesLook look = lookOf({"a", "b"});
    look.hasIcons = false;
    look.lines[1].indent = 12;
    draw(look);
    EXPECT_THAT(lefts(), ElementsAre(0, 12));
}

TEST_F(LinesRowTest, EndStandsAtTheEndAndMayRun)
{
    LinesLook look = lookOf({"a name that is too long", "b"});
    look.end = letters("0:10");
    look.endRuns = true;
    look.marks = {&host::icons::PADLOCK};
    draw(look);
    const std::vector<host::TextRun> runs = texts.sorted();
    ASSERT_EQ(runs.size(), 3U);
    EXPECT_TRUE(runs[0].cut);
    EXPECT_LE(runs[0].area.right, 99 - 4 * 8 - host::icons::PADLOCK.width());
    EXPECT_EQ(runs[1].text, "0:10");
    EXPECT_EQ(runs[1].area.right, 99);
    EXPECT_TRUE(runs[1].runs);
    EXPECT_FALSE(runs[0].runs);
}

TEST_F(LinesRowTest, DimmedIsGrey)
{
    LinesLook look = lookOf({"a"});
    look.lines[0].icon = &host::icons::HOLD;
    draw(look);
    EXPECT_TRUE(has(host::Level::DARK));
    look.dimmed = true;
    draw(look);
    EXPECT_FALSE(has(host::Level::DARK));
    EXPECT_TRUE(has(host::Level::MIDDLE));
    look.dimmed = false;
    look.lines[0].dimmed = true;
    draw(look);
    EXPECT_FALSE(has(host::Level::DARK));
    EXPECT_TRUE(has(host::Level::MIDDLE));
}

} // namespace
