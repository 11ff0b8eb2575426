#pragma once

#include <atomic>
#include <cstdint>
#include <typeinfo>

/// Hears what becomes of the library's requests while it is installed: they are queued, and carried out or taken out
/// again. Each operation is called on the thread that does this, some with the main queue's mutexes held: none may
/// block, post or log.
class RequestObserver {
public:
    virtual ~RequestObserver() = default;

    /// A request of a facade is about to be queued. Returns the number that it goes by from now on; 0 for one of which
    /// nothing more is to be told.
    virtual std::int32_t queued(const std::type_info& facade, int code, bool isAwaited) = 0;

    /// The GUI thread begins with it, and is through with it; the poster's own where there is no filter any more.
    virtual void begun(std::int32_t number) = 0;
    virtual void done(std::int32_t number) = 0;

    /// It has been taken out of the queue, and nobody carries it out.
    virtual void purged(std::int32_t number) = 0;
};

/// Null while nobody listens. Who has been installed once lives as long as the process: he may hear something yet when
/// he is not any more.
extern std::atomic<RequestObserver*> gpRequestObserver;

/// What the codes of a class of facades are called, by code; null for a code that has no name. Lives as long as the
/// process.
struct RequestNames {
    const std::type_info* facade;
    const char* const* names;
    int count;
    const RequestNames* next;
};

/// The library names its codes when it is loaded.
void addRequestNames(RequestNames& names);
