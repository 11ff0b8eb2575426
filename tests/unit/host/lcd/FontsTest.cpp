#include "host/lcd/Fonts.h"

#include "host/lcd/TextRenderer.h"
#include "utilities/ICC.h"

#include <algorithm>
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

int inkOf(const TextMask& mask)
{
    return static_cast<int>(std::count(mask.ink.begin(), mask.ink.end(), 1));
}

class FontsTest : public testing::Test {
protected:
    const TextMask& mask(const std::string& utf8, Font font = Font::TEXT, int width = 230)
    {
        return renderer.mask(font, text(utf8), width);
    }

    TextRenderer renderer;
};

TEST_F(FontsTest, NothingIsMissingHere)
{
    testing::internal::CaptureStderr();
    for (Font font : {Font::TEXT, Font::TEXT_BOLD, Font::FIXED, Font::FIXED_BOLD})
        EXPECT_GT(inkOf(mask("abc 漢字", font)), 0);
    EXPECT_THAT(testing::internal::GetCapturedStderr(), IsEmpty());
}

TEST_F(FontsTest, MissingFontIsReportedOnceWithItsPackage)
{
    Fonts fonts({"/usr/share/fonts/opentype/terminus"});
    std::u16string abc = u"abc", def = u"def";
    testing::internal::CaptureStderr();
    EXPECT_NE(fonts.layoutFor(Font::FIXED, abc), nullptr);
    EXPECT_THAT(testing::internal::GetCapturedStderr(), IsEmpty());

    testing::internal::CaptureStderr();
    EXPECT_NE(fonts.layoutFor(Font::TEXT, abc), nullptr);
    EXPECT_NE(fonts.layoutFor(Font::TEXT, def), nullptr);
    const std::string report = testing::internal::GetCapturedStderr();
    EXPECT_THAT(report, HasSubstr("the font DejaVu Sans Condensed is missing; install the Debian package "
                                  "fonts-dejavu-extra"));
    EXPECT_EQ(report.find("DejaVu"), report.rfind("DejaVu"));
}

TEST_F(FontsTest, WithoutAnyFontTextsAreBoxes)
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

TEST_F(FontsTest, FixedFontHasEightPixelsACharacter)
{
    EXPECT_EQ(mask("123456789012345678901234", Font::FIXED, 192).width, 192);
    EXPECT_FALSE(mask("123456789012345678901234", Font::FIXED, 192).cut);
    EXPECT_TRUE(mask("1234567890123456789012345", Font::FIXED, 192).cut);
}

TEST_F(FontsTest, IdeographsHaveFourteenPixelsInEveryFont)
{
    EXPECT_EQ(mask("你好世界").width, 56);
    EXPECT_EQ(mask("你好世界", Font::FIXED).width, 56);
}

TEST_F(FontsTest, EastAsianTextLeavesAirAboveAndBelowInALineOfSixteen)
{
    constexpr int TOP = TextMask::ASCENT - 12;
    constexpr int BOTTOM = TextMask::ASCENT + 2;
    for (Font font : {Font::TEXT, Font::TEXT_BOLD, Font::FIXED, Font::FIXED_BOLD}) {
        for (const char* words : {"不在着信", "4711へ転送中", "サンドイッチ", "你们说这龜", "한국어 뷁"}) {
            const TextMask some = mask(words, font);
            const auto inRows = [&](int from, int to) {
                return std::count(some.ink.begin() + from * some.width, some.ink.begin() + to * some.width, 1);
            };
            EXPECT_EQ(inRows(TOP, BOTTOM), inkOf(some)) << words;
            EXPECT_FALSE(some.lacksGlyph) << words;
        }
    }
}

TEST_F(FontsTest, DigitsBesideIdeographsStandOnTheBaseLine)
{
    const TextMask both = mask("中4");
    const TextMask digit = mask("4");
    const int before = both.width - digit.width;
    for (int y = 0; y < TextMask::HEIGHT; ++y) {
        for (int x = 0; x < digit.width; ++x)
            EXPECT_EQ(both.ink[static_cast<std::size_t>(y * both.width + before + x)],
                      digit.ink[static_cast<std::size_t>(y * digit.width + x)]);
    }
}

TEST_F(FontsTest, ArabicLettersAreJoined)
{
    const int joined = mask("بيت").width;
    const int apart = mask("ب").width + mask("ي").width + mask("ت").width;
    EXPECT_LT(joined, apart);
}

