#include "simulator/web/WebSocketFrames.h"

#include <gmock/gmock.h>

namespace {

using simulator::CloseCode;
using simulator::closingFrame;
using simulator::FrameKind;
using simulator::frameOf;
using simulator::WebSocketFrames;
using testing::ElementsAre;
using namespace std::string_literals;

constexpr std::size_t LONGEST = 65'536;

/// As a client sends it, with the mask "abcd".
std::string sent(char first, const std::string& text)
{
    std::string frame{first};
    if (text.size() < 126) {
        frame += static_cast<char>(0x80 | text.size());
    } else if (text.size() < 65'536) {
        frame += {static_cast<char>(0xFE), static_cast<char>(text.size() >> 8), static_cast<char>(text.size())};
    } else {
        frame += static_cast<char>(0xFF);
        for (int i = 7; i >= 0; --i)
            frame += static_cast<char>(std::uint64_t{text.size()} >> (8 * i));
    }
    frame += "abcd";
    for (std::size_t i = 0; i < text.size(); ++i)
        frame += static_cast<char>(text[i] ^ "abcd"[i % 4]);
    return frame;
}

class WebSocketFramesTest : public testing::Test {
protected:
    CloseCode take(std::string_view bytes)
    {
        return frames.take(bytes, [this](FrameKind kind, std::string_view data) {
            heard.push_back(std::to_string(static_cast<int>(kind)) + ":" + std::string(data));
            return heard.size() < most;
        });
    }

    WebSocketFrames frames{LONGEST};
    std::vector<std::string> heard;
    std::size_t most = 100;
};

TEST_F(WebSocketFramesTest, MessagesComeInPiecesOfAnySize)
{
    const std::string all = sent('\x81', "one") + sent('\x89', "hi") + sent('\x01', "tw") + sent('\x8A', "") +
                            sent('\x00', "") + sent('\x80', "o") + sent('\x81', std::string(300, 'x'));
    for (const char byte : all)
        ASSERT_EQ(take({&byte, 1}), CloseCode::NONE);
    EXPECT_THAT(heard, ElementsAre("1:one", "9:hi", "10:", "1:two", "1:" + std::string(300, 'x')));
    heard.clear();
    EXPECT_EQ(take(all), CloseCode::NONE);
    EXPECT_EQ(heard.size(), 5u);
}

TEST_F(WebSocketFramesTest, LongestMessageIsTaken)
{
    EXPECT_EQ(take(sent('\x81', std::string(LONGEST, 'x'))), CloseCode::NONE);
    EXPECT_EQ(heard.size(), 1u);
}

TEST_F(WebSocketFramesTest, MessageThatIsTooLongIsRefusedBeforeItHasCome)
{
    EXPECT_EQ(take("\x81\xFF\0\0\0\0\0\x01\0\x01"s), CloseCode::TOO_BIG);
    WebSocketFrames others(LONGEST);
    const auto ignore = [](FrameKind, std::string_view) { return true; };
    EXPECT_EQ(others.take(sent('\x01', std::string(40'000, 'x')), ignore), CloseCode::NONE);
    EXPECT_EQ(others.take(sent('\x80', std::string(40'000, 'x')).substr(0, 8), ignore), CloseCode::TOO_BIG);
}

TEST_F(WebSocketFramesTest, WhatBreaksTheProtocolIsRefused)
{
    const std::string wrong[] = {sent('\x80', "alone"),
                                 sent('\x01', "one") + sent('\x81', "two"),
                                 "\x81\x03one", // not masked
                                 sent('\xC1', "reserved"),
                                 sent('\x83', "unknown"),
                                 sent('\x09', "ping in pieces"),
                                 sent('\x89', std::string(126, 'x'))};
    for (const std::string& bytes : wrong) {
        WebSocketFrames others(LONGEST);
        EXPECT_EQ(others.take(bytes, [](FrameKind, std::string_view) { return true; }), CloseCode::PROTOCOL_ERROR)
            << testing::PrintToString(bytes);
    }
    EXPECT_EQ(take(sent('\x82', "binary")), CloseCode::UNSUPPORTED);
}

TEST_F(WebSocketFramesTest, WhoHasHeardEnoughHearsNoMore)
{
    most = 2;
    EXPECT_EQ(take(sent('\x81', "a") + sent('\x81', "b") + sent('\x81', "c")), CloseCode::NONE);
    EXPECT_THAT(heard, ElementsAre("1:a", "1:b"));
}

TEST_F(WebSocketFramesTest, FramesOfAServerAreNotMasked)
{
    EXPECT_EQ(frameOf(FrameKind::TEXT, "hi"), "\x81\x02hi");
    EXPECT_EQ(frameOf(FrameKind::TEXT, std::string(300, 'x')), "\x81\x7E\x01\x2C" + std::string(300, 'x'));
    EXPECT_EQ(frameOf(FrameKind::PONG, std::string(65'536, 'x')),
              "\x8A\x7F\0\0\0\0\0\x01\0\0"s + std::string(65'536, 'x'));
    EXPECT_EQ(closingFrame(CloseCode::GOING_AWAY), "\x88\x02\x03\xE9");
}

} // namespace
