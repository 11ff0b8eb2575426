#include "support/Worker.h"

#include "utilities/Threadable.h"

#include <chrono>
#include <fstream>
#include <string>
#include <utility>

namespace test {

namespace {

/// A sleep of a thread: how often it had gone to sleep before; -1 while it is awake.
long currentSleep(unsigned int threadId)
{
    std::ifstream status("/proc/self/task/" + std::to_string(threadId) + "/status");
    bool sleeps = false;
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("State:"))
            sleeps = line.find('S', 6) != std::string::npos;
        if (line.starts_with("voluntary_ctxt_switches:"))
            return sleeps ? std::stol(line.substr(24)) : -1;
    }
    return -1;
}

} // namespace

Worker::Worker(std::function<void()> work)
    : mThread([this, work = std::move(work)] {
          mThreadId = Threadable::currentThreadId();
          mThreadId.notify_all();
          work();
          mReturned = true;
      })
{
    mThreadId.wait(0);
}

Worker::~Worker()
{
    join();
}

void Worker::join()
{
    if (mThread.joinable())
        mThread.join();
}

bool Worker::isBlocked() const
{
    long sleep = -1;
    while (!mReturned) {
        const long before = std::exchange(sleep, currentSleep(mThreadId));
        if (sleep >= 0 && sleep == before)
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return false;
}

void onOtherThread(std::function<void()> work)
{
    Worker(std::move(work)).join();
}

} // namespace test
