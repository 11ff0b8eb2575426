#include "Cases.h"

#include <atomic>
#include <deque>
#include <mutex>
#include <thread>

namespace bench {

namespace {

/// A list under a mutex, which another thread takes away whole: the least that a queue does.
class BareList {
public:
    BareList()
        : mThread([this] {
              while (!mEnd)
                  runAll();
          })
    {
    }

    ~BareList()
    {
        mEnd = true;
        mThread.join();
    }

    template <typename Function>
    void post(Function function)
    {
        std::lock_guard lock(mMutex);
        mQueue.emplace_back(std::move(function));
        ++mPosted;
    }

    void call()
    {
        while (mRun != mPosted)
            std::this_thread::yield();
    }

private:
    void runAll()
    {
        std::deque<std::function<void()>> functions;
        {
            std::lock_guard lock(mMutex);
            functions.swap(mQueue);
        }
        for (auto& function : functions)
            function();
        mRun += static_cast<int>(functions.size());
        if (functions.empty())
            std::this_thread::yield();
    }

    std::mutex mMutex;
    std::deque<std::function<void()>> mQueue;
    std::atomic<int> mPosted{0};
    std::atomic<int> mRun{0};
    std::atomic<bool> mEnd{false};
    std::thread mThread;
};

} // namespace

std::vector<Case> bareListCases()
{
    constexpr const char* NAME = "reference: a list under a mutex";
    return {{ONE_WITH_PAYLOAD, NAME, "M/s", [] { return postsWithPayload<BareList>(1); }},
            {TWO_WITH_PAYLOAD, NAME, "M/s", [] { return postsWithPayload<BareList>(2); }}};
}

} // namespace bench
