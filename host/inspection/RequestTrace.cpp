#include "host/inspection/RequestTrace.h"

#include "host/inspection/FacadeNames.h"
#include "host/inspection/ThreadNames.h"
#include "utilities/Threadable.h"

#include <algorithm>
#include <array>
#include <utility>

std::atomic<RequestObserver*> gpRequestObserver{nullptr};

namespace host {

namespace {

enum Kind : std::uint64_t { QUEUED = 1, CLASS = 2, BEGUN = 3, DONE = 4, PURGED = 5 };

constexpr std::uint64_t KIND = 0xFF;
constexpr std::uint64_t AWAITED = 0x100;

constexpr std::size_t SLOTS = 16'384;
constexpr std::size_t MOST_RINGS = 63;

/// A request's number: its ring's above, and how many the ring has had below.
constexpr int COUNT_BITS = 25;
constexpr std::uint32_t COUNTS = (1U << COUNT_BITS) - 1;

std::uint64_t packed(std::uint64_t kind, std::int32_t number)
{
    return static_cast<std::uint64_t>(static_cast<std::uint32_t>(number)) << 32 | kind;
}

/// What a request's second line says of whose it is.
constexpr int PAIR_SHIFT = 9;
constexpr std::uint64_t PAIR = 0x7F'FFFF;

std::uint64_t classKind(std::uint32_t count)
{
    return CLASS | (count & PAIR) << PAIR_SHIFT;
}

std::int32_t upperHalf(std::uint64_t word)
{
    return static_cast<std::int32_t>(word >> 32);
}

/// Whether a request's first line is followed by its second one.
bool isPair(std::uint64_t first, std::uint64_t second)
{
    return static_cast<std::uint32_t>(second) == classKind(static_cast<std::uint32_t>(upperHalf(first)));
}

} // namespace

/// What a ring says of one request, once or several times.
struct RequestTrace::Event {
    std::uint64_t kind;
    std::int32_t number;
    std::int64_t time;
    const std::type_info* facade;
    std::int32_t code;
    bool isAwaited;
    int thread;
    std::string threadName;
};

/// What one thread has seen, the newest of it. Its thread writes, and nobody makes it wait: who reads leaves out what
/// may have been written meanwhile.
class RequestTrace::Ring {
public:
    explicit Ring(std::size_t number) : mNumber(static_cast<std::uint32_t>(number)) {}

    // Its thread's

    std::int32_t writeQueued(const std::type_info& facade, int code, bool isAwaited, std::int64_t time)
    {
        const std::uint32_t count = mCount.load(std::memory_order_relaxed);
        mCount.store((count + 1) & COUNTS, std::memory_order_relaxed);
        const auto number = static_cast<std::int32_t>(mNumber << COUNT_BITS | count);
        const std::uint64_t at = mEnd.load(std::memory_order_relaxed);
        put(at, packed(QUEUED | (isAwaited ? AWAITED : 0), number), static_cast<std::uint64_t>(time));
        put(at + 1, packed(classKind(count), code), reinterpret_cast<std::uintptr_t>(&facade));
        mEnd.store(at + 2, std::memory_order_release);
        return number;
    }

    void write(std::uint64_t kind, std::int32_t number, std::int64_t time)
    {
        const std::uint64_t at = mEnd.load(std::memory_order_relaxed);
        put(at, packed(kind, number), static_cast<std::uint64_t>(time));
        mEnd.store(at + 1, std::memory_order_release);
    }

    // Under the trace's mutex

    bool isFree() const { return mThread == 0; }
    bool isRead() const { return mRead == mEnd.load(std::memory_order_acquire); }

    void beginFor(int thread)
    {
        mThread = thread;
        mThreadName = threadName(thread);
    }

    void end()
    {
        mThreadName = threadName(mThread);
        mFormerThread = std::exchange(mThread, 0);
    }

    /// Forgets what has not been read; returns how many requests those were.
    std::uint64_t drop()
    {
        mRead = mEnd.load(std::memory_order_acquire);
        return skipTo(mCount.load(std::memory_order_relaxed));
    }

    /// Appends what has not been read. `lost` grows by the requests that are overwritten; `horizon` becomes the time of
    /// the oldest line that is left, where requests may have ended in those that are not.
    void read(std::vector<Event>& events, std::uint64_t& lost, std::int64_t& horizon);

private:
    struct Slot {
        std::atomic<std::uint64_t> word{0};
        std::atomic<std::uint64_t> value{0};
    };

    void put(std::uint64_t at, std::uint64_t word, std::uint64_t value)
    {
        Slot& slot = mSlots[at % SLOTS];
        slot.word.store(word, std::memory_order_relaxed);
        slot.value.store(value, std::memory_order_relaxed);
    }

