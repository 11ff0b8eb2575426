#include "host/lcd/Painter.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/lcd/TextMap.h"
#include "host/lcd/TextRenderer.h"
#include "utilities/ICC.h"

#include <gmock/gmock.h>

using namespace host;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

constexpr PegRect WHOLE{0, 0, 999, 999};

/// A panel as text: one character per pixel, '.' is bare.
std::vector<std::string> art(const FrameBuffer& buffer)
{
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < buffer.pixels().size(); ++i) {
        if (i % static_cast<std::size_t>(buffer.width()) == 0)
            lines.emplace_back();
        lines.back() += ".-+#"[buffer.pixels()[i]];
    }
    return lines;
}

class PainterTest : public testing::Test {
protected:
    PegPainter painter(FrameBuffer& buffer, const PegRect& clip = WHOLE) { return {buffer, texts, renderer, clip}; }

    FrameBuffer small{7, 5};
    FrameBuffer panel{100, 20};
    TextMap texts;
    TextRenderer renderer;
};

TEST_F(PainterTest, Fills)
{
    painter(small).fill({1, 1, 3, 2}, Level::DARK);
    EXPECT_THAT(art(small), ElementsAre(".......", ".###...", ".###...", ".......", "......."));
}

TEST_F(PainterTest, StaysOnThePanel)
{
    painter(small).fill({-5, 3, 100, 100}, Level::LIGHT);
    EXPECT_THAT(art(small), ElementsAre(".......", ".......", ".......", "-------", "-------"));
}

TEST_F(PainterTest, StaysInItsClip)
{
    painter(small, {2, 0, 4, 9}).clippedTo({0, 1, 3, 1}).fill(WHOLE, Level::MIDDLE);
    EXPECT_THAT(art(small), ElementsAre(".......", "..++...", ".......", ".......", "......."));
}

TEST_F(PainterTest, KnowsWhatIsClippedOut)
{
    const PegPainter clipped = painter(small, {2, 2, 3, 3});
    EXPECT_FALSE(clipped.isClippedOut({0, 0, 2, 2}));
    EXPECT_TRUE(clipped.isClippedOut({0, 0, 1, 9}));
    EXPECT_TRUE(clipped.isClippedOut({3, 3, 2, 2}));
}

TEST_F(PainterTest, Frames)
{
    painter(small).frame({1, 0, 5, 3}, Level::DARK);
    EXPECT_THAT(art(small), ElementsAre(".#####.", ".#...#.", ".#...#.", ".#####.", "......."));
}

TEST_F(PainterTest, IconStandsInTheMiddleOfItsCell)
{
    painter(small).icon(icons::SMALL_ARROW_UP, {0, 0, 6, 4}, Level::DARK);
    EXPECT_THAT(art(small), ElementsAre(".......", "...#...", "..###..", ".#####.", "......."));
}

TEST_F(PainterTest, PictureStandsInTheMiddleOfItsCellAndIsClipped)
{
    const Picture picture{.width = 3, .height = 2, .pixels = {1, 2, 3, 3, 0, 1}};
    small.at(3, 2)[0] = 3;
    painter(small).picture(picture, {0, 0, 6, 3});
    EXPECT_THAT(art(small), ElementsAre(".......", "..-+#..", "..#.-..", ".......", "......."));
    painter(small, {0, 0, 6, 0}).picture(picture, {4, 0, 5, 1});
    EXPECT_THAT(art(small), ElementsAre("....-+.", "..-+#..", "..#.-..", ".......", "......."));
    painter(small).picture({}, WHOLE);
    EXPECT_THAT(art(small)[0], "....-+.");
}

TEST_F(PainterTest, IconIsClipped)
{
    painter(small, {0, 0, 3, 9}).icon(icons::SMALL_ARROW_DOWN, {0, 0, 6, 4}, Level::LIGHT);
    EXPECT_THAT(art(small), ElementsAre(".......", ".---...", "..--...", "...-...", "......."));
}

TEST_F(PainterTest, DrawsFixedTextOnItsGrid)
{
    FrameBuffer cell(8, 16);
    painter(cell).text({0, 0, 7, 15}, ICC::fromUTF8toUNICODE("T"), {Font::FIXED});
    const auto lines = art(cell);
    EXPECT_EQ(lines[1], "........");
    EXPECT_EQ(lines[2], "#######.");
    for (std::size_t y = 3; y < 12; ++y)
        EXPECT_EQ(lines[y], "...#....");
    EXPECT_EQ(lines[12], "........");
}

TEST_F(PainterTest, InvertedTextIsBare)
{
    FrameBuffer cell(8, 16);
    painter(cell).fill(WHOLE, Level::DARK);
    painter(cell).text({0, 0, 7, 15}, ICC::fromUTF8toUNICODE("-"), {Font::FIXED, Align::LEFT, true});
    EXPECT_EQ(art(cell)[7], "#......#");
    EXPECT_THAT(texts.sorted(), ElementsAre(TextRun{{0, 0, 7, 15}, "-", true, false}));
}

