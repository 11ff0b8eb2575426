#include "DisplayAPI/DisplayThread.h"

#include "DisplayAPI/Runnable.h"

#include <pthread.h>

namespace DisplayAPI {

DisplayThread::DisplayThread(bool pooled) : mPooled(pooled), mWait(std::make_shared<Wait>()) {}

// A request that comes when the thread is already ending is not run.
DisplayThread::~DisplayThread()
{
    delete mRequest;
}

void DisplayThread::run()
{
    while (true) {
        mWait->wait();
        if (mDestroyed)
            break;
        execute();
        clearRequestData();
        mBusy = false;
        if (mDestroyed || !mPooled)
            break;
    }
    if (!mPooled)
        destroyThread();
    delete this;
}

void DisplayThread::executeRequest(Runnable* request)
{
    if (request == nullptr)
        return;
    mRequest = request;
    mWait->wakeUp();
}

void DisplayThread::destroyThread()
{
    // The thread may delete this object as soon as it sees the flag.
    const std::shared_ptr<Wait> wait = mWait;
    const std::shared_ptr<State> threadState = state();
    const bool own = isCurrentThread();
    if (mDestroyed.exchange(true))
        return;
    wait->wakeUp();
    if (own)
        pthread_detach(pthread_self());
    else
        waitForThreadCompletion(*threadState);
}

void DisplayThread::setBusy()
{
    mBusy = true;
}

bool DisplayThread::busy()
{
    return mBusy;
}

void DisplayThread::execute()
{
    mRequest->run();
    delete mRequest;
    mRequest = nullptr;
}

void DisplayThread::clearRequestData()
{
    mRequest = nullptr;
}

} // namespace DisplayAPI
