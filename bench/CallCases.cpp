#include "Cases.h"

#include "apps/exchange/Exchange.h"
#include "apps/exchange/HostClock.h"
#include "host/clock/Clock.h"

#include <malloc.h>
#include <stdexcept>

namespace bench {

namespace {

constexpr int CALLS = 1000;
constexpr int FIRST_CALLS = 100;

/// Counts what it hears.
class Counter : public exchange::TelephonyListener {
public:
    void callChanged(const exchange::CallEvent&) override { ++heard; }

    int heard = 0;
};

/// An exchange on the virtual clock, and nothing else.
class CallRun {
public:
    CallRun()
    {
        host::Clock::instance().makeVirtual();
        mExchange.setListener(&mCounter);
    }
    CallRun(const CallRun&) = delete;
    CallRun& operator=(const CallRun&) = delete;

    ~CallRun()
    {
        mExchange.setListener(nullptr);
        host::Clock::instance().makeReal();
    }

    /// Each is placed, answered after three seconds, held, resumed and ended; each of its events is heard.
    void call(int count)
    {
        const int before = mCounter.heard;
        for (int n = 0; n < count; ++n) {
            const exchange::CallId id = mExchange.place(1, "4711");
            pass(3500);
            if (!mExchange.hold(id) || !mExchange.resume(id))
                throw std::runtime_error("the call is not connected");
            pass(200);
            mExchange.end(id);
        }
        mExchange.waitUntilHeard();
        if (mCounter.heard - before != 8 * count)
            throw std::runtime_error("events are missing");
    }

private:
    void pass(int milliseconds)
    {
        host::Clock::instance().advance(milliseconds);
        mExchange.waitUntilHeard();
    }

    exchange::HostClock mClock;
    exchange::Exchange mExchange{exchange::Numbers::parse("bench", "4711 answers after 3 s"), mClock};
    Counter mCounter;
};

double millisecondsOfCalls()
{
    CallRun run;
    const auto start = Clock::now();
    run.call(CALLS);
    return secondsSince(start) * 1e3;
}

double bytesAfterTheFirst()
{
    CallRun run;
    run.call(FIRST_CALLS);
    const std::size_t before = mallinfo2().uordblks;
    run.call(CALLS - FIRST_CALLS);
    return static_cast<double>(mallinfo2().uordblks) - static_cast<double>(before);
}

} // namespace

std::vector<Case> callCases()
{
    return {{CALLS_IN_A_ROW, "1,000 placed, held, resumed and ended", "ms", millisecondsOfCalls},
            {CALLS_IN_A_ROW, "Memory of them after the first 100", "bytes", bytesAfterTheFirst}};
}

} // namespace bench