    /// Returns how many have been left out. Those that were on their way into the ring when the others were dropped
    /// have been counted before their lines are there, and are none.
    std::uint64_t skipTo(std::uint32_t count)
    {
        const std::uint32_t skipped = (count - std::exchange(mNext, count)) & COUNTS;
        return skipped > COUNTS - SLOTS ? 0 : skipped;
    }

    std::uint64_t firstLeft(std::uint64_t end) const { return std::max(mRead, end > SLOTS ? end - SLOTS : 0); }

    alignas(64) std::atomic<std::uint64_t> mEnd{0};
    std::atomic<std::uint32_t> mCount{0};
    const std::uint32_t mNumber;

    alignas(64) std::uint64_t mRead = 0;
    std::uint32_t mNext = 0; ///< the count of the request that is to be read next
    int mThread = 0;
    int mFormerThread = 0;
    std::string mThreadName;
    std::array<Slot, SLOTS> mSlots;
};

void RequestTrace::Ring::read(std::vector<Event>& events, std::uint64_t& lost, std::int64_t& horizon)
{
    // What the writer may just be at, and what of it other processors may see before the count of it.
    constexpr std::uint64_t MARGIN = 64;
    const std::uint64_t end = mEnd.load(std::memory_order_acquire);
    const std::uint64_t begin = firstLeft(end);
    std::vector<std::pair<std::uint64_t, std::uint64_t>> lines;
    for (std::uint64_t at = begin; at < end; ++at) {
        const Slot& slot = mSlots[at % SLOTS];
        const std::uint64_t word = slot.word.load(std::memory_order_acquire);
        lines.emplace_back(word, slot.value.load(std::memory_order_acquire));
    }
    // Behind the copying: the writer may have come round meanwhile.
    const std::uint64_t written = mEnd.load(std::memory_order_acquire) + MARGIN;
    const bool isOverrun = written - mRead >= SLOTS;
    const std::size_t skipped = std::min<std::uint64_t>(firstLeft(written) - begin, lines.size());
    mRead = end;
    const int thread = mThread != 0 ? mThread : mFormerThread;
    if (mThread != 0)
        mThreadName = threadName(mThread);
    bool isFirst = true;
    bool hasEnds = false;
    std::int64_t oldest = 0;
    for (std::size_t i = skipped; i < lines.size(); ++i) {
        const auto [word, value] = lines[i];
        const std::uint64_t kind = word & KIND;
        if (kind == CLASS)
            continue; // of the one before
        Event event{kind, upperHalf(word), static_cast<std::int64_t>(value), nullptr, 0, false, thread, mThreadName};
        if (std::exchange(isFirst, false))
            oldest = event.time;
        hasEnds = hasEnds || kind != QUEUED;
        if (kind == QUEUED) {
            if (i + 1 == lines.size() || !isPair(word, lines[i + 1].first))
                continue;
            event.facade = reinterpret_cast<const std::type_info*>(lines[i + 1].second);
            event.code = upperHalf(lines[i + 1].first);
            event.isAwaited = (word & AWAITED) != 0;
            const std::uint32_t count = static_cast<std::uint32_t>(event.number) & COUNTS;
            lost += skipTo(count);
            mNext = (count + 1) & COUNTS;
        }
        events.push_back(std::move(event));
    }
    if (skipped + begin > 0 && isOverrun && hasEnds)
        horizon = std::max(horizon, oldest);
}

/// A thread's ring, until the thread ends.
class RequestTrace::Tenancy {
public:
    /// `ring` becomes null where it ends.
    explicit Tenancy(Ring*& ring) : mRing(ring) {}
    Tenancy(const Tenancy&) = delete;
    Tenancy& operator=(const Tenancy&) = delete;

