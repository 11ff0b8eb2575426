#pragma once

#include "DisplayAPI/Export.h"

#include <atomic>
#include <list>
#include <memory>

class Semaphore;
class Threader;

namespace DisplayAPI {

class DisplayThread;

/// The process's worker threads: up to a maximum are kept and used again, further ones run one request and end.
/// Safe from any thread; nothing waits but the destructor.
class DISPLAYAPI_EXPORT DisplayThreadPool {
public:
    /// The pool, made on the first call with the given maximum, below 1 for none; later calls ignore their argument.
    static DisplayThreadPool* instance(int maxPoolSize);

    DisplayThreadPool(const DisplayThreadPool&) = delete;
    DisplayThreadPool& operator=(const DisplayThreadPool&) = delete;

    /// Ends the pooled threads and waits, with the pool's lock held, until each has finished what it runs.
    /// REQUIRES: nobody posts notifications or calls getThread() meanwhile; not from a Runnable.
    ~DisplayThreadPool();

    /// A running thread, marked busy, ready for one executeRequest(). Null where none can be started.
    DisplayThread* getThread();

    /// Pooled threads that wait for work.
    int availableThreads();

    /// Pooled threads made so far, and their maximum.
    int poolSize() const;
    int maxPoolSize() const;

private:
    explicit DisplayThreadPool(int maxPoolSize);

    DisplayThread* takeIdleThread();
    DisplayThread* addThread();
    void removeThread(DisplayThread* thread);

    int mMaxPoolSize;
    std::atomic<int> mPoolSize{0};
    std::list<DisplayThread*> mThreads;
    std::unique_ptr<Threader> mThreader;
    std::unique_ptr<Semaphore> mListLock;

    static DisplayThreadPool* theInstance;
};

} // namespace DisplayAPI
