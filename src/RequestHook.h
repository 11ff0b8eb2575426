#pragma once

#include "utilities/RequestObserver.h"
#include "utilities/RequestStatus.h"

#include <cstdint>
#include <typeinfo>

/// Where the library's requests are looked at from outside: see docs/looking-inside.md. While nobody does, a request
/// costs one look at a pointer when it is queued and one at its message when it is carried out; what runs and who waits
/// is written down always, with some stores that nobody else's follow.
namespace DisplayAPI {

/// The number that goes into the request's message; 0 while nobody listens.
inline std::int32_t tellQueued(const std::type_info& facade, int code, bool isAwaited)
{
    RequestObserver* const observer = gpRequestObserver.load(std::memory_order_acquire);
    return observer != nullptr ? observer->queued(facade, code, isAwaited) : 0;
}

/// Nobody carries it out.
inline void tellPurged(std::int32_t number)
{
    gPurgedRequests.fetch_add(1, std::memory_order_relaxed);
    if (number == 0)
        return;
    if (RequestObserver* const observer = gpRequestObserver.load(std::memory_order_acquire))
        observer->purged(number);
}

/// There was no message for it.
inline void tellLost()
{
    gLostRequests.fetch_add(1, std::memory_order_relaxed);
}

/// Stands around the handling of a request that has been told as queued, on whatever thread.
class RequestHandling {
public:
    explicit RequestHandling(std::int32_t number)
        : mNumber(number), mObserver(number != 0 ? gpRequestObserver.load(std::memory_order_acquire) : nullptr)
    {
        if (mObserver != nullptr)
            mObserver->begun(mNumber);
    }

    ~RequestHandling()
    {
        if (mObserver != nullptr)
            mObserver->done(mNumber);
    }

    RequestHandling(const RequestHandling&) = delete;
    RequestHandling& operator=(const RequestHandling&) = delete;

private:
    const std::int32_t mNumber;
    RequestObserver* const mObserver;
};

/// Stands around the handling of a request, maybe within that of another one. GUI thread only.
class RequestRun {
public:
    RequestRun(const std::type_info& facade, int code, std::int32_t number)
        : mHandling(number), mFormer{gRunningRequest.facade.load(std::memory_order_relaxed),
                                     gRunningRequest.code.load(std::memory_order_relaxed)}
    {
        publish({&facade, code});
    }

    ~RequestRun() { publish(mFormer); }

    RequestRun(const RequestRun&) = delete;
    RequestRun& operator=(const RequestRun&) = delete;

private:
    struct What {
        const std::type_info* facade;
        int code;
    };

    static void publish(What what)
    {
        const std::uint64_t turns = gRunningRequest.turns.load(std::memory_order_relaxed);
        gRunningRequest.turns.store(turns + 1, std::memory_order_relaxed);
        gRunningRequest.facade.store(what.facade, std::memory_order_release);
        gRunningRequest.code.store(what.code, std::memory_order_release);
        gRunningRequest.turns.store(turns + 2, std::memory_order_release);
    }

    const RequestHandling mHandling;
    const What mFormer;
};

/// Stands around the wait for a request, or for one's turn to post it.
class RequestWait {
public:
    RequestWait(const std::type_info& facade, int code) : mRequest{&facade, code}, mFormer(gpAwaitedRequest)
    {
        gpAwaitedRequest = &mRequest;
    }

    ~RequestWait() { gpAwaitedRequest = mFormer; }

    RequestWait(const RequestWait&) = delete;
    RequestWait& operator=(const RequestWait&) = delete;

private:
    const AwaitedRequest mRequest;
    const AwaitedRequest* const mFormer;
};

} // namespace DisplayAPI
