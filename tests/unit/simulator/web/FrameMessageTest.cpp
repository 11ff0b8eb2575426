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

TEST(FrameMessage, PixelsFollowTheHeaderFourToAByte)
{
    const Picture picture{5, 2, {0, 1, 2, 3, 3, 3, 2, 1, 0, 1}, {}, 7};
    const std::string expected("\x05\x00\x02\x00\x04\x03\x02\x01\x1b\xc0\xe4\x40", 12);
    EXPECT_EQ(makeFrameMessage(picture, 0x01020304, "").pixels, expected);
}

TEST(FrameMessage, RowsAreThoseOfThePicture)
{
    const Picture picture = blank({{{0, 0, 3, 9}, "Menu"}, {{0, 10, 3, 19}, "First", true}});
    EXPECT_EQ(makeFrameMessage(picture, 1, "de").rows,
              R"({"language":"de","rows":[{"text":"Menu","selected":false},{"text":"First","selected":true}]})");
}

} // namespace
