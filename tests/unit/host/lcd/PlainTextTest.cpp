#include "host/lcd/PlainText.h"

#include "host/lcd/Drawing.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace host {

namespace {

constexpr std::array FONTS{Font::TEXT, Font::TEXT_BOLD, Font::FIXED, Font::FIXED_BOLD};

std::string codesOf(std::u16string_view text)
{
    std::string codes;
    for (const char16_t unit : text)
        codes += std::to_string(unit) + " ";
    return codes;
}

/// Draws texts both ways.
class PlainTextTest : public testing::Test {
protected:
    /// False where the text is left to the shaper.
    bool isTheSame(Font font, const std::u16string& text, int width)
    {
        const std::optional<TextMask> mine = plain.draw(font, text, width);
        if (!mine)
            return false;
        const TextMask theirs = shaper->draw(font, text, width).value();
        EXPECT_EQ(mine->width, theirs.width) << where(font, text, width);
        EXPECT_EQ(mine->cut, theirs.cut) << where(font, text, width);
        EXPECT_EQ(mine->rightToLeft, theirs.rightToLeft) << where(font, text, width);
        EXPECT_EQ(mine->lacksGlyph, theirs.lacksGlyph) << where(font, text, width);
        EXPECT_TRUE(mine->ink == theirs.ink) << where(font, text, width);
        return true;
    }

    void expectSameEdges(Font font, const std::u16string& text)
    {
        const auto mine = plain.edges(font, text).value();
        const auto theirs = shaper->edges(font, text, TextMask::MAX_WIDTH).value();
        ASSERT_EQ(mine.size(), theirs.size());
        for (std::size_t at = 0; at < mine.size(); ++at) {
            EXPECT_EQ(mine[at].begin, theirs[at].begin) << where(font, text, at);
            EXPECT_EQ(mine[at].end, theirs[at].end) << where(font, text, at);
        }
    }

    /// Those that the font has.
    std::u16string charactersOf(Font font)
    {
        std::u16string characters;
        for (char16_t character = 0; character < 0x3000; ++character)
            if (isPlain(character) && plain.edges(font, {&character, 1}))
                characters += character;
        return characters;
    }

    static std::string where(Font font, std::u16string_view text, std::size_t number)
    {
        return "font " + std::to_string(static_cast<int>(font)) + " " + codesOf(text) + "/ " + std::to_string(number);
    }

