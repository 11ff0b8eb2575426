#include "host/inspection/Watchdog.h"

#include "host/utilities/Log.h"
#include "support/SteppedLoop.h"
#include "support/TestWidget.h"
#include "support/Worker.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <mutex>

using host::Watchdog;
using test::Worker;
using testing::HasSubstr;
using testing::SizeIs;

namespace {

using namespace std::chrono_literals;

class HostWatchdogTest : public test::SteppedTest {
protected:
    /// The toolkit's own one would say the same, after two seconds.
    HostWatchdogTest() { Watchdog::stop(); }

    host::LogCapture log{{1, "Watchdog"}};
};

} // namespace

TEST_F(HostWatchdogTest, CallerWhoWaitsForTooLongIsNamedWithHisRequest)
{
    test::TestWidget widget;
    Worker worker([&] { widget.postEvent(7); });
    gui.waitForQueued(1);
    const std::string waits = "(" + std::to_string(worker.threadId()) + ") has waited for it for ";
    const auto told = [&] { return log.lines().empty() ? std::string() : log.lines().back().text; };
    {
        const Watchdog watchdog(20ms);
        test::waitUntil([&] { return told().find(waits) != std::string::npos; });
    }
    EXPECT_THAT(told(), HasSubstr("test::TestWidget 7"));
    EXPECT_THAT(told(), HasSubstr("it runs no loop"));
    gui.runAll();
}

TEST_F(HostWatchdogTest, GuiThreadThatStandsStillIsToldOnce)
{
    const Watchdog watchdog(10ms);
    test::waitUntil([&] { return !log.lines().empty(); });
    std::this_thread::sleep_for(100ms); // would show a second one, on a machine that has time for it
    EXPECT_THAT(log.lines(), SizeIs(1));
}

TEST_F(HostWatchdogTest, CycleThatClosesAfterTheReportIsToldAsWell)
{
    test::TestWidget widget;
    std::mutex mutex;
    Worker caller([&] {
        const std::lock_guard lock(mutex);
        widget.postEvent(7);
    });
    gui.waitForQueued(1);
    const Watchdog watchdog(20ms);
    const auto isTold = [&](const std::string& text) {
        return std::ranges::any_of(log.lines(),
                                   [&](const auto& line) { return line.text.find(text) != std::string::npos; });
    };
    test::waitUntil([&] { return isTold("(" + std::to_string(caller.threadId()) + ") has waited for it for "); });
    EXPECT_FALSE(isTold("A cycle: "));
    Worker breaker([&] {
        test::waitUntil([&] { return isTold("A cycle: "); });
        widget.purgeOwnMessage(nullptr);
    });
    const std::lock_guard lock(mutex);
    EXPECT_TRUE(isTold("A cycle: "));
}
