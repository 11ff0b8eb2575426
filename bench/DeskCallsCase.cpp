#include "Cases.h"

#include "apps/deskphone/Desk.h"
#include "apps/deskphone/Memory.h"
#include "apps/exchange/Exchange.h"
#include "apps/exchange/HostClock.h"
#include "host/clock/Clock.h"
#include "kit/Fence.h"
#include "kit/Phone.h"

#include <malloc.h>
#include <stdexcept>
#include <thread>

namespace bench {

namespace {

constexpr int CALLS = 1000;
constexpr int FIRST_CALLS = 100;

struct Used {
    double milliseconds = 0;
    double bytesPerCall = 0; ///< after the first ones
};

/// The desk phone on the virtual clock, and somebody who calls.
class CalledDesk {
public:
    CalledDesk() { host::Clock::instance().makeVirtual(); }
    CalledDesk(const CalledDesk&) = delete;
    CalledDesk& operator=(const CalledDesk&) = delete;
    ~CalledDesk() { host::Clock::instance().makeReal(); }

    Used use()
    {
        Used used;
        DisplayAPI::kit::Phone phone({.hardware = "plain"});
        deskphone::Memory memory;
        deskphone::Desk desk(phone.display(), mExchange, "en", memory);
        std::thread user([&] {
            const auto start = Clock::now();
            call(FIRST_CALLS);
            const auto before = static_cast<double>(mallinfo2().uordblks);
            call(CALLS - FIRST_CALLS);
            used.bytesPerCall = (static_cast<double>(mallinfo2().uordblks) - before) / (CALLS - FIRST_CALLS);
            used.milliseconds = secondsSince(start) * 1e3;
            phone.quit();
        });
        desk.open();
        phone.run();
        user.join();
        return used;
    }

private:
    /// Each rings, is answered, held, resumed and ended, and is shown and logged all the while.
    void call(int count)
    {
        for (int n = 0; n < count; ++n) {
            const exchange::CallId id = mExchange.place(1, "4711");
            pass(3500);
            if (!mExchange.hold(id) || !mExchange.resume(id))
                throw std::runtime_error("the call is not connected");
            pass(200);
            mExchange.end(id);
            pass(2500);
        }
    }

    void pass(int milliseconds)
    {
        host::Clock::instance().advance(milliseconds);
        mExchange.waitUntilHeard();
        DisplayAPI::kit::Fence().wait();
    }

    exchange::HostClock mClock;
    exchange::Exchange mExchange{exchange::Numbers::parse("bench", "4711 answers after 3 s"), mClock};
};

} // namespace

std::vector<Case> deskCallsCases()
{
    return {{SCREEN, "Desk phone, 1,000 calls held, resumed and ended", "ms",
             [] { return CalledDesk().use().milliseconds; }},
            {SCREEN, "Desk phone, heap of each after the first 100", "bytes",
             [] { return CalledDesk().use().bytesPerCall; }}};
}

} // namespace bench
