#include "simulator/rpc/RpcOutbox.h"

#include "support/Gate.h"
#include "support/Worker.h"

#include <atomic>
#include <gmock/gmock.h>

namespace {

using simulator::RpcOutbox;
using testing::ElementsAre;

/// Somebody who reads when the test says so.
class RpcOutboxTest : public testing::Test {
protected:
    bool write(const RpcOutbox::Message& message)
    {
        reading.wait();
        if (cut.isOpen())
            return false;
        const std::lock_guard lock(mutex);
        written.push_back(message.data);
        return true;
    }

    void onCut()
    {
        cut.open();
        reading.open();
    }

    bool hasWritten(std::size_t count)
    {
        const std::lock_guard lock(mutex);
        return written.size() == count;
    }

    std::mutex mutex;
    std::vector<std::string> written;
    test::Gate reading;
    test::Gate cut;
    RpcOutbox outbox{[this](const auto& message) { return write(message); }, [this] { onCut(); }};
};

TEST_F(RpcOutboxTest, MessagesGoInOrder)
{
    reading.open();
    for (const char* text : {"a", "b", "c"})
        outbox.send({1, text});
    test::waitUntil([this] { return hasWritten(3); });
    EXPECT_THAT(written, ElementsAre("a", "b", "c"));
}

TEST_F(RpcOutboxTest, NobodyWaitsForWhoDoesNotRead)
{
    for (std::size_t i = 0; i < RpcOutbox::MOST_WAITING; ++i)
        outbox.send({1, "a"});
    EXPECT_FALSE(cut.isOpen());
}

TEST_F(RpcOutboxTest, WhoLetsTooManyLieIsCutOff)
{
    for (std::size_t i = 0; i < RpcOutbox::MOST_WAITING + 2; ++i)
        outbox.send({1, "a"});
    EXPECT_TRUE(cut.isOpen());
}

TEST_F(RpcOutboxTest, WhoLetsTooMuchLieIsCutOff)
{
    for (int i = 0; i < 3; ++i)
        outbox.send({1, std::string(RpcOutbox::MOST_BYTES / 2 + 1, 'a')});
    EXPECT_TRUE(cut.isOpen());
}

TEST_F(RpcOutboxTest, WhoIsSlowGetsTheLatest)
{
    const auto said = [](const char* text) { return [text] { return RpcOutbox::Message{1, text}; }; };
    outbox.send({1, "a"});
    outbox.send({1, "b"});
    for (const char* text : {"1", "2", "3"})
        outbox.offer(said(text));
    reading.open();
    test::waitUntil([this] { return hasWritten(3); });
    EXPECT_THAT(written, ElementsAre("a", "b", "3"));
}

TEST_F(RpcOutboxTest, WhatIsWaitingIsWrittenBeforeTheEnd)
{
    outbox.send({1, "a"});
    outbox.send({8, "end"});
    outbox.finish();
    outbox.send({1, "late"});
    reading.open();
    EXPECT_TRUE(cut.wait());
    EXPECT_THAT(written, ElementsAre("a", "end"));
}

TEST_F(RpcOutboxTest, NothingIsOfferedBehindTheEnd)
{
    const auto latest = [] { return RpcOutbox::Message{1, "latest"}; };
    outbox.send({8, "end"});
    outbox.offer(latest);
    outbox.finish();
    outbox.offer(latest);
    reading.open();
    EXPECT_TRUE(cut.wait());
    EXPECT_THAT(written, ElementsAre("end"));
}

TEST_F(RpcOutboxTest, WhatIsFinishedIsWrittenBeforeItGoes)
{
    std::atomic<bool> isCut = false;
    std::size_t count = 0;
    const auto writeSlowly = [&](const auto&) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        count += isCut ? 0 : 1;
        return !isCut;
    };
    {
        RpcOutbox leaving(writeSlowly, [&] { isCut = true; });
        for (int i = 0; i < 10; ++i)
            leaving.send({1, "a"});
        leaving.finish();
    }
    EXPECT_EQ(count, 10u);
}

} // namespace
