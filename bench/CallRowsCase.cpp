#include "Cases.h"
#include "Frames.h"
#include "Phone.h"

#include "DisplayAPI/CallConnectedItem.h"
#include "DisplayAPI/List.h"
#include "host/lcd/Lcd.h"

#include <cstdint>
#include <cstdio>
#include <ctime>

namespace bench {

namespace {

using namespace std::chrono_literals;
using DisplayAPI::CallConnectedItem;

constexpr int CALLS = 50;
constexpr auto TALK = 4s;

double processCpuSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Percent of a core, while the durations of all calls run.
double durationsRunning()
{
    Phone phone;
    DisplayAPI::List calls(0);
    for (int i = 0; i < CALLS; ++i) {
        auto* const call =
            new CallConnectedItem(CallConnectedItem::CONNECTED, "Caller " + std::to_string(i), nullptr, true, true);
        call->setSecondLineText("Support");
        calls.append(call);
    }
    phone.display().setCurrent(&calls);
    waitUntilShown();
    const std::uint64_t frames = host::Lcd::current()->picture().frame;
    const double before = processCpuSeconds();
    const auto start = Clock::now();
    std::this_thread::sleep_for(TALK);
    const double spent = processCpuSeconds() - before;
    const double seconds = secondsSince(start);
    const std::uint64_t painted = host::Lcd::current()->picture().frame - frames;
    if (painted < 3 || painted > 5)
        std::fprintf(stderr, "benchmark broken: %d frames in 4 s\n", static_cast<int>(painted));
    phone.display().setCurrent(nullptr);
    return spent / seconds * 100;
}

} // namespace

std::vector<Case> callRowsCases()
{
    return {{SCREEN, "50 call rows with running durations", "% core", durationsRunning}};
}

} // namespace bench
