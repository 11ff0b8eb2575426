#pragma once

#include "toolkit/PegMessage.h"

#include <functional>
#include <memory>
#include <thread>

namespace test {

/// A telephone's GUI thread as an application has it: the toolkit with its loop on a thread of its own, which is
/// recorded as the GUI thread, and a filter installed. Ends the loop when destroyed, after what is queued by then.
///
/// A request that is still queued at the end fails the test.
class GuiLoop {
public:
    GuiLoop();
    GuiLoop(const GuiLoop&) = delete;
    GuiLoop& operator=(const GuiLoop&) = delete;
    ~GuiLoop();

    unsigned int threadId() const { return mThreadId; }

    /// Runs `work` on the GUI thread, between two messages, and waits for it.
    void call(std::function<void()> work);

    /// The same without waiting.
    void post(std::function<void()> work);

    /// Waits until everything that is queued by now has been handled.
    void settle()
    {
        call([] {});
    }

private:
    class Receiver;

    void run();

    std::unique_ptr<Receiver> mReceiver;
    unsigned int mThreadId = 0;
    std::thread mThread;
};

} // namespace test
