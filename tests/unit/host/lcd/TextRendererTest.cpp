#include "host/lcd/TextRenderer.h"

#include "utilities/ICC.h"

#include <algorithm>
#include <cstdlib>
#include <dlfcn.h>
#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::IsEmpty;

namespace host {

namespace {

const std::vector<std::string> NOWHERE{"/nonexistent"};

PegString text(const std::string& utf8)
{
    return ICC::fromUTF8toUNICODE(utf8);
}

int inkOf(const TextMask& mask, int firstRow = 0, int lastRow = TextMask::HEIGHT - 1)
{
    int pixels = 0;
    for (int y = firstRow; y <= lastRow; ++y)
        for (int x = 0; x < mask.width; ++x)
            pixels += mask.isInk(x, y) ? 1 : 0;
    return pixels;
}

class TextRendererTest : public testing::Test {
protected:
    const TextMask& mask(const std::string& utf8, Font font = Font::TEXT, int width = 230)
    {
        return renderer.mask(font, text(utf8), width);
    }

    TextRenderer renderer;
};

TEST_F(TextRendererTest, NothingIsMissingHere)
{
    testing::internal::CaptureStderr();
    for (Font font : {Font::TEXT, Font::TEXT_BOLD, Font::FIXED, Font::FIXED_BOLD})
        EXPECT_GT(inkOf(mask("abc 漢字", font)), 0);
    EXPECT_THAT(testing::internal::GetCapturedStderr(), IsEmpty());
}

TEST_F(TextRendererTest, WithoutAnyFontTextsAreBoxes)
{
    TextRenderer bare(NOWHERE);
    testing::internal::CaptureStderr();
    const TextMask three = bare.mask(Font::TEXT, text("abc"), 100);
    const TextMask many = bare.mask(Font::TEXT, text(std::string(50, 'x')), 100);
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("fonts-unifont"));
    EXPECT_EQ(three.width, 21);
    EXPECT_FALSE(three.cut);
    EXPECT_GT(inkOf(three), 0);
    EXPECT_TRUE(three.lacksGlyph);
    EXPECT_EQ(many.width, 100);
    EXPECT_TRUE(many.cut);
}

TEST_F(TextRendererTest, FixedFontHasEightPixelsACharacter)
{
    EXPECT_EQ(mask("123456789012345678901234", Font::FIXED, 192).width, 192);
    EXPECT_FALSE(mask("123456789012345678901234", Font::FIXED, 192).cut);
    EXPECT_TRUE(mask("1234567890123456789012345", Font::FIXED, 192).cut);
}

TEST_F(TextRendererTest, IdeographsHaveFourteenPixelsInEveryFont)
{
    EXPECT_EQ(mask("你好世界").width, 56);
    EXPECT_EQ(mask("你好世界", Font::FIXED).width, 56);
}

TEST_F(TextRendererTest, EastAsianTextLeavesAirAboveAndBelowInALineOfSixteen)
{
    constexpr int TOP = TextMask::ASCENT - 12;
    constexpr int BOTTOM = TextMask::ASCENT + 2;
    for (Font font : {Font::TEXT, Font::TEXT_BOLD, Font::FIXED, Font::FIXED_BOLD}) {
        for (const char* words : {"不在着信", "4711へ転送中", "サンドイッチ", "你们说这龜", "한국어 뷁"}) {
            const TextMask some = mask(words, font);
            EXPECT_EQ(inkOf(some, TOP, BOTTOM - 1), inkOf(some)) << words;
            EXPECT_FALSE(some.lacksGlyph) << words;
        }
    }
}

TEST_F(TextRendererTest, DigitsBesideIdeographsStandOnTheBaseLine)
{
    const TextMask both = mask("中4");
    const TextMask digit = mask("4");
    const int before = both.width - digit.width;
    for (int y = 0; y < TextMask::HEIGHT; ++y) {
        for (int x = 0; x < digit.width; ++x)
            EXPECT_EQ(both.isInk(before + x, y), digit.isInk(x, y));
    }
}

TEST_F(TextRendererTest, ArabicLettersAreJoined)
{
    const int joined = mask("بيت").width;
    const int apart = mask("ب").width + mask("ي").width + mask("ت").width;
    EXPECT_LT(joined, apart);
}

TEST_F(TextRendererTest, HebrewRunsFromRightToLeft)
{
    const TextMask word = mask("אבי");
    const TextMask last = mask("י");
    for (int y = 0; y < TextMask::HEIGHT; ++y) {
        for (int x = 0; x < last.width - 1; ++x)
            EXPECT_EQ(word.isInk(x, y), last.isInk(x, y));
    }
}

TEST_F(TextRendererTest, AccentsStandOverTheirLetters)
{
    EXPECT_EQ(mask("e\u0301").width, mask("\u00E9").width);
    EXPECT_EQ(mask("e\u0301").ink, mask("\u00E9").ink);
}

TEST_F(TextRendererTest, LatinLettersStandApart)
{
    EXPECT_EQ(mask("fl").width, mask("f").width + mask("l").width);
}

TEST_F(TextRendererTest, LongTextKeepsItsWidth)
{
    const TextMask cut = mask(std::string(100, 'm'), Font::TEXT, 50);
    EXPECT_TRUE(cut.cut);
    EXPECT_LE(cut.width, 50);
}

TEST_F(TextRendererTest, WhatIsNeverVisibleMakesNoDifference)
{
    const TextMask some = mask(std::string(1000, 'i'), Font::TEXT, 50);
    const TextMask huge = mask(std::string(1 << 20, 'i'), Font::TEXT, 50);
    EXPECT_EQ(some.ink, huge.ink);
    EXPECT_TRUE(huge.cut);
}

TEST_F(TextRendererTest, CutInTheMiddleOfMarksStillEndsInAnEllipsis)
{
    std::string marks = "a";
    for (int i = 0; i < 1000; ++i)
        marks += "\u0301";
    EXPECT_GT(mask(marks + "b").width, mask("a").width);
}

TEST_F(TextRendererTest, CharactersWithoutAPictureAreReplaced)
{
    EXPECT_EQ(mask("\uE123").ink, mask("\uFFFD").ink);
}

TEST_F(TextRendererTest, ControlCharactersAreBlanks)
{
    EXPECT_EQ(mask("a\nb\tc").ink, mask("a b c").ink);
}

TEST_F(TextRendererTest, NoWidthNoInk)
{
    EXPECT_EQ(mask("abc", Font::TEXT, 0).width, 0);
    EXPECT_EQ(mask("abc", Font::TEXT, -7).width, 0);
    EXPECT_EQ(mask("").width, 0);
}

TEST_F(TextRendererTest, ForgottenTextsComeBackTheSame)
{
    const TextMask first = mask("first");
    for (int i = 0; i < 1000; ++i)
        mask(std::to_string(i));
    EXPECT_EQ(mask("first").ink, first.ink);
}

TEST_F(TextRendererTest, LongTextsAreKeptWithinBounds)
{
    const auto longText = [](int i) { return std::to_string(i) + std::string(2000, 'm'); };
    const TextMask first = mask(longText(0), Font::TEXT, TextMask::MAX_WIDTH);
    EXPECT_EQ(renderer.bytes(), first.bytes());
    EXPECT_GT(300 * first.bytes(), TextRenderer::MAX_BYTES);
    for (int i = 1; i < 300; ++i) {
        mask(longText(i), Font::TEXT, TextMask::MAX_WIDTH);
        ASSERT_LE(renderer.bytes(), TextRenderer::MAX_BYTES);
    }
    EXPECT_GT(renderer.bytes() + 2 * first.bytes(), TextRenderer::MAX_BYTES);
    EXPECT_EQ(mask(longText(0), Font::TEXT, TextMask::MAX_WIDTH).ink, first.ink);
}

TEST_F(TextRendererTest, TextThatIsLargerThanTheBoundIsShown)
{
    TextRenderer bare(NOWHERE);
    testing::internal::CaptureStderr();
    constexpr int WIDTH = 8 * (TextRenderer::MAX_BYTES / TextMask::HEIGHT + 1);
    bare.mask(Font::TEXT, text("abc"), 100);
    const TextMask& huge = bare.mask(Font::TEXT, text(std::string(WIDTH / 7 + 1, 'x')), WIDTH);
    EXPECT_EQ(huge.width, WIDTH);
    EXPECT_GT(inkOf(huge), 0);
    EXPECT_EQ(bare.bytes(), huge.bytes());
    EXPECT_GT(bare.bytes(), TextRenderer::MAX_BYTES);
    bare.mask(Font::TEXT, text("abc"), 100);
    EXPECT_LT(bare.bytes(), TextRenderer::MAX_BYTES);
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("fonts-unifont"));
}

