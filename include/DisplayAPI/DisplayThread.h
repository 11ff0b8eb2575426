#pragma once

#include "DisplayAPI/Export.h"
#include "utilities/Threadable.h"
#include "utilities/Wait.h"

#include <atomic>
#include <memory>

namespace DisplayAPI {

class Runnable;

/// A worker that runs one Runnable at a time. Made and handed out by DisplayThreadPool; deletes itself when it ends.
class DISPLAYAPI_EXPORT DisplayThread : public Threadable {
public:
    /// A pooled thread waits for the next request after each; one that is not pooled ends after its first.
    explicit DisplayThread(bool pooled);
    ~DisplayThread() override;

    /// The thread's body: carries requests out, one after the other, and deletes the object.
    void run() override;

    /// Hands over a request, which the thread then owns, and wakes the thread. Null is ignored.
    /// REQUIRES: the thread came from DisplayThreadPool::getThread() and has not been given a request since.
    virtual void executeRequest(Runnable* request);

    /// Ends the thread: from the thread itself it detaches, from another thread the caller waits until the body has
    /// ended and the object is gone. A call while another one is under way does nothing.
    /// REQUIRES: the thread has been started and not been destroyed.
    virtual void destroyThread();

    /// Marks the thread as handed out, for the pool.
    virtual void setBusy();

    /// Whether the thread has been handed out and has not finished its request. From any thread.
    virtual bool busy();

    /// Runs the request and deletes it. On the thread itself. REQUIRES: there is a request.
    virtual void execute();

    /// Forgets the request. On the thread itself.
    virtual void clearRequestData();

private:
    std::atomic<bool> mBusy{false};
    bool mPooled;
    std::atomic<bool> mDestroyed{false};
    std::shared_ptr<Wait> mWait;
    Runnable* mRequest = nullptr;
};

} // namespace DisplayAPI
