#include "simulator/web/FrameMessage.h"

#include <gtest/gtest.h>

namespace {

using host::Picture;
using host::TextRun;
using simulator::makeFrameMessage;

Picture blank(std::vector<TextRun> texts)
{
    return {4, 1, {0, 0, 0, 0}, std::move(texts), 1};
}

std::string rowsFor(const std::string& text)
{
    return makeFrameMessage(blank({{{0, 0, 3, 0}, text}}), 1).rows;
}

TEST(FrameMessage, PixelsFollowTheHeaderFourToAByte)
{
    const Picture picture{5, 2, {0, 1, 2, 3, 3, 3, 2, 1, 0, 1}, {}, 7};
    const std::string expected("\x05\x00\x02\x00\x04\x03\x02\x01\x1b\xc0\xe4\x40", 12);
    EXPECT_EQ(makeFrameMessage(picture, 0x01020304).pixels, expected);
}

TEST(FrameMessage, RowsSayWhichIsSelected)
{
    const Picture picture = blank({{{0, 0, 3, 9}, "Menu"}, {{0, 10, 3, 19}, "First", true}});
    EXPECT_EQ(makeFrameMessage(picture, 1).rows,
              R"({"rows":[{"text":"Menu","selected":false},{"text":"First","selected":true}]})");
}

TEST(FrameMessage, EmptyPanelHasNoRows)
{
    EXPECT_EQ(makeFrameMessage(blank({}), 1).rows, R"({"rows":[]})");
}

TEST(FrameMessage, TextIsEscaped)
{
    EXPECT_EQ(rowsFor("a\"b\\c\n\x7f"), R"({"rows":[{"text":"a\u0022b\u005Cc\u000A\u007F","selected":false}]})");
    EXPECT_EQ(rowsFor("é王"), R"({"rows":[{"text":"\u00E9\u738B","selected":false}]})");
}

TEST(FrameMessage, BrokenTextStaysJson)
{
    EXPECT_EQ(rowsFor("a\xff"
                      "b"),
              R"({"rows":[{"text":"a\uFFFDb","selected":false}]})");
}

TEST(FrameMessage, LongTextIsCut)
{
    EXPECT_LT(rowsFor(std::string(1'000'000, 'a')).size(), 1'000u);
}

} // namespace
