#include "simulator/web/PageMessage.h"

#include <gtest/gtest.h>

namespace {

using simulator::PageMessage;
using simulator::parsePageMessage;

TEST(PageMessage, KeysGoDownAndUp)
{
    const auto down = parsePageMessage("down volume-up");
    ASSERT_TRUE(down.has_value());
    EXPECT_EQ(down->kind, PageMessage::Kind::DOWN);
    EXPECT_EQ(down->key, PK_VOLUME_UP);
    EXPECT_EQ(parsePageMessage("up 7")->kind, PageMessage::Kind::UP);
}

TEST(PageMessage, FrameWasSeen)
{
    const auto seen = parsePageMessage("seen 4294967295");
    ASSERT_TRUE(seen.has_value());
    EXPECT_EQ(seen->kind, PageMessage::Kind::SEEN);
    EXPECT_EQ(seen->frame, 4294967295U);
}

TEST(PageMessage, MotionIsLessOrFull)
{
    const auto less = parsePageMessage("motion less");
    ASSERT_TRUE(less.has_value());
    EXPECT_EQ(less->kind, PageMessage::Kind::MOTION);
    EXPECT_TRUE(less->wantsLessMotion);
    EXPECT_FALSE(parsePageMessage("motion full")->wantsLessMotion);
}

TEST(PageMessage, ExchangeHasALine)
{
    const auto message = parsePageMessage("exchange 4711 \"Ada\" calls");
    ASSERT_TRUE(message.has_value());
    EXPECT_EQ(message->kind, PageMessage::Kind::EXCHANGE);
    EXPECT_EQ(message->line, "4711 \"Ada\" calls");
    EXPECT_EQ(parsePageMessage("exchange ")->line, "");
}

TEST(PageMessage, AnythingElseIsNone)
{
    for (const char* text : {"", "down", "down ", "down middle", "Down ok", "down ok ", "up", "seen", "seen ",
                             "seen -1", "seen 4294967296", "seen 1x", "motion", "motion ", "motion none", "exchange",
                             "exchange4711", "{}", "\xff\xfe"})
        EXPECT_FALSE(parsePageMessage(text).has_value()) << text;
}

} // namespace
