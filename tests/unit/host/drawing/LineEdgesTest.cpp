#include "host/drawing/LineEdges.h"

#include "host/drawing/PangoFonts.h"
#include "host/drawing/PangoThreads.h"
#include "host/lcd/Utf8.h"

#include <gtest/gtest.h>
#include <pango/pango.h>
#include <random>

namespace host {

namespace {

/// One unit after the other, as Pango itself says.
std::vector<TextEdges> asPangoSays(PangoLayoutLine* line, const std::u16string& text)
{
    std::vector<TextEdges> edges;
    int index = 0;
    for (const char16_t unit : text) {
        TextEdges place;
        pango_layout_line_index_to_x(line, index, FALSE, &place.begin);
        pango_layout_line_index_to_x(line, index, TRUE, &place.end);
        edges.push_back({PANGO_PIXELS(place.begin), PANGO_PIXELS(place.end)});
        index += static_cast<int>(toUtf8({&unit, 1}).size());
    }
    return edges;
}

class LineEdgesTest : public testing::Test {
protected:
    PangoLayoutLine* lay(std::u16string& text, int width)
    {
        PangoLayout* const layout = fonts.layoutFor(Font::TEXT, text);
        const PangoThreads threads;
        const std::string utf8 = toUtf8(text);
        pango_layout_set_width(layout, width * PANGO_SCALE);
        pango_layout_set_text(layout, utf8.data(), static_cast<int>(utf8.size()));
        return pango_layout_get_line_readonly(layout, 0);
    }

    /// Where a cursor can stand. Of marks that are of another font than their letter Pango says anything.
    void expectAsPangoSays(std::u16string text)
    {
        PangoLayoutLine* const line = lay(text, TextMask::MAX_WIDTH);
        const auto mine = edgesOf(line, text), theirs = asPangoSays(line, text);
        const PangoLogAttr* const breaks = pango_layout_get_log_attrs_readonly(line->layout, nullptr);
        ASSERT_EQ(mine.size(), theirs.size());
        for (std::size_t at = 0; at < mine.size(); ++at) {
            const bool begins = at == 0 || breaks[at].is_cursor_position != 0;
            EXPECT_EQ(mine[at].begin, begins ? theirs[at].begin : mine[at - 1].begin) << toUtf8(text) << " " << at;
            const bool ends = at + 1 == mine.size() || breaks[at + 1].is_cursor_position != 0;
            EXPECT_EQ(mine[at].end, ends ? theirs[at].end : mine[at + 1].end) << toUtf8(text) << " " << at;
        }
    }

    PangoFonts fonts{fontFolders()};
};

TEST_F(LineEdgesTest, EdgesAreThoseOfPango)
{
    for (const char16_t* text :
         {u"abc", u"e\u0301a\u0301\u0302", u"\u0301a", u"\u0644\u0627 \u0644\u064E\u0627 12 \u0628\u064E\u062A",
          u"\u05E9\u05DC\u05D5\u05DD abc 57", u"\u0E01\u0E33\u0E01\u0E49\u0E33 \u0E17\u0E35\u0E48",
          u"\u0928\u092E\u0938\u094D\u0924\u0947", u"\u4E2D\u65874711", u"a\u200D\u200Fb\u200B \uE123"})
        expectAsPangoSays(text);
}

/// All that is cut off shares the place of the ellipsis.
TEST_F(LineEdgesTest, WhatIsCutOffStandsInTheEllipsis)
{
    std::u16string text = u"abc \u0644\u0627 \u0628\u064E\u062A def e\u0301 ghi";
    const auto whole = edgesOf(lay(text, TextMask::MAX_WIDTH), text);
    const auto cut = edgesOf(lay(text, 30), text);
    ASSERT_EQ(cut.size(), text.size());
    for (std::size_t at = 0; at < 2; ++at)
        EXPECT_EQ(cut[at].end, whole[at].end);
    for (std::size_t at = 2; at < cut.size(); ++at) {
        EXPECT_GE(cut[at].begin, cut[1].end);
        EXPECT_GE(cut[at].end, cut[at].begin);
        EXPECT_LE(cut[at].end, 30);
    }
}

TEST_F(LineEdgesTest, OfRandomTexts)
{
    constexpr std::u16string_view SOME =
        u"aVi .\u0301\u0302\u0627\u0644\u0628\u064E\u0651\u05D0\u05B8\u0E01\u0E49\u0E33"
        u"\u0915\u094D\u0937\u093F\u4E2D\u3099\u30AB\u200D(12";
    std::mt19937 random(42);
    for (int i = 0; i < 500; ++i) {
        std::u16string text(1 + random() % 24, u' ');
        for (char16_t& unit : text)
            unit = SOME[random() % SOME.size()];
        expectAsPangoSays(text);
    }
}

} // namespace

} // namespace host
