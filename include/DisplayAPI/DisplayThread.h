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

    void run() override;

    /// Hands over a request, which the thread then owns, and wakes the thread. Null is ignored.
    /// REQUIRES: the thread came from DisplayThreadPool::getThread() and has not been given a request since.
    virtual void executeRequest(Runnable* request);

    /// Ends the thread: from the thread itself it detaches, from another thread the caller waits until the body has
    /// ended. The object is gone afterwards. A second call does nothing.
    virtual void destroyThread();

    virtual void setBusy();
    virtual bool busy();

    /// Runs the request and deletes it.
    virtual void execute();
    virtual void clearRequestData();

private:
    std::atomic<bool> mBusy{false};
    bool mPooled;
    std::atomic<bool> mDestroyed{false};
    std::shared_ptr<Wait> mWait;
    Runnable* mRequest = nullptr;
};

} // namespace DisplayAPI