    ~Tenancy()
    {
        if (Ring* const ring = std::exchange(mRing, nullptr))
            RequestTrace::instance().giveBack(*ring);
    }

private:
    Ring*& mRing;
};

RequestTrace& RequestTrace::instance()
{
    static RequestTrace* const trace = new RequestTrace;
    return *trace;
}

void RequestTrace::enable(bool on)
{
    const std::lock_guard lock(mMutex);
    if (on != isEnabled() && on) {
        for (const auto& ring : mRings)
            ring->drop();
        mOpen.clear();
        mUnmatched.clear();
        mLost = 0;
    }
    gpRequestObserver.store(on ? this : nullptr, std::memory_order_release);
}

/// Null where all are in use. A thread that ends meanwhile writes no more.
RequestTrace::Ring* RequestTrace::ring()
{
    [[gnu::tls_model("initial-exec")]] thread_local constinit Ring* mine = nullptr;
    [[gnu::tls_model("initial-exec")]] thread_local constinit bool isKnown = false;
    if (!isKnown) [[unlikely]] {
        isKnown = true;
        mine = newRing();
        thread_local const Tenancy tenancy(mine);
    }
    return mine;
}

RequestTrace::Ring* RequestTrace::newRing()
{
    const std::lock_guard lock(mMutex);
    const auto begin = [](Ring& ring) {
        ring.beginFor(static_cast<int>(Threadable::currentThreadId()));
        return &ring;
    };
    for (const auto& ring : mRings)
        if (ring->isFree() && ring->isRead())
            return begin(*ring);
    if (mRings.size() < MOST_RINGS) {
        mRings.push_back(std::make_unique<Ring>(mRings.size() + 1));
        return begin(*mRings.back());
    }
    for (const auto& ring : mRings)
        if (ring->isFree()) {
            mLost += ring->drop();
            return begin(*ring);
        }
    return nullptr;
}

void RequestTrace::giveBack(Ring& ring)
{
    const std::lock_guard lock(mMutex);
    ring.end();
}

std::int32_t RequestTrace::queued(const std::type_info& facade, int code, bool isAwaited)
{
    Ring* const mine = ring();
    return mine != nullptr ? mine->writeQueued(facade, code, isAwaited, mClock.ticks()) : 0;
}

void RequestTrace::begun(std::int32_t number)
{
    write(BEGUN, number);
}

void RequestTrace::done(std::int32_t number)
{
    write(DONE, number);
}

void RequestTrace::purged(std::int32_t number)
{
    write(PURGED, number);
}

void RequestTrace::write(std::uint64_t kind, std::int32_t number)
{
    if (Ring* const mine = ring())
        mine->write(kind, number, mClock.ticks());
}

RequestTrace::Taken RequestTrace::take(std::size_t most)
{
    const std::lock_guard lock(mMutex);
    std::vector<Event> events = std::exchange(mUnmatched, {});
    const auto retried = static_cast<std::ptrdiff_t>(events.size());
    std::int64_t horizon = 0;
    readAll(events, horizon);
    for (const Event& event : events)
        if (event.kind == QUEUED)
            open(event);
    for (auto event = events.begin(); event != events.end(); ++event)
        if (event->kind != QUEUED && !change(*event) && event - events.begin() >= retried)
            mUnmatched.push_back(*event);
    dropOverwritten(horizon);

    Taken taken{{}, std::exchange(mLost, 0)};
    for (const auto& [number, request] : mOpen)
        taken.records.push_back(request);
    if (isEnabled()) {
        std::erase_if(mOpen, [](const auto& entry) { return entry.second.done || !entry.second.purgedBy.empty(); });
    } else { // nobody tells what becomes of them
        mOpen.clear();
        mUnmatched.clear();
    }
    std::ranges::stable_sort(taken.records, {}, &TracedRequest::queued);
    if (taken.records.size() > most) {
        const std::size_t tooMany = taken.records.size() - most;
        taken.lost += tooMany;
        taken.records.erase(taken.records.begin(), taken.records.begin() + static_cast<std::ptrdiff_t>(tooMany));
    }
    return taken;
}

/// With their times as nanoseconds.
void RequestTrace::readAll(std::vector<Event>& events, std::int64_t& horizon)
{
    const std::size_t read = events.size();
    for (const auto& ring : mRings)
        ring->read(events, mLost, horizon);
    const TraceClock::Scale scale = mClock.scale();
    for (std::size_t i = read; i < events.size(); ++i)
        events[i].time = scale.nanoseconds(events[i].time);
    horizon = horizon != 0 ? scale.nanoseconds(horizon) : 0;
}

void RequestTrace::open(const Event& event)
{
    TracedRequest& request = mOpen[event.number];
    request = {};
    request.facade = FacadeNames::classOf(*event.facade);
    request.code = FacadeNames::codeOf(*event.facade, event.code);
    request.number = event.code;
    request.thread = event.thread;
    request.threadName = event.threadName;
    request.queued = event.time;
    request.isAwaited = event.isAwaited;
}

/// False where nothing is known of the request, or not yet.
bool RequestTrace::change(const Event& event)
{
    const auto found = mOpen.find(event.number);
    if (found == mOpen.end())
        return false;
    switch (event.kind) {
    case BEGUN: found->second.run = event.time; break;
    case DONE: found->second.done = event.time; break;
    default: found->second.purgedBy = nameAndNumber(event.threadName, event.thread);
    }
    return true;
}

/// What is older than the lines that are left, and has not ended in them, has ended in those that are overwritten.
void RequestTrace::dropOverwritten(std::int64_t horizon)
{
    mLost += std::erase_if(mOpen, [horizon](const auto& entry) {
        const TracedRequest& request = entry.second;
        return request.queued < horizon && !request.done && request.purgedBy.empty();
    });
}

} // namespace host