TEST_F(TextRendererTest, TextsUsedLastAreKept)
{
    const TextMask first = mask("first");
    const std::size_t others = renderer.bytes();
    mask("first");
    EXPECT_EQ(renderer.bytes(), others);
}

/// In a process of its own: no other test has loaded it.
TEST(TextRendererDeathTest, PlainTextsDoWithoutPango)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto hasPango = [] { return dlopen("libpango-1.0.so.0", RTLD_NOW | RTLD_NOLOAD) != nullptr; };
    const auto look = [&] {
        TextRenderer own;
        own.mask(Font::TEXT, text("Zoë Ångström, Жук, Γειά"), 40);
        own.edges(Font::FIXED, text("+49 30 123"));
        const bool before = hasPango();
        own.mask(Font::TEXT, text("א"), 40);
        std::_Exit(before || !hasPango() ? 1 : 0);
    };
    EXPECT_EXIT(look(), testing::ExitedWithCode(0), "");
}

TEST_F(TextRendererTest, EdgesSayWhereCharactersStand)
{
    const auto edges = renderer.edges(Font::FIXED, text("ab c"));
    ASSERT_EQ(edges.size(), 4u);
    for (std::size_t at = 0; at < edges.size(); ++at) {
        EXPECT_EQ(edges[at].begin, static_cast<int>(8 * at));
        EXPECT_EQ(edges[at].end, static_cast<int>(8 * at + 8));
    }
    const auto arabic = renderer.edges(Font::TEXT, text("اب"));
    EXPECT_EQ(arabic[0].begin, mask("اب").width);
    EXPECT_EQ(arabic[0].end, arabic[1].begin);
    EXPECT_EQ(arabic[1].end, 0);
    EXPECT_TRUE(renderer.edges(Font::TEXT, PegString()).empty());
}

TEST_F(TextRendererTest, EdgesWithoutFontsAreThoseOfTheBoxes)
{
    testing::internal::CaptureStderr();
    TextRenderer bare(NOWHERE);
    const auto edges = bare.edges(Font::TEXT, text("a b"));
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("fonts-unifont"));
    ASSERT_EQ(edges.size(), 3u);
    EXPECT_EQ(edges[2].end, bare.mask(Font::TEXT, text("a b"), TextMask::MAX_WIDTH).width);
}

} // namespace

} // namespace host
