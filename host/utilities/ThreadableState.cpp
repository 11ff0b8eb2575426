#include "host/utilities/ThreadableState.h"

namespace {

/// A body may have detached its own thread; such a thread must not be joined.
bool isDetached(pthread_t thread)
{
    pthread_attr_t attributes;
    int state = PTHREAD_CREATE_JOINABLE;
    if (pthread_getattr_np(thread, &attributes) != 0)
        return false;
    pthread_attr_getdetachstate(&attributes, &state);
    pthread_attr_destroy(&attributes);
    return state == PTHREAD_CREATE_DETACHED;
}

} // namespace

Threadable::State::~State()
{
    if (!mJoinable)
        return;
    if (pthread_equal(mThread, pthread_self()))
        pthread_detach(mThread);
    else
        pthread_join(mThread, nullptr);
}

bool Threadable::State::start(void* (*body)(void*), void* argument)
{
    std::lock_guard lock(mMutex);
    mPhase = RUNNING;
    if (pthread_create(&mThread, nullptr, body, argument) == 0)
        return true;
    mPhase = NOT_RUNNING;
    return false;
}

void Threadable::State::begin()
{
    threadId = Threadable::currentThreadId();
}

void Threadable::State::end()
{
    std::lock_guard lock(mMutex);
    threadId = 0;
    mPhase = ENDED;
    mJoinable = !isDetached(pthread_self());
    mEnded.notify_all();
}

void Threadable::State::waitForEnd()
{
    std::unique_lock lock(mMutex);
    mEnded.wait(lock, [this] { return mPhase != RUNNING; });
    if (!mJoinable)
        return;
    mJoinable = false;
    lock.unlock();
    pthread_join(mThread, nullptr);
}
