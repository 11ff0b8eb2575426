#include "utilities/Semaphore.h"

#include "host/clock/Deadline.h"
#include "host/utilities/Futex.h"
#include "host/utilities/FutexLock.h"
#include "host/utilities/Spin.h"
#include "utilities/Threadable.h"

#include <atomic>
#include <bit>
#include <cstdint>
#include <map>
#include <mutex>

namespace {

using host::Spin;

static_assert(std::endian::native == std::endian::little, "the permits are the low half and the futex word");

/// Permits in the low half, sleeping threads in the high half: one store both gives a permit and tells whether
/// somebody has to be woken, so that give() need not look at the object again. The taker may have destroyed it by then.
class Permits {
public:
    explicit Permits(std::atomic<std::uint64_t>& state) : mState(state) {}

    bool tryTake()
    {
        std::uint64_t state = mState.load(std::memory_order_relaxed);
        while (low(state) > 0)
            if (mState.compare_exchange_weak(state, state - 1, std::memory_order_acquire, std::memory_order_relaxed))
                return true;
        return false;
    }

    /// Waits for a thread that ran on `partnersCpu`: a lock's holder, or who has something to announce.
    bool take(const host::Deadline& deadline, bool isLock, int partnersCpu)
    {
        if (tryTake())
            return true;
        if (deadline.isNow())
            return false;
        for (int races = isLock ? RACES_FOR_A_LOCK : 1; races > 0; --races) {
            if (isLock)
                Spin::stayAway(partnersCpu);
            if (!Spin::until([this] { return low(mState.load(std::memory_order_relaxed)) > 0; }, partnersCpu))
                break;
            if (tryTake())
                return true;
        }
        return sleepAndTake(deadline);
    }

    void give(std::uint32_t maximum)
    {
        std::uint64_t state = mState.load(std::memory_order_relaxed);
        do {
            if (low(state) >= maximum)
                return;
        } while (!mState.compare_exchange_weak(state, state + 1, std::memory_order_release, std::memory_order_relaxed));
        if (state >= ONE_SLEEPER)
            host::futexWake(&mState, 1);
    }

private:
    static constexpr int RACES_FOR_A_LOCK = 4;
    static constexpr std::uint64_t ONE_SLEEPER = std::uint64_t{1} << 32;

    static std::uint32_t low(std::uint64_t state) { return static_cast<std::uint32_t>(state); }

    bool sleepAndTake(const host::Deadline& deadline)
    {
        mState.fetch_add(ONE_SLEEPER, std::memory_order_relaxed);
        const Spin::Sleep sleep;
        bool taken = tryTake();
        for (bool inTime = true; !taken && inTime; taken = tryTake())
            inTime = deadline.sleep(&mState, 0);
        mState.fetch_sub(ONE_SLEEPER, std::memory_order_relaxed);
        return taken;
    }

    std::atomic<std::uint64_t>& mState;
};

} // namespace

/// What each thread holds of a semaphore that may be taken again.
struct Semaphore::Holders {
    /// Whether the calling thread held a permit, and now holds it once more.
    bool takeAgain()
    {
        std::lock_guard lock(mLock);
        const auto holder = mDepths.find(Threadable::currentThreadId());
        if (holder != mDepths.end())
            ++holder->second;
        return holder != mDepths.end();
    }

    void taken()
    {
        std::lock_guard lock(mLock);
        mDepths.emplace(Threadable::currentThreadId(), 1);
    }

    /// Whether the calling thread goes on holding its permit.
    bool keeps()
    {
        std::lock_guard lock(mLock);
        const auto holder = mDepths.find(Threadable::currentThreadId());
        if (holder == mDepths.end())
            return false;
        if (--holder->second > 0)
            return true;
        mDepths.erase(holder);
        return false;
    }

private:
    host::FutexLock mLock;
    std::map<unsigned int, int> mDepths;
};

/// One that starts with permits is used as a lock, others to announce something.
Semaphore::Semaphore(State state, int maximum, bool holderMayTakeAgain)
    : mState(static_cast<std::uint64_t>(state == AVAILABLE ? maximum : 0)),
      mMaximum(static_cast<std::uint32_t>(maximum)), mIsLock(state == AVAILABLE),
      mHolders(holderMayTakeAgain ? std::make_unique<Holders>() : nullptr)
{
}

Semaphore::~Semaphore() = default;

bool Semaphore::take(int milliseconds)
{
    if (mHolders && mHolders->takeAgain())
        return true;
    const bool taken = mIsLock ? takeLock(milliseconds) : takeAnnounced(milliseconds);
    if (taken && mHolders)
        mHolders->taken();
    return taken;
}

void Semaphore::give()
{
    if (mHolders && mHolders->keeps())
        return;
    if (!mIsLock)
        Spin::followWaiter(mCpu);
    Permits(mState).give(mMaximum);
}

bool Semaphore::takeLock(int milliseconds)
{
    Permits permits(mState);
    const bool taken =
        permits.tryTake() || permits.take(host::Deadline(milliseconds), true, mCpu.load(std::memory_order_relaxed));
    if (taken)
        mCpu.store(Spin::cpu(), std::memory_order_relaxed);
    return taken;
}

bool Semaphore::takeAnnounced(int milliseconds)
{
    Permits permits(mState);
    Spin::leaveTrace(mCpu);
    const bool taken = permits.tryTake() || permits.take(host::Deadline(milliseconds), false, Spin::partner());
    if (taken)
        Spin::followWaker(mCpu);
    return taken;
}
