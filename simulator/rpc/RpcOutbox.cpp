#include "simulator/rpc/RpcOutbox.h"

#include <pthread.h>
#include <utility>

namespace simulator {

RpcOutbox::RpcOutbox(Write write, std::function<void()> cut)
    : mWrite(std::move(write)), mCut(std::move(cut)), mSender([this] { run(); })
{
    pthread_setname_np(mSender.native_handle(), "rpc-sender");
}

RpcOutbox::~RpcOutbox()
{
    waitUntilDone(std::chrono::steady_clock::now() + LAST_WRITES);
    {
        const std::lock_guard lock(mMutex);
        mIsBroken = true;
        mChanged.notify_all();
    }
    mCut();
    mSender.join();
}

void RpcOutbox::send(Message message)
{
    const std::lock_guard lock(mMutex);
    if (mIsFinished || mIsBroken)
        return;
    mBytes += message.data.size();
    mWaiting.push_back(std::move(message));
    mChanged.notify_all();
    if (!isTooMuch())
        return;
    mIsBroken = true;
    mCut();
}

void RpcOutbox::offer(std::function<Message()> latest)
{
    const std::lock_guard lock(mMutex);
    if (mIsFinished || mIsBroken)
        return;
    mLatest = std::move(latest);
    mChanged.notify_all();
}

void RpcOutbox::finish()
{
    const std::lock_guard lock(mMutex);
    mIsFinished = true;
    mLatest = {};
    mChanged.notify_all();
}

void RpcOutbox::waitUntilDone(std::chrono::steady_clock::time_point deadline)
{
    Lock lock(mMutex);
    mChanged.wait_until(lock, deadline, [this] { return !mIsFinished || mIsDone; });
}

bool RpcOutbox::isTooMuch() const
{
    return mWaiting.size() > MOST_WAITING || mBytes > MOST_BYTES;
}

void RpcOutbox::run()
{
    writeAll();
    mCut();
    const std::lock_guard lock(mMutex);
    mIsDone = true;
    mChanged.notify_all();
}

void RpcOutbox::writeAll()
{
    Lock lock(mMutex);
    for (;;) {
        mChanged.wait(lock, [this] { return !mWaiting.empty() || mLatest || mIsFinished || mIsBroken; });
        const auto next = takeNext();
        if (mIsBroken || !next)
            return;
        lock.unlock();
        const bool written = mWrite(next());
        lock.lock();
        mIsBroken = mIsBroken || !written;
    }
}

std::function<RpcOutbox::Message()> RpcOutbox::takeNext()
{
    if (mWaiting.empty())
        return std::exchange(mLatest, {});
    Message message = std::move(mWaiting.front());
    mWaiting.pop_front();
    mBytes -= message.data.size();
    return [message = std::move(message)] { return message; };
}

} // namespace simulator
