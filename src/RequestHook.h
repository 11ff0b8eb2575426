#pragma once

#include "utilities/RequestObserver.h"

#include <cstdint>
#include <typeinfo>

/// Where the library's requests are looked at from outside: see docs/looking-inside.md. While nobody does, a request
/// costs one look at a pointer when it is queued, and one at its message when it is carried out or purged.
namespace DisplayAPI {

/// The number that goes into the request's message; 0 while nobody listens. `facade` is asked for its class then only.
template <typename ClassOf>
std::int32_t tellQueued(ClassOf facade, int code, bool isAwaited)
{
    RequestObserver* const observer = gpRequestObserver.load(std::memory_order_acquire);
    return observer != nullptr ? observer->queued(facade(), code, isAwaited) : 0;
}

inline void tellPurged(std::int32_t number)
{
    if (number == 0)
        return;
    if (RequestObserver* const observer = gpRequestObserver.load(std::memory_order_acquire))
        observer->purged(number);
}

/// Stands around the handling of a request. GUI thread only.
class RequestRun {
public:
    explicit RequestRun(std::int32_t number)
        : mNumber(number), mObserver(number != 0 ? gpRequestObserver.load(std::memory_order_acquire) : nullptr)
    {
        if (mObserver != nullptr)
            mObserver->begun(mNumber);
    }

    ~RequestRun()
    {
        if (mObserver != nullptr)
            mObserver->done(mNumber);
    }

    RequestRun(const RequestRun&) = delete;
    RequestRun& operator=(const RequestRun&) = delete;

private:
    const std::int32_t mNumber;
    RequestObserver* const mObserver;
};

} // namespace DisplayAPI
