#include "Cases.h"

#include "apps/deskphone/CallStore.h"
#include "apps/deskphone/Desk.h"
#include "apps/deskphone/Memory.h"
#include "apps/exchange/Exchange.h"
#include "apps/exchange/HostClock.h"
#include "host/input/Keyboard.h"
#include "host/lcd/Lcd.h"
#include "kit/Phone.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <thread>
#include <unistd.h>

namespace bench {

namespace {

using namespace std::chrono_literals;

constexpr int PAST_CALLS = 10'000;

/// A folder with the calls of years, as long as the process lives.
class State {
public:
    State()
    {
        std::filesystem::remove_all(mFolder);
        deskphone::CallStore store(mFolder);
        for (int i = 0; i < PAST_CALLS; ++i) {
            deskphone::PastCall call{.kind = static_cast<deskphone::PastCall::Kind>(i % 4),
                                     .moment = 1'700'000'000 + i * 1000,
                                     .party = "Party " + std::to_string(i),
                                     .number = std::to_string(4711 + i)};
            store.add(call);
        }
    }
    State(const State&) = delete;
    State& operator=(const State&) = delete;
    ~State() { std::filesystem::remove_all(mFolder); }

    const std::filesystem::path& folder() const { return mFolder; }

private:
    std::filesystem::path mFolder =
        std::filesystem::temp_directory_path() / ("displayapi-bench-" + std::to_string(getpid()));
};

bool shows(const std::string& wanted)
{
    const auto& texts = host::Lcd::current()->picture().texts;
    return std::ranges::any_of(texts, [&](const host::TextRun& text) { return text.text == wanted; });
}

void waitUntilShows(const std::string& text)
{
    for (const auto start = Clock::now(); !shows(text); std::this_thread::sleep_for(50us))
        if (secondsSince(start) > 10)
            throw std::runtime_error("the telephone does not show " + text);
}

/// Milliseconds, from the making of its screens to the log on the panel: the user is as quick as the telephone.
double untilLogIsShown()
{
    static const State state;
    double milliseconds = 0;
    exchange::HostClock clock;
    exchange::Exchange exchange(exchange::Numbers::parse("bench", ""), clock);
    DisplayAPI::kit::Phone phone({.hardware = "plain"});
    const auto start = Clock::now();
    deskphone::Memory memory(state.folder());
    deskphone::Desk desk(phone.display(), exchange, "en", memory);
    std::thread user([&] {
        waitUntilShows("Line 1");
        host::Keyboard::instance().press(PK_OK);
        waitUntilShows("Contacts");
        host::Keyboard::instance().press(PK_OK);
        waitUntilShows("Party 9999");
        milliseconds = secondsSince(start) * 1e3;
        phone.quit();
    });
    desk.open();
    phone.run();
    user.join();
    return milliseconds;
}

} // namespace

std::vector<Case> deskStartCases()
{
    return {{SCREEN, "Desk phone with 10,000 past calls, start until the log is shown", "ms", untilLogIsShown}};
}

} // namespace bench