TEST_F(FontsTest, HebrewRunsFromRightToLeft)
{
    const TextMask word = mask("אבי");
    const TextMask last = mask("י");
    for (int y = 0; y < TextMask::HEIGHT; ++y) {
        for (int x = 0; x < last.width - 1; ++x)
            EXPECT_EQ(word.ink[static_cast<std::size_t>(y * word.width + x)],
                      last.ink[static_cast<std::size_t>(y * last.width + x)]);
    }
}

TEST_F(FontsTest, AccentsStandOverTheirLetters)
{
    EXPECT_EQ(mask("e\u0301").width, mask("\u00E9").width);
    EXPECT_EQ(mask("e\u0301").ink, mask("\u00E9").ink);
}

TEST_F(FontsTest, LatinLettersStandApart)
{
    EXPECT_EQ(mask("fl").width, mask("f").width + mask("l").width);
}

TEST_F(FontsTest, LongTextKeepsItsWidth)
{
    const TextMask cut = mask(std::string(100, 'm'), Font::TEXT, 50);
    EXPECT_TRUE(cut.cut);
    EXPECT_LE(cut.width, 50);
}

TEST_F(FontsTest, WhatIsNeverVisibleMakesNoDifference)
{
    const TextMask some = mask(std::string(1000, 'i'), Font::TEXT, 50);
    const TextMask huge = mask(std::string(1 << 20, 'i'), Font::TEXT, 50);
    EXPECT_EQ(some.ink, huge.ink);
    EXPECT_TRUE(huge.cut);
}

TEST_F(FontsTest, CutInTheMiddleOfMarksStillEndsInAnEllipsis)
{
    std::string marks = "a";
    for (int i = 0; i < 1000; ++i)
        marks += "\u0301";
    EXPECT_GT(mask(marks + "b").width, mask("a").width);
}

TEST_F(FontsTest, CharactersWithoutAPictureAreReplaced)
{
    EXPECT_EQ(mask("\uE123").ink, mask("\uFFFD").ink);
}

TEST_F(FontsTest, ControlCharactersAreBlanks)
{
    EXPECT_EQ(mask("a\nb\tc").ink, mask("a b c").ink);
}

TEST_F(FontsTest, NoWidthNoInk)
{
    EXPECT_EQ(mask("abc", Font::TEXT, 0).width, 0);
    EXPECT_EQ(mask("abc", Font::TEXT, -7).width, 0);
    EXPECT_EQ(mask("").width, 0);
}

TEST_F(FontsTest, ForgottenTextsComeBackTheSame)
{
    const TextMask first = mask("first");
    for (int i = 0; i < 1000; ++i)
        mask(std::to_string(i));
    EXPECT_EQ(mask("first").ink, first.ink);
}

TEST_F(FontsTest, LongTextsAreKeptWithinBounds)
{
    const auto longText = [](int i) { return std::to_string(i) + std::string(2000, 'm'); };
    const TextMask first = mask(longText(0), Font::TEXT, TextMask::MAX_WIDTH);
    EXPECT_EQ(renderer.bytes(), first.ink.size());
    EXPECT_GT(300 * first.ink.size(), TextRenderer::MAX_BYTES);
    for (int i = 1; i < 300; ++i) {
        mask(longText(i), Font::TEXT, TextMask::MAX_WIDTH);
        ASSERT_LE(renderer.bytes(), TextRenderer::MAX_BYTES);
    }
    EXPECT_GT(renderer.bytes() + 2 * first.ink.size(), TextRenderer::MAX_BYTES);
    EXPECT_EQ(mask(longText(0), Font::TEXT, TextMask::MAX_WIDTH).ink, first.ink);
}

TEST_F(FontsTest, TextThatIsLargerThanTheBoundIsShown)
{
    TextRenderer bare(NOWHERE);
    testing::internal::CaptureStderr();
    constexpr int WIDTH = TextRenderer::MAX_BYTES / TextMask::HEIGHT + 1;
    bare.mask(Font::TEXT, text("abc"), 100);
    const TextMask& huge = bare.mask(Font::TEXT, text(std::string(WIDTH / 7 + 1, 'x')), WIDTH);
    EXPECT_EQ(huge.width, WIDTH);
    EXPECT_GT(inkOf(huge), 0);
    EXPECT_EQ(bare.bytes(), huge.ink.size());
    bare.mask(Font::TEXT, text("abc"), 100);
    EXPECT_LT(bare.bytes(), TextRenderer::MAX_BYTES);
    testing::internal::GetCapturedStderr();
}

TEST_F(FontsTest, TextsUsedLastAreKept)
{
    const TextMask first = mask("first");
    const std::size_t others = renderer.bytes();
    mask("first");
    EXPECT_EQ(renderer.bytes(), others);
}

} // namespace

} // namespace host
