#include "simulator/rpc/RpcOutbox.h"

#include <pthread.h>
#include <utility>

namespace simulator {

RpcOutbox::RpcOutbox(Line line) : mLine(std::move(line)), mSender([this] { run(); })
{
    pthread_setname_np(mSender.native_handle(), "rpc-sender");
}

RpcOutbox::~RpcOutbox()
{
    waitUntilDone(std::chrono::steady_clock::now() + LAST_WRITES);
    {
        const std::lock_guard lock(mMutex);
        breakOff();
    }
    mSender.join();
}

void RpcOutbox::send(std::string frame)
{
    const std::lock_guard lock(mMutex);
    if (mIsFinished || mIsBroken)
        return;
    write(std::move(frame));
    if (isTooMuch())
        breakOff();
}

void RpcOutbox::offer(std::function<std::string()> latest)
{
    const std::lock_guard lock(mMutex);
    if (mIsFinished || mIsBroken)
        return;
    if (mWaiting.empty())
        return write(latest());
    mLatest = std::move(latest);
}

void RpcOutbox::finish()
{
    const std::lock_guard lock(mMutex);
    mIsFinished = true;
    mLatest = {};
    mChanged.notify_all();
}

bool RpcOutbox::isOpen()
{
    const std::lock_guard lock(mMutex);
    return !mIsFinished && !mIsBroken;
}

void RpcOutbox::waitUntilDone(std::chrono::steady_clock::time_point deadline)
{
    Lock lock(mMutex);
    mChanged.wait_until(lock, deadline, [this] { return !mIsFinished || mIsDone; });
}

/// Leaves to the thread what the client does not take.
void RpcOutbox::write(std::string frame)
{
    if (mWaiting.empty()) {
        const auto written = mLine.write(frame);
        if (!written)
            return breakOff();
        if (*written == frame.size())
            return;
        mWritten = *written;
    }
    mBytes += frame.size();
    mWaiting.push_back(std::move(frame));
    mChanged.notify_all();
}

bool RpcOutbox::isTooMuch() const
{
    return mWaiting.size() > MOST_WAITING || mBytes > MOST_BYTES;
}

void RpcOutbox::breakOff()
{
    mIsBroken = true;
    mChanged.notify_all();
    mLine.cut();
}

void RpcOutbox::run()
{
    Lock lock(mMutex);
    while (!mIsBroken) {
        mChanged.wait(lock, [this] { return !mWaiting.empty() || mIsFinished || mIsBroken; });
        if (mIsBroken || mWaiting.empty())
            break;
        lock.unlock();
        const bool isThere = mLine.waitUntilWritable();
        lock.lock();
        if (!isThere)
            breakOff();
        writeAll();
    }
    mIsDone = true;
    mChanged.notify_all();
    if (!mIsBroken)
        mLine.end();
}

/// As much as the client takes.
void RpcOutbox::writeAll()
{
    while (!mIsBroken && !mWaiting.empty()) {
        const std::string_view rest = std::string_view(mWaiting.front()).substr(mWritten);
        const auto written = mLine.write(rest);
        if (!written)
            return breakOff();
        mWritten += *written;
        if (*written < rest.size())
            return;
        mBytes -= std::exchange(mWritten, 0);
        mWaiting.pop_front();
        if (mWaiting.empty() && mLatest)
            write(std::exchange(mLatest, {})());
    }
}

} // namespace simulator
