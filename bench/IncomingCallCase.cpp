#include "Cases.h"
#include "Frames.h"

#include "apps/deskphone/Desk.h"
#include "apps/deskphone/Memory.h"
#include "apps/exchange/Exchange.h"
#include "apps/exchange/HostClock.h"
#include "host/lcd/Lcd.h"
#include "kit/Phone.h"

#include <algorithm>
#include <chrono>
#include <future>
#include <stdexcept>
#include <thread>

namespace bench {

namespace {

using namespace std::chrono_literals;

constexpr int CALLS = 300;

/// The desk phone on its home screen, and an exchange from which one party calls.
class ShownDesk {
public:
    ShownDesk()
    {
        std::promise<void> ready;
        mGui = std::thread([&] { run(ready); });
        ready.get_future().wait();
        waitUntilShown();
    }
    ShownDesk(const ShownDesk&) = delete;
    ShownDesk& operator=(const ShownDesk&) = delete;

    ~ShownDesk()
    {
        mPhone->quit();
        mGui.join();
    }

    /// Milliseconds from the exchange's event to the painted popup.
    double incoming()
    {
        std::this_thread::sleep_for(20ms); // a frame is painted at once where the last one is not of just now
        const auto start = Clock::now();
        tell("4711 calls");
        waitUntilPopup(true);
        const double milliseconds = secondsSince(start) * 1e3;
        tell("4711 ends");
        waitUntilPopup(false);
        waitUntilShown();
        return milliseconds;
    }

private:
    void run(std::promise<void>& ready)
    {
        DisplayAPI::kit::Phone phone({.hardware = "plain"});
        deskphone::Memory memory;
        deskphone::Desk desk(phone.display(), mExchange, "en", memory);
        mPhone = &phone;
        desk.open();
        ready.set_value();
        phone.run();
    }

    void tell(const char* sentence)
    {
        if (const std::string complaint = mExchange.command(sentence); !complaint.empty())
            throw std::runtime_error(complaint);
    }

    /// Looked at often enough not to count.
    static void waitUntilPopup(bool shown)
    {
        const auto isCaller = [](const host::TextRun& text) { return text.text == "Caller"; };
        const auto start = Clock::now();
        while (std::ranges::any_of(host::Lcd::current()->picture().texts, isCaller) != shown) {
            if (secondsSince(start) > 10)
                throw std::runtime_error("the popup does not come or go");
            std::this_thread::sleep_for(50us);
        }
    }

    exchange::HostClock mClock;
    exchange::Exchange mExchange{exchange::Numbers::parse("bench", "4711 \"Caller\" never answers"), mClock};
    DisplayAPI::kit::Phone* mPhone = nullptr;
    std::thread mGui;
};

/// The 99th percentile.
double slowIncoming()
{
    ShownDesk desk;
    std::vector<double> all;
    for (int i = 0; i < CALLS; ++i)
        all.push_back(desk.incoming());
    std::ranges::sort(all);
    return all[CALLS * 99 / 100];
}

} // namespace

std::vector<Case> incomingCallCases()
{
    return {{SCREEN, "Desk phone, incoming call to painted popup, 99th percentile", "ms", slowIncoming}};
}

} // namespace bench