TEST_F(PainterTest, AlignsTexts)
{
    const PegString text = ICC::fromUTF8toUNICODE("ab");
    for (const auto& [align, left] : {std::pair{Align::LEFT, 0}, {Align::CENTRE, 42}, {Align::RIGHT, 84}}) {
        texts = {};
        painter(panel).text({0, 0, 99, 19}, text, {Font::FIXED, align});
        ASSERT_THAT(texts.sorted(), SizeIs(1));
        EXPECT_EQ(texts.sorted()[0].area.left, left);
        EXPECT_EQ(widthOf(texts.sorted()[0].area), 16);
    }
}

TEST_F(PainterTest, TooLongTextIsCutButNotedWhole)
{
    const std::string text = "a text of more than twelve characters";
    painter(panel).text({0, 0, 99, 19}, ICC::fromUTF8toUNICODE(text), {Font::FIXED});
    ASSERT_THAT(texts.sorted(), SizeIs(1));
    EXPECT_TRUE(texts.sorted()[0].cut);
    EXPECT_EQ(texts.sorted()[0].text, text);
    EXPECT_LE(texts.sorted()[0].area.right, 99);
}

TEST_F(PainterTest, HugeTextIsNotedInPart)
{
    painter(panel).text({0, 0, 99, 19}, ICC::fromUTF8toUNICODE(std::string(1 << 20, 'x')), {Font::TEXT});
    ASSERT_THAT(texts.sorted(), SizeIs(1));
    EXPECT_TRUE(texts.sorted()[0].cut);
    EXPECT_EQ(texts.sorted()[0].text.size(), TextRun::MAX_LENGTH);
}

TEST_F(PainterTest, ScrolledTextGoesOutAtOneEdgeAndComesRoundWithAGap)
{
    const PegString text = ICC::fromUTF8toUNICODE("----");
    FrameBuffer cell(24, 16);
    painter(cell).scrolledText({0, 0, 23, 15}, text, {.font = Font::FIXED, .runs = true}, 20, 6);
    EXPECT_EQ(art(cell)[7], "###..######........#####");
    TextRun run{{0, 0, 23, 15}, "----"};
    run.runs = true;
    EXPECT_THAT(texts.sorted(), ElementsAre(run));
}

TEST_F(PainterTest, ScrolledTextThatFitsStandsAloneAtItsBeginning)
{
    painter(panel).scrolledText({10, 0, 99, 15}, ICC::fromUTF8toUNICODE("--"), {Font::FIXED}, 0, 6);
    EXPECT_EQ(art(panel)[7].substr(0, 40), "...........######..######...............");
    EXPECT_THAT(texts.sorted(), ElementsAre(TextRun{{10, 0, 25, 15}, "--"}));
}

TEST_F(PainterTest, ScrolledTextStaysInItsCell)
{
    painter(panel).scrolledText({10, 0, 19, 15}, ICC::fromUTF8toUNICODE("--------"), {Font::FIXED}, 8, 6);
    const std::string line = art(panel)[7];
    EXPECT_EQ(line.find('#'), 11u);
    EXPECT_LE(line.rfind('#'), 19u);
}

TEST_F(PainterTest, EmptyOrClippedTextIsNotNoted)
{
    painter(panel).text({0, 0, 99, 19}, PegString(), {Font::TEXT});
    painter(panel, {90, 0, 99, 19}).text({0, 0, 80, 19}, ICC::fromUTF8toUNICODE("x"), {Font::TEXT});
    EXPECT_THAT(texts.sorted(), IsEmpty());
    EXPECT_THAT(panel.pixels(), testing::Each(0));
}

TEST_F(PainterTest, FillTakesTheTextsBelowIt)
{
    painter(panel).text({0, 0, 99, 19}, ICC::fromUTF8toUNICODE("x"), {Font::TEXT});
    painter(panel).fill({50, 0, 99, 19}, Level::BARE);
    EXPECT_THAT(texts.sorted(), SizeIs(1));
    painter(panel).fill({0, 0, 99, 19}, Level::BARE);
    EXPECT_THAT(texts.sorted(), IsEmpty());
}

TEST_F(PainterTest, TellsWhichTextsLackAGlyph)
{
    constexpr PegRect CELL{0, 0, 99, 19};
    const auto lacks = [&](const std::string& text) {
        texts = {};
        painter(panel).text(CELL, ICC::fromUTF8toUNICODE(text), {Font::TEXT});
        return texts.sorted().at(0).lacksGlyph;
    };
    EXPECT_FALSE(lacks("Grüße"));
    EXPECT_FALSE(lacks("設定"));
    EXPECT_FALSE(lacks("الإعدادات"));
    EXPECT_TRUE(lacks("a\uE000"));
    EXPECT_TRUE(lacks("smile \U0001F600"));
    EXPECT_FALSE(lacks("Grüße"));
}

TEST_F(PainterTest, NotesWhichTextsRun)
{
    painter(panel).text({0, 0, 99, 19}, ICC::fromUTF8toUNICODE("12:00"), {.runs = true});
    EXPECT_TRUE(texts.sorted().at(0).runs);
}

TEST_F(PainterTest, MeasuresTextsAsItPaintsThem)
{
    const PegString text = ICC::fromUTF8toUNICODE("ab");
    EXPECT_EQ(painter(panel).textWidth(text, Font::FIXED, 100), 16);
    EXPECT_EQ(painter(panel).textWidth(PegString(), Font::FIXED, 100), 0);
    EXPECT_LE(painter(panel).textWidth(text, Font::FIXED, 10), 10);
}

} // namespace