    PlainText plain{fontFolders()};
    std::unique_ptr<TextShaper> shaper = drawing().newShaper(fontFolders());
};

TEST_F(PlainTextTest, EveryCharacterIsTheSameAsShaped)
{
    for (const Font font : FONTS)
        for (const char16_t character : charactersOf(font)) {
            EXPECT_TRUE(isTheSame(font, {u' ', character, u' '}, TextMask::MAX_WIDTH));
            EXPECT_TRUE(isTheSame(font, {character}, TextMask::MAX_WIDTH));
        }
}

TEST_F(PlainTextTest, PlainAreTheLettersOfThreeScripts)
{
    for (const Font font : FONTS)
        for (const char16_t character :
             std::u16string_view(u"aZ09 ~\u00E9\u00DF\u0141\u017E\u03A9\u03CE\u0416\u0451\u2026\u20AC"))
            EXPECT_TRUE(plain.edges(font, {&character, 1})) << where(font, {&character, 1}, 0);
    for (const char16_t other :
         std::u16string_view(u"\u00AD\u0301\u05D0\u0627\u0E01\u0915\u200B\u200F\u202E\u2044\u4E00\uFFFD"))
        EXPECT_FALSE(isPlain(other)) << codesOf({&other, 1});
}

TEST_F(PlainTextTest, EveryPairOfLettersStandsAsShaped)
{
    for (const Font font : {Font::TEXT, Font::TEXT_BOLD})
        for (char16_t first = u'!'; first < u'\x7F'; ++first) {
            std::u16string text;
            for (char16_t second = u'!'; second < u'\x7F'; ++second)
                (text += first) += second;
            expectSameEdges(font, text);
        }
}

/// Each of one script, and a few of all.
TEST_F(PlainTextTest, RandomTextsAreTheSameAsShaped)
{
    std::mt19937 random(4711);
    int counted = 0;
    for (const Font font : FONTS) {
        const std::u16string all = charactersOf(font);
        for (int i = 0; i < 1500; ++i) {
            const auto script = static_cast<Script>(2 + random() % 4); // behind the last there are all
            std::u16string some;
            std::ranges::copy_if(all, std::back_inserter(some), [&](char16_t character) {
                const Script its = scriptOf(character);
                return script > Script::CYRILLIC || its == script || (its == Script::COMMON && character < 0x80);
            });
            std::u16string text(1 + random() % 40, u' ');
            std::ranges::generate(text, [&] { return some[random() % some.size()]; });
            const int width = i % 2 == 0 ? TextMask::MAX_WIDTH : static_cast<int>(1 + random() % 240);
            if (!isTheSame(font, text, width))
                continue;
            expectSameEdges(font, text);
            ++counted;
        }
    }
    EXPECT_GT(counted, 4000);
}

TEST_F(PlainTextTest, WordsAreTheSameAsShaped)
{
    for (const Font font : FONTS)
        for (const char16_t* words :
             {u"just a jolly fjord, Jeff! (f) j", u"  two  spaces here   ", u" V A W T Y. \"'quote' r. f, L'Y To. AV ",
              u"Zo\u00EB \u00C5ngstr\u00F6m \u0141\u00F3d\u017A", u" ", u"\u2022\u2022 \u2022",
              u"\u0416\u0443\u043A. SIP", u"\u0393\u03B5\u03B9\u03AC \u03C3\u03BF\u03C5, Tom"})
            EXPECT_TRUE(isTheSame(font, words, TextMask::MAX_WIDTH)) << where(font, words, 0);
}

/// Each text begins as the one before it did, or ends earlier, or is another one.
TEST_F(PlainTextTest, TextsThatAreTypedAreTheSameAsShaped)
{
    std::mt19937 random(815);
    const std::u16string letters = u"AVTo. ,'f(j)1-\u0416\u0443\u0393\u03C9\u0627";
    std::u16string text;
    int counted = 0;
    for (int i = 0; i < 1200; ++i) {
        const std::size_t at = random() % 3 == 0 ? random() % (text.size() + 1) : text.size();
        const auto what = random() % 8;
        if (what == 0)
            text.resize(at);
        else if (what == 1 && at < text.size())
            text.erase(at, 1);
        else
            text.insert(at, 1, letters[random() % (what < 6 ? 8 : letters.size())]);
        const Font font = i % 50 == 0 ? Font::TEXT_BOLD : Font::TEXT;
        if (text.empty() || !isTheSame(font, text, TextMask::MAX_WIDTH))
            continue;
        expectSameEdges(font, text);
        ++counted;
    }
    EXPECT_GT(counted, 300);
}

TEST_F(PlainTextTest, WhatALineBeginsWithTakesTheScriptOfItsOwnLetters)
{
    EXPECT_TRUE(isTheSame(Font::TEXT, u"1 (Anna)", TextMask::MAX_WIDTH));
    EXPECT_TRUE(isTheSame(Font::TEXT, u"1 (\u0411\u043E\u0440\u0438\u0441)", TextMask::MAX_WIDTH));
}

TEST_F(PlainTextTest, EveryWidthCutsAsShaped)
{
    for (const Font font : FONTS)
        for (int width = 1; width < 120; ++width)
            EXPECT_TRUE(isTheSame(font, u"Voices, AV: mill \u0416\u0443\u043A", width));
}

TEST_F(PlainTextTest, BracketsBetweenScriptsAreLeftToTheShaper)
{
    EXPECT_FALSE(plain.edges(Font::TEXT, u"Tom (\u0416\u0443\u043A)"));
    EXPECT_TRUE(plain.edges(Font::TEXT, u"Tom (Jim)"));
}

TEST_F(PlainTextTest, WithoutItsFontNothingIsPlain)
{
    PlainText bare({"/nonexistent"});
    EXPECT_FALSE(bare.edges(Font::TEXT, u"abc"));
    EXPECT_FALSE(bare.draw(Font::TEXT, u"abc", 100));
}

} // namespace

} // namespace host
