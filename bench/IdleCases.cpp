#include "Cases.h"
#include "Frames.h"
#include "Phone.h"

#include "DisplayAPI/DisplayablePrivateIfc.h"
#include "DisplayAPI/IdleDisplay.h"
#include "host/lcd/Lcd.h"
#include "kit/OnGuiThread.h"

#include <cstdint>
#include <cstdio>
#include <ctime>

namespace bench {

namespace {

using namespace std::chrono_literals;

constexpr int TEXTS = 2'000;
constexpr auto REST = 3s;

/// An idle display that has everything to show, its clock two seconds before the full minute.
class ShownIdle {
public:
    ShownIdle()
    {
        mIdle.setDisplayIdUnicode("Reception");
        mIdle.setUseDisplayId(true);
        mIdle.setBrandingText("Two Peaks Telephony");
        mIdle.setMessages(3);
        mIdle.setMissedCalls(12);
        mIdle.setForwardingAddress("Mailbox 4711");
        mIdle.setServerBasedForwardingAddress("040 7654321");
        mIdle.addSystemMessage("The canteen closes at two");
        mPhone.display().setCurrent(&mIdle);
        mPhone.display().setTimeInSystemWindow(14, 4, 58);
        mPhone.display().showTimeInSystemWindow(true);
        waitUntilShown();
    }
    ShownIdle(const ShownIdle&) = delete;
    ShownIdle& operator=(const ShownIdle&) = delete;
    ~ShownIdle() { mPhone.display().setCurrent(nullptr); }

    DisplayAPI::IdleDisplay& idle() { return mIdle; }

private:
    Phone mPhone;
    DisplayAPI::IdleDisplay mIdle{""};
};

double processCpuSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Percent of a core, with a minute of the clock every three seconds: twenty times as often as it is.
double atRest()
{
    const ShownIdle shown;
    const std::uint64_t frames = host::Lcd::current()->picture().frame;
    const double before = processCpuSeconds();
    const auto start = Clock::now();
    std::this_thread::sleep_for(REST);
    const double spent = processCpuSeconds() - before;
    const double seconds = secondsSince(start);
    if (host::Lcd::current()->picture().frame > frames + 2)
        std::fprintf(stderr, "benchmark broken: an idle display paints at rest\n");
    return spent / seconds * 100;
}

double asText()
{
    ShownIdle shown;
    double nanoseconds = 0;
    DisplayAPI::kit::onGuiThread([&] {
        DisplayAPI::DisplayablePrivateIfc& side = *shown.idle().getPrivateImpl();
        nanoseconds = nanosecondsEach(TEXTS, [&] { static_cast<void>(side.serialise()); });
    });
    return nanoseconds / 1e3;
}

} // namespace

std::vector<Case> idleCases()
{
    return {{SCREEN, "Idle display at rest, the clock's minute every 3 s", "% core", atRest},
            {SCREEN, "Idle display as text", "us", asText}};
}

} // namespace bench
