#include "host/inspection/BlockedCalls.h"

#include "utilities/Threadable.h"

#include <algorithm>
#include <memory>
#include <mutex>

constinit thread_local const AwaitedRequest* gpAwaitedRequest = nullptr;
constinit RunningRequest gRunningRequest;
constinit std::atomic<std::uint64_t> gLostRequests{0};
constinit std::atomic<std::uint64_t> gPurgedRequests{0};

namespace host {

/// What it sleeps for is written before since when, and read after that and before it is looked at again.
struct BlockedCalls::Slot {
    std::atomic<int> thread{0}; ///< 0: nobody's
    std::atomic<std::int64_t> since{0};
    std::atomic<const std::type_info*> facade{nullptr};
    std::atomic<int> code{0};
};

struct BlockedCalls::Slots {
    std::mutex mutex;
    std::vector<std::unique_ptr<Slot>> all; ///< they stay, and serve one thread after the other
};

/// A thread's slot, until it ends.
class BlockedCalls::Tenancy {
public:
    /// `slot` becomes null where it ends.
    explicit Tenancy(Slot*& slot) : mSlot(slot)
    {
        const std::lock_guard lock(slots().mutex);
        auto& all = slots().all;
        auto free = std::ranges::find_if(all, [](const auto& each) { return each->thread == 0; });
        if (free == all.end())
            free = all.insert(free, std::make_unique<Slot>());
        mSlot = free->get();
        mSlot->thread = static_cast<int>(Threadable::currentThreadId());
    }

    ~Tenancy()
    {
        const std::lock_guard lock(slots().mutex);
        mSlot->thread = 0;
        mSlot = nullptr;
    }

    Tenancy(const Tenancy&) = delete;
    Tenancy& operator=(const Tenancy&) = delete;

private:
    Slot*& mSlot;
};

BlockedCalls::Slots& BlockedCalls::slots()
{
    static auto* const all = new Slots;
    return *all;
}

/// Null where the thread is about to end.
BlockedCalls::Slot* BlockedCalls::slot()
{
    [[gnu::tls_model("initial-exec")]] thread_local constinit Slot* mine = nullptr;
    thread_local const Tenancy tenancy(mine);
    return mine;
}

std::vector<BlockedCall> BlockedCalls::all()
{
    const std::lock_guard lock(slots().mutex);
    std::vector<BlockedCall> calls;
    for (const auto& slot : slots().all) {
        BlockedCall call;
        call.since = slot->since.load(std::memory_order_acquire);
        call.facade = slot->facade.load(std::memory_order_acquire);
        call.code = slot->code.load(std::memory_order_acquire);
        call.thread = slot->thread;
        if (call.since != 0 && call.thread != 0 && call.since == slot->since.load(std::memory_order_relaxed))
            calls.push_back(call);
    }
    return calls;
}

std::vector<BlockedCall> BlockedCalls::longest()
{
    std::vector<BlockedCall> calls = all();
    std::ranges::sort(calls, {}, &BlockedCall::since);
    return calls;
}

void BlockedCallNote::begin(const AwaitedRequest& request, std::int64_t now)
{
    mSlot = BlockedCalls::slot();
    if (mSlot == nullptr)
        return;
    mSlot->facade.store(request.facade, std::memory_order_release);
    mSlot->code.store(request.code, std::memory_order_release);
    mSlot->since.store(now, std::memory_order_release);
}

void BlockedCallNote::end()
{
    mSlot->since.store(0, std::memory_order_release);
}

} // namespace host
