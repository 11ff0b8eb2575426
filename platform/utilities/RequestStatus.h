#pragma once

#include <atomic>
#include <cstdint>
#include <typeinfo>

/// The request that a thread waits for, or for whose turn: on that thread's stack.
struct AwaitedRequest {
    const std::type_info* facade;
    int code;
};

/// The calling thread's; null while it waits for none. The library writes it, and what the platform's threads sleep in
/// may look at it.
[[gnu::tls_model("initial-exec")]] extern thread_local constinit const AwaitedRequest* gpAwaitedRequest;

/// What the GUI thread is carrying out, for other threads to look at. The GUI thread alone writes it, `turns` before
/// and behind the rest: what somebody reads between two equal even numbers belongs together.
struct RunningRequest {
    alignas(64) std::atomic<std::uint64_t> turns{0};    ///< grows by two where a request begins, and where it ends
    std::atomic<const std::type_info*> facade{nullptr}; ///< null between requests
    std::atomic<int> code{0};
};

extern RunningRequest gRunningRequest;

/// How many requests nobody has carried out since the process started: there was no message or no filter for them, or
/// they were taken out of the queue.
extern std::atomic<std::uint64_t> gLostRequests;
extern std::atomic<std::uint64_t> gPurgedRequests;
