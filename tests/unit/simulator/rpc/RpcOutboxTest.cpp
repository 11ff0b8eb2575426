#include "simulator/rpc/RpcOutbox.h"

#include "support/Gate.h"
#include "support/Worker.h"

#include <gmock/gmock.h>

namespace {

using simulator::RpcOutbox;

/// Somebody who takes so many bytes.
class RpcOutboxTest : public testing::Test {
protected:
    void take(std::size_t bytes)
    {
        const std::lock_guard lock(mutex);
        room += bytes;
        changed.notify_all();
    }

    std::optional<std::size_t> write(std::string_view bytes)
    {
        const std::lock_guard lock(mutex);
        if (isCut)
            return {};
        const std::size_t count = std::min(room, bytes.size());
        written.append(bytes.substr(0, count));
        room -= count;
        return count;
    }

    bool waitForRoom()
    {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return room > 0 || isCut; });
        return !isCut;
    }

    void onCut()
    {
        const std::lock_guard lock(mutex);
        isCut = true;
        changed.notify_all();
    }

    bool hasBeenCut()
    {
        const std::lock_guard lock(mutex);
        return isCut;
    }

    std::string all()
    {
        const std::lock_guard lock(mutex);
        return written;
    }

    static constexpr std::size_t PLENTY = 100;

    std::mutex mutex;
    std::condition_variable changed;
    std::size_t room = 0;
    std::string written;
    bool isCut = false;
    test::Gate ended;
    RpcOutbox outbox{{[this](auto bytes) { return write(bytes); }, [this] { return waitForRoom(); },
                      [this] { ended.open(); }, [this] { onCut(); }}};
};

TEST_F(RpcOutboxTest, WhoSendsWritesHimselfWhatIsTaken)
{
    take(PLENTY);
    outbox.send("abc");
    EXPECT_EQ(all(), "abc");
}

TEST_F(RpcOutboxTest, FramesGoInOrderInWhateverPieces)
{
    take(2);
    for (const char* text : {"abc", "def", "ghi"})
        outbox.send(text);
    EXPECT_EQ(all(), "ab");
    for (std::size_t i = 3; i <= 9; ++i) {
        take(1);
        test::waitUntil([&] { return all().size() == i; });
    }
    EXPECT_EQ(all(), "abcdefghi");
}

TEST_F(RpcOutboxTest, NobodyWaitsForWhoDoesNotRead)
{
    for (std::size_t i = 0; i < RpcOutbox::MOST_WAITING; ++i)
        outbox.send("a");
    EXPECT_FALSE(hasBeenCut());
    EXPECT_TRUE(outbox.isOpen());
}

TEST_F(RpcOutboxTest, WhoLetsTooManyLieIsCutOff)
{
    for (std::size_t i = 0; i < RpcOutbox::MOST_WAITING + 1; ++i)
        outbox.send("a");
    EXPECT_TRUE(hasBeenCut());
    EXPECT_FALSE(outbox.isOpen());
}

TEST_F(RpcOutboxTest, WhoLetsTooMuchLieIsCutOff)
{
    for (int i = 0; i < 2; ++i)
        outbox.send(std::string(RpcOutbox::MOST_BYTES / 2 + 1, 'a'));
    EXPECT_TRUE(hasBeenCut());
}

TEST_F(RpcOutboxTest, WhoIsSlowGetsTheLatest)
{
    const auto said = [](const char* text) { return [text] { return std::string(text); }; };
    outbox.send("a");
    outbox.send("b");
    for (const char* text : {"1", "2", "3"})
        outbox.offer(said(text));
    take(PLENTY);
    test::waitUntil([this] { return all().size() == 3; });
    outbox.offer(said("4"));
    EXPECT_EQ(all(), "ab34");
}

TEST_F(RpcOutboxTest, WhatIsWaitingIsWrittenBeforeTheEnd)
{
    outbox.send("a");
    outbox.send("end");
    outbox.finish();
    EXPECT_FALSE(outbox.isOpen());
    outbox.send("late");
    take(PLENTY);
    EXPECT_TRUE(ended.wait());
    EXPECT_EQ(all(), "aend");
    EXPECT_FALSE(hasBeenCut());
}

TEST_F(RpcOutboxTest, NothingIsOfferedBehindTheEnd)
{
    const auto latest = [] { return std::string("latest"); };
    outbox.send("end");
    outbox.offer(latest);
    outbox.finish();
    outbox.offer(latest);
    take(PLENTY);
    EXPECT_TRUE(ended.wait());
    EXPECT_EQ(all(), "end");
}

TEST_F(RpcOutboxTest, WhatIsFinishedIsWrittenBeforeItGoes)
{
    std::string text;
    {
        const auto writeOne = [&](std::string_view bytes) {
            text += bytes[0];
            return std::optional<std::size_t>(1);
        };
        RpcOutbox leaving({writeOne, [] { return true; }, [] {}, [] {}});
        for (const char* frame : {"abc", "def"})
            leaving.send(frame);
        leaving.finish();
    }
    EXPECT_EQ(text, "abcdef");
}

} // namespace
