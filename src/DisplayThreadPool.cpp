#include "DisplayAPI/DisplayThreadPool.h"

#include "DisplayAPI/DisplayThread.h"
#include "utilities/Semaphore.h"
#include "utilities/Threader.h"

#include <algorithm>
#include <mutex>

namespace DisplayAPI {

namespace {

/// Guards the making and the end of the one pool.
std::mutex& instanceLock()
{
    static std::mutex lock;
    return lock;
}

} // namespace

DisplayThreadPool* DisplayThreadPool::theInstance = nullptr;

DisplayThreadPool* DisplayThreadPool::instance(int maxPoolSize)
{
    std::lock_guard lock(instanceLock());
    if (theInstance == nullptr)
        theInstance = new DisplayThreadPool(maxPoolSize);
    return theInstance;
}

DisplayThreadPool::DisplayThreadPool(int maxPoolSize)
    : mMaxPoolSize(maxPoolSize), mThreader(std::make_unique<Threader>()),
      mListLock(std::make_unique<Semaphore>(Semaphore::AVAILABLE, 1, false))
{
}

DisplayThreadPool::~DisplayThreadPool()
{
    mThreader.reset();
    while (true) {
        mListLock->take(-1);
        if (mThreads.empty())
            break;
        mThreads.front()->destroyThread();
        mThreads.pop_front();
        mListLock->give();
    }
    mListLock->give();
    std::lock_guard lock(instanceLock());
    theInstance = nullptr;
}

DisplayThread* DisplayThreadPool::getThread()
{
    if (DisplayThread* idle = takeIdleThread())
        return idle;
    DisplayThread* thread = addThread();
    if (mThreader->start(thread, "", 1, 0))
        return thread;
    removeThread(thread);
    return nullptr;
}

DisplayThread* DisplayThreadPool::takeIdleThread()
{
    mListLock->take(-1);
    const auto idle = std::find_if(mThreads.begin(), mThreads.end(), [](DisplayThread* t) { return !t->busy(); });
    DisplayThread* thread = nullptr;
    if (idle != mThreads.end()) {
        thread = *idle;
        thread->setBusy();
        mThreads.splice(mThreads.end(), mThreads, idle);
    }
    mListLock->give();
    return thread;
}

DisplayThread* DisplayThreadPool::addThread()
{
    mListLock->take(-1);
    const bool pooled = mPoolSize < mMaxPoolSize;
    auto* thread = new DisplayThread(pooled);
    thread->setBusy();
    if (pooled) {
        ++mPoolSize;
        mThreads.push_back(thread);
    }
    mListLock->give();
    return thread;
}

void DisplayThreadPool::removeThread(DisplayThread* thread)
{
    mListLock->take(-1);
    if (mThreads.remove(thread) != 0)
        --mPoolSize;
    mListLock->give();
    delete thread;
}

int DisplayThreadPool::availableThreads()
{
    mListLock->take(-1);
    const auto idle = std::count_if(mThreads.begin(), mThreads.end(), [](DisplayThread* t) { return !t->busy(); });
    mListLock->give();
    return static_cast<int>(idle);
}

int DisplayThreadPool::poolSize() const
{
    return mPoolSize;
}

int DisplayThreadPool::maxPoolSize() const
{
    return mMaxPoolSize;
}

} // namespace DisplayAPI
