#pragma once

#include "host/toolkit/Loop.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/Gate.h"
#include "toolkit/PegFunctions.h"
#include "toolkit/PegMessageQueue.h"

#include <functional>
#include <gtest/gtest.h>
#include <thread>

namespace test {

/// A started toolkit without a loop: the test's thread is the GUI thread.
class StartedToolkit {
public:
    StartedToolkit() { pegInit(); }
    StartedToolkit(const StartedToolkit&) = delete;
    StartedToolkit& operator=(const StartedToolkit&) = delete;
    ~StartedToolkit() { pegCleanUp(); }
};

/// A toolkit whose loop runs on a thread of its own.
class RunningToolkit {
public:
    RunningToolkit()
    {
        mThread = std::thread([this] {
            const StartedToolkit toolkit;
            Errands errands;
            mErrands = &errands;
            gpPresent->Execute("RunningToolkit");
        });
        EXPECT_TRUE(becomesTrue([] { return host::Loop::isRunning(); }));
    }
    RunningToolkit(const RunningToolkit&) = delete;
    RunningToolkit& operator=(const RunningToolkit&) = delete;
    ~RunningToolkit() { quit(); }

    void quit()
    {
        if (!mThread.joinable())
            return;
        host::Loop::quit();
        mThread.join();
    }

    /// Runs `work` on the GUI thread, as a message of its own, and waits until it is done.
    void run(std::function<void()> work)
    {
        Gate done;
        post([&] {
            work();
            done.open();
        });
        EXPECT_TRUE(done.wait());
    }

    void post(std::function<void()> work)
    {
        auto* const errand = new std::function<void()>(std::move(work));
        PegMessageQueue().Push({ERRAND, 0, mErrands, nullptr, nullptr, errand});
    }

    bool waitUntilIdle() { return host::Loop::waitUntilIdle(PATIENCE); }

private:
    static constexpr std::uint16_t ERRAND = 0x5001;

    class Errands : public PegThing {
    public:
        int Message(const PegMessage& message) override
        {
            const std::unique_ptr<std::function<void()>> errand(static_cast<std::function<void()>*>(message.pData));
            (*errand)();
            return 0;
        }
    };

    std::thread mThread;
    PegThing* mErrands = nullptr;
};

/// Notes what it is told.
class RecordingThing : public PegThing {
public:
    explicit RecordingThing(std::uint16_t id = 0, std::uint16_t style = 0) : PegThing(id, style) {}

    int Message(const PegMessage& message) override
    {
        messages.push_back(message);
        return mPassOn ? PegThing::Message(message) : 0;
    }

    void passOn() { mPassOn = true; }

    std::vector<PegMessage> messages;

private:
    bool mPassOn = false;
};

} // namespace test
